#pragma once

#include <QtGlobal>

#include <chrono>
#include <deque>

/** How fast bytes go, over the last three seconds. */
class TransferRate
{
public:
    using Clock = std::chrono::steady_clock;

    /** @p bytes were done by @p now; neither ever decreases. */
    void add(Clock::time_point now, qint64 bytes);
    /** 0 as long as less than half a second is known. */
    double bytesPerSecond() const;
    /** How long @p bytes take at that rate, rounded up; -1 as long as it is not known. */
    std::chrono::seconds remaining(qint64 bytes) const;

private:
    struct Sample
    {
        Clock::time_point time;
        qint64 bytes;
    };

    std::deque<Sample> m_samples; ///< the first one begins the span of time that counts
};

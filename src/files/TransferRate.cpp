#include "TransferRate.h"

#include <cmath>

using namespace std::chrono_literals;

namespace {

constexpr auto Span = 3s;
constexpr auto ShortestSpan = 500ms;
constexpr auto SampleInterval = 50ms;

/// Longer is as good as never, and would not fit.
constexpr double LongestSeconds = 1e9;

} // namespace

void TransferRate::add(Clock::time_point now, qint64 bytes)
{
    if (m_samples.size() > 1 && now - m_samples[m_samples.size() - 2].time < SampleInterval) {
        m_samples.back() = {now, bytes};
    } else {
        m_samples.push_back({now, bytes});
    }
    while (m_samples.size() > 2 && now - m_samples[1].time >= Span) {
        m_samples.pop_front();
    }
}

double TransferRate::bytesPerSecond() const
{
    if (m_samples.empty() || m_samples.back().time - m_samples.front().time < ShortestSpan) {
        return 0;
    }
    const std::chrono::duration<double> time = m_samples.back().time - m_samples.front().time;
    return static_cast<double>(m_samples.back().bytes - m_samples.front().bytes) / time.count();
}

std::chrono::seconds TransferRate::remaining(qint64 bytes) const
{
    const double rate = bytesPerSecond();
    const double seconds = rate > 0 ? std::ceil(static_cast<double>(bytes) / rate) : -1;
    return std::chrono::seconds(seconds > LongestSeconds ? -1 : static_cast<qint64>(seconds));
}

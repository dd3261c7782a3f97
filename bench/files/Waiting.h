#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <functional>

/** Serves events until @p condition holds; throws std::runtime_error after a minute. */
void await(const std::function<bool()> &condition);

/** How long the thread that it lives on did not come back to its event loop, at the longest. */
class StandStill
{
public:
    StandStill();

    double longestMs() const { return m_longest; }

private:
    void tick();

    QTimer m_timer;
    QElapsedTimer m_clock;
    double m_longest = 0;
};

#include "Waiting.h"

#include <QDeadlineTimer>
#include <QEventLoop>

#include <algorithm>
#include <chrono>
#include <stdexcept>

using namespace std::chrono_literals;

void await(const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(60s);
    QEventLoop loop;
    QTimer wakeUp;
    wakeUp.start(1ms);
    while (!condition()) {
        if (deadline.hasExpired()) {
            throw std::runtime_error("waited in vain");
        }
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
}

StandStill::StandStill()
{
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { tick(); });
    m_timer.start(1ms);
    m_clock.start();
}

void StandStill::tick()
{
    m_longest = std::max(m_longest, static_cast<double>(m_clock.nsecsElapsed()) / 1e6);
    m_clock.restart();
}

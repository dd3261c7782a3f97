#include "ScriptedHidDriver.h"

#include <algorithm>
#include <limits>

namespace {

constexpr auto WaitingTime = std::chrono::milliseconds(50);
constexpr quint16 ButtonUp = 3;
constexpr quint16 ButtonDown = 1;

enum { Absent = 1 };

} // namespace

ScriptedHidDriver::ScriptedHidDriver() = default;

ScriptedHidDriver::~ScriptedHidDriver() = default;

void ScriptedHidDriver::press()
{
    send({Button, ButtonDown});
}

void ScriptedHidDriver::release()
{
    send({Button, ButtonUp});
}

void ScriptedHidDriver::turn(int detents)
{
    constexpr int most = std::numeric_limits<qint16>::max();
    while (detents != 0) {
        const int part = std::clamp(detents, -most, most);
        send({Wheel, static_cast<quint16>(part)});
        detents -= part;
    }
}

void ScriptedHidDriver::send(const Report &report)
{
    add({Success, report});
}

void ScriptedHidDriver::fail(int code)
{
    add({code, {}});
}

void ScriptedHidDriver::setPresent(bool present)
{
    const std::lock_guard lock(m_mutex);
    m_isPresent = present;
}

bool ScriptedHidDriver::isActive() const
{
    const std::lock_guard lock(m_mutex);
    return m_isActive;
}

int ScriptedHidDriver::prepare()
{
    return Success;
}

int ScriptedHidDriver::open()
{
    const std::lock_guard lock(m_mutex);
    return m_isPresent ? int(Success) : int(Absent);
}

int ScriptedHidDriver::setActive(bool on)
{
    const std::lock_guard lock(m_mutex);
    m_isActive = on;
    return Success;
}

int ScriptedHidDriver::listen(Report &report)
{
    std::unique_lock lock(m_mutex);
    if (!m_added.wait_for(lock, WaitingTime, [this] { return !m_steps.empty(); })) {
        return NothingYet;
    }
    const Step step = m_steps.front();
    m_steps.pop_front();
    report = step.report;
    return step.result;
}

int ScriptedHidDriver::close()
{
    return Success;
}

void ScriptedHidDriver::add(const Step &step)
{
    {
        const std::lock_guard lock(m_mutex);
        m_steps.push_back(step);
    }
    m_added.notify_one();
}

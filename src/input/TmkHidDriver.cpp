#include "TmkHidDriver.h"

#include <chrono>
#include <thread>

namespace {

enum { Absent = 1 };

/// How often an unplugged keypad is looked for, in pieces that let the thread be stopped.
constexpr auto Pause = std::chrono::milliseconds(200);
constexpr int PausesBetweenTries = 5;

} // namespace

TmkHidDriver::TmkHidDriver(const QString &library)
    : m_library(library)
{
    if (!m_library.load()) {
        return;
    }
    m_init = reinterpret_cast<InitFunction>(m_library.resolve("init_dev"));
    m_open = reinterpret_cast<OpenFunction>(m_library.resolve("open_hid"));
    m_active = reinterpret_cast<ActiveFunction>(m_library.resolve("active_hid"));
    m_close = reinterpret_cast<CloseFunction>(m_library.resolve("close_hid"));
    if (m_init && m_open && m_active && m_close) {
        m_listen = reinterpret_cast<ListenFunction>(m_library.resolve("listen_hid"));
    }
}

TmkHidDriver::~TmkHidDriver() = default;

int TmkHidDriver::prepare()
{
    return isInstalled() ? m_init(m_context.data()) : int(Absent);
}

int TmkHidDriver::open()
{
    return isInstalled() ? m_open(&m_handle) : int(Absent);
}

int TmkHidDriver::setActive(bool on)
{
    return m_isLost ? int(Success) : m_active(m_handle, on ? 1 : 0);
}

int TmkHidDriver::listen(Report &report)
{
    if (m_isLost) {
        return lookForItAgain();
    }
    unsigned char type = 0;
    unsigned short value = 0;
    const int result = m_listen(m_handle, &type, &value);
    if (result == Success) {
        report = {type, value};
    }
    if (result == Success || result == NothingYet) {
        return result;
    }
    m_close(&m_handle);
    m_isLost = true;
    // Nobody will say any more that the button was let go.
    report = {Button, 3};
    return Success;
}

int TmkHidDriver::lookForItAgain()
{
    std::this_thread::sleep_for(Pause);
    m_tries = (m_tries + 1) % PausesBetweenTries;
    if (m_tries == 0 && m_open(&m_handle) == Success) {
        m_isLost = m_active(m_handle, 1) != Success;
        if (m_isLost) {
            m_close(&m_handle);
        }
    }
    return NothingYet;
}

int TmkHidDriver::close()
{
    return m_isLost ? int(Success) : m_close(&m_handle);
}

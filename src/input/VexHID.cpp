#include "VexHID.h"

#include <QCoreApplication>

#include "VexHidDriver.h"

namespace {

constexpr ulong PushButton = 0x7A;
constexpr quint16 PushButtonMask = 2; ///< the bit is 0 while it is pressed
constexpr quint16 ButtonUp = 3;
constexpr unsigned long StopPollMs = 50;

} // namespace

VexHID *VexHID::m_Instance = nullptr;
std::unique_ptr<VexHidDriver> VexHID::s_nextDriver;

VexHID::VexHID(std::unique_ptr<VexHidDriver> driver)
    : m_driver(std::move(driver))
    , m_buttonWord(ButtonUp)
{
    m_thread.setObjectName(QStringLiteral("VexHid"));
}

VexHID::~VexHID() = default;

void VexHID::setDriver(std::unique_ptr<VexHidDriver> driver)
{
    s_nextDriver = std::move(driver);
}

VexHID *VexHID::Instance()
{
    if (!m_Instance) {
        m_Instance =
            new VexHID(s_nextDriver ? std::move(s_nextDriver) : VexHidDriver::forThisSystem());
        // Or else nobody would close the keypad.
        qAddPostRoutine(&VexHID::Destroy);
        m_Instance->moveToThread(&m_Instance->m_thread);
        m_Instance->m_thread.start(QThread::InheritPriority);
        QMetaObject::invokeMethod(m_Instance, "_Loop", Qt::QueuedConnection);
    }
    return m_Instance;
}

void VexHID::Destroy()
{
    if (!m_Instance) {
        return;
    }
    qRemovePostRoutine(&VexHID::Destroy);
    std::atomic<int> &state = m_Instance->m_loopState;
    // A loop that has not begun yet finds that it must not.
    int expected = Idle;
    if (!state.compare_exchange_strong(expected, StopRequested)) {
        expected = Running;
        state.compare_exchange_strong(expected, StopRequested);
        while (state != Idle) {
            QThread::msleep(StopPollMs);
        }
    }
    m_Instance->m_thread.quit();
    m_Instance->m_thread.wait();
    delete std::exchange(m_Instance, nullptr);
}

void VexHID::_Loop()
{
    int expected = Idle;
    if (!m_loopState.compare_exchange_strong(expected, Running)) {
        return;
    }
    m_buttonWord = ButtonUp;
    m_driver->prepare();
    if (m_driver->open() == VexHidDriver::Success) {
        if (m_driver->setActive(true) == VexHidDriver::Success) {
            listenUntilStopped();
            m_driver->setActive(false);
        }
        m_driver->close();
    }
    m_loopState = Idle;
}

void VexHID::listenUntilStopped()
{
    while (m_loopState == Running) {
        VexHidDriver::Report report;
        const int result = m_driver->listen(report);
        if (result == VexHidDriver::NothingYet) {
            continue;
        }
        if (result != VexHidDriver::Success) {
            return;
        }
        if (report.type == VexHidDriver::Button) {
            buttonChanged(report.value);
        } else if (report.type == VexHidDriver::Wheel) {
            Q_EMIT AdvanceWheel(static_cast<qint16>(report.value), 0);
        }
    }
}

void VexHID::buttonChanged(quint16 word)
{
    if ((word & PushButtonMask) != (m_buttonWord & PushButtonMask)) {
        if ((word & PushButtonMask) == 0) {
            Q_EMIT KeyPressed(PushButton);
        } else {
            Q_EMIT KeyReleased(PushButton);
        }
    }
    m_buttonWord = word;
}

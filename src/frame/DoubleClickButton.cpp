#include "DoubleClickButton.h"

#include <QApplication>

namespace {

constexpr int ClickMarginMs = 50;

} // namespace

DoubleClickButton::DoubleClickButton(QWidget *parent)
    : GestureButton(parent)
    , m_clickTimer(this)
{
    m_clickTimer.setSingleShot(true);
    // A coarse timer may fire before the platform gives up on a second tap.
    m_clickTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_clickTimer, &QTimer::timeout, this, &DoubleClickButton::timeout);
}

void DoubleClickButton::settleTap()
{
    if (m_clickTimer.isActive()) {
        stopTimers();
        timeout();
    }
}

void DoubleClickButton::touchStarted()
{
    if (m_doubleClickSeen) {
        m_doubleClickSeen = false;
        return;
    }
    m_clickTimer.start(QApplication::doubleClickInterval() + ClickMarginMs);
}

void DoubleClickButton::touchEnded(bool isTap)
{
    if (!isTap) {
        m_clickTimer.stop();
    }
}

void DoubleClickButton::doubleTapped()
{
    stopTimers();
    m_doubleClickSeen = true;
    Q_EMIT mouseDoubleClicked(lastPosition());
}

void DoubleClickButton::stopTimers()
{
    m_clickTimer.stop();
    m_doubleClickSeen = false;
}

void DoubleClickButton::timeout()
{
    closeTouch();
    Q_EMIT mouseSingleClicked(lastPosition());
}

#include "DelayClickButton.h"

namespace {

constexpr int LongPressMs = 300;

} // namespace

DelayClickButton::DelayClickButton(QWidget *parent)
    : GestureButton(parent)
    , m_delayTimer(this)
{
    m_delayTimer.setSingleShot(true);
    m_delayTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_delayTimer, &QTimer::timeout, this, &DelayClickButton::timeout);
}

void DelayClickButton::touchStarted()
{
    m_delayTimer.start(LongPressMs);
}

void DelayClickButton::touchEnded(bool isTap)
{
    const bool wasShort = m_delayTimer.isActive();
    stopTimers();
    if (isTap && wasShort) {
        Q_EMIT mouseSingleClicked(lastPosition());
    }
}

void DelayClickButton::stopTimers()
{
    m_delayTimer.stop();
}

void DelayClickButton::timeout()
{
    if (!isDown()) {
        return;
    }
    stopTimers();
    if (finishTouch()) {
        Q_EMIT mouseDelayClicked(lastPosition());
    }
}

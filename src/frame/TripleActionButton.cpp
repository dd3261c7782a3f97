#include "TripleActionButton.h"

#include <QApplication>

namespace {

constexpr int LongPressMs = 300;
constexpr int ClickMarginMs = 10;

} // namespace

TripleActionButton::TripleActionButton(QWidget *parent)
    : GestureButton(parent)
    , m_clickTimer(this)
    , m_delayTimer(this)
{
    for (QTimer *timer : {&m_clickTimer, &m_delayTimer}) {
        timer->setSingleShot(true);
        // A coarse timer may fire before the platform gives up on a second tap.
        timer->setTimerType(Qt::PreciseTimer);
        connect(timer, &QTimer::timeout, this, &TripleActionButton::timeout);
    }
}

void TripleActionButton::settleTap()
{
    if (m_clickTimer.isActive()) {
        stopTimers();
        Q_EMIT mouseSingleClicked(lastPosition());
    }
}

void TripleActionButton::touchStarted()
{
    if (m_doubleClickSeen) {
        m_doubleClickSeen = false;
        return;
    }
    m_delayTimer.start(LongPressMs);
    m_clickTimer.start(QApplication::doubleClickInterval() + ClickMarginMs);
}

void TripleActionButton::touchEnded(bool isTap)
{
    m_delayTimer.stop();
    if (!isTap) {
        m_clickTimer.stop();
    }
}

void TripleActionButton::doubleTapped()
{
    stopTimers();
    m_doubleClickSeen = true;
    Q_EMIT mouseDoubleClicked(lastPosition());
}

void TripleActionButton::stopTimers()
{
    m_clickTimer.stop();
    m_delayTimer.stop();
    m_doubleClickSeen = false;
}

void TripleActionButton::timeout()
{
    if (!isDown()) {
        closeTouch();
        Q_EMIT mouseSingleClicked(lastPosition());
        return;
    }
    stopTimers();
    if (finishTouch()) {
        Q_EMIT mouseDelayClicked(lastPosition());
    }
}

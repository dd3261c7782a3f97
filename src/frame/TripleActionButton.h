#pragma once

#include <QTimer>

#include "GestureButton.h"

/**
 * Tells a tap, a long press and a double tap apart.
 *
 * A tap is reported when the platform's double-click interval and 10 ms more have passed since its
 * press, a long press when the finger has stayed for 300 ms, a double tap with its second press,
 * which makes no long press then. A tap that a press elsewhere on the button follows is reported
 * with that press.
 */
class VEX_EXPORT TripleActionButton : public GestureButton
{
    Q_OBJECT

public:
    explicit TripleActionButton(QWidget *parent = nullptr);

Q_SIGNALS:
    /** A tap; @p position, in coordinates of the button, is that of its release. */
    void mouseSingleClicked(QPoint position);
    /** A long press; @p position is that of its press. */
    void mouseDelayClicked(QPoint position);
    /** A double tap; @p position is that of the second press. */
    void mouseDoubleClicked(QPoint position);

protected Q_SLOTS:
    /** The time of a touch, or that for a second one, has passed. */
    void timeout();

protected:
    void settleTap() override;
    void touchStarted() override;
    void touchEnded(bool isTap) override;
    void doubleTapped() override;
    void stopTimers() override;

private:
    QTimer m_clickTimer;
    QTimer m_delayTimer;
    bool m_doubleClickSeen = false;
};

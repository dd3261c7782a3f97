#pragma once

#include <QTimer>

#include "GestureButton.h"

/**
 * Tells a tap from a double tap: a tap is reported when the platform's double-click interval and
 * 50 ms more have passed since its press without a second one, whether the finger is still there
 * or not; a double tap with its second press. A tap that a press elsewhere on the button follows is
 * reported with that press.
 */
class VEX_EXPORT DoubleClickButton : public GestureButton
{
    Q_OBJECT

public:
    explicit DoubleClickButton(QWidget *parent = nullptr);

Q_SIGNALS:
    /** A tap; @p position, in coordinates of the button, is where the finger was last. */
    void mouseSingleClicked(QPoint position);
    /** A double tap; @p position is that of the second press. */
    void mouseDoubleClicked(QPoint position);

protected Q_SLOTS:
    /** The time for a second tap has passed. */
    void timeout();

protected:
    void settleTap() override;
    void touchStarted() override;
    void touchEnded(bool isTap) override;
    void doubleTapped() override;
    void stopTimers() override;

private:
    QTimer m_clickTimer;
    bool m_doubleClickSeen = false;
};

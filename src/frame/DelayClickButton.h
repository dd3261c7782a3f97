#pragma once

#include <QTimer>

#include "GestureButton.h"

/**
 * Tells a tap from a long press: a tap is reported with its release, a long press when the finger
 * has stayed for 300 ms. Of two quick taps each is reported.
 */
class VEX_EXPORT DelayClickButton : public GestureButton
{
    Q_OBJECT

public:
    explicit DelayClickButton(QWidget *parent = nullptr);

Q_SIGNALS:
    /** A tap; @p position, in coordinates of the button, is that of its release. */
    void mouseSingleClicked(QPoint position);
    /** A long press; @p position is that of its press. */
    void mouseDelayClicked(QPoint position);

protected Q_SLOTS:
    /** The time of a touch has passed. */
    void timeout();

protected:
    void touchStarted() override;
    void touchEnded(bool isTap) override;
    void stopTimers() override;

private:
    QTimer m_delayTimer;
};

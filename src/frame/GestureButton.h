#pragma once

#include <QPushButton>

#include "VexExport.h"

/**
 * What the buttons that tell gestures apart have in common: their look, and how one touch is
 * followed from its press to its end.
 *
 * A touch is reported once. It ends without a report when the finger leaves the button, coming back
 * does not resume it, and when the button is hidden or disabled or its window is taken away under
 * the finger: no timer runs and the button is not down then. The signals of QPushButton go on
 * beside the gestures, with the same rule: a touch that was a long press, or that has left, is
 * released() but never clicked().
 *
 * Only the left button of a mouse makes gestures. A touch arrives as the events of a mouse, the
 * second of two quick ones as a double click; further fingers on the button are not seen.
 *
 * The size hint is at least 48 x 48, so that a finger meets it. A text that is too long is cut with
 * an ellipsis at its end.
 */
class VEX_EXPORT GestureButton : public QPushButton
{
    Q_OBJECT

public:
    QSize sizeHint() const override;

protected:
    explicit GestureButton(QWidget *parent);

    /** Where the last press, release or double click was, in coordinates of the widget. */
    QPoint lastPosition() const { return m_position; }
    /**
     * Ends the touch: the button comes up and stays so until the next press, and nothing is
     * clicked. @return false when a slot has deleted the button.
     */
    [[nodiscard]] bool finishTouch();
    /** The touch has been reported: no second tap joins it any more. */
    void closeTouch() { m_isClosed = true; }

    /** A press follows: reports a tap that still waits for a second one, at lastPosition(). */
    virtual void settleTap() { }
    /** The press is remembered and about to be handed on. */
    virtual void touchStarted() = 0;
    /** The touch is over; @p isTap says that the finger was lifted on the button. */
    virtual void touchEnded(bool isTap) = 0;
    /** A second tap came in time; its press follows. */
    virtual void doubleTapped() { }
    /** Nothing may be reported later than now. */
    virtual void stopTimers() = 0;

    void initStyleOption(QStyleOptionButton *option) const override;
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    /** Over: the finger may still be down, but nothing comes of it any more. */
    enum class Touch { None, Held, Over };

    bool isLostBy(const QEvent &event) const;
    bool joinsLastTouch(const QMouseEvent &event) const;
    void remember(const QMouseEvent &event);
    [[nodiscard]] bool staysHeldDuring(void (GestureButton::*report)());

    QPoint m_position;
    quint64 m_time = 0; ///< of the same event
    Touch m_touch = Touch::None;
    bool m_isClosed = false;
};

#pragma once

#include <QObject>
#include <QPointF>

class QMouseEvent;
class QTouchEvent;
class QWidget;

/// Makes gestures of what fingers, or a mouse, do on a widget. Positions are the widget's.
class PlotGestures : public QObject
{
    Q_OBJECT

public:
    /// Belongs to @p widget.
    explicit PlotGestures(QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void dragged(QPointF distance);
    /// Two fingers have moved apart (more than 1) or together, in each direction.
    void pinched(QPointF centre, double horizontally, double vertically);
    void tapped(QPointF position);

private:
    bool touch(QTouchEvent &event);
    bool mouse(QMouseEvent &event);
    void press(QPointF position);
    void move(QPointF position);
    void pinch(const QTouchEvent &event);

    QPointF m_pressed;
    QPointF m_last;
    bool m_isDown = false;
    bool m_isTap = false; ///< the finger has not left its place yet
    bool m_isTouched = false; ///< a touch is under way, and what the mouse tells is its echo
};

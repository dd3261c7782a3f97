#include "Finger.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

namespace {

void send(QWidget *widget, QEvent::Type type)
{
    const QPointF middle = QRectF(widget->rect()).center().toPoint();
    const bool up = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, middle, widget->mapToGlobal(middle), Qt::LeftButton,
                      up ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

} // namespace

void Finger::press(QWidget *widget)
{
    send(widget, QEvent::MouseButtonPress);
}

void Finger::release(QWidget *widget)
{
    send(widget, QEvent::MouseButtonRelease);
}

void Finger::tap(QWidget *widget)
{
    press(widget);
    release(widget);
}

void Finger::doubleTap(QWidget *widget)
{
    tap(widget);
    send(widget, QEvent::MouseButtonDblClick);
    release(widget);
}

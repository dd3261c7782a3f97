#include "PlotGestures.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTouchEvent>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {

constexpr double tapSlop = 12; // pixels that a finger rolls about while it taps

/// How much farther apart two fingers are; 1 where they are too near each other to tell.
double spread(double before, double now)
{
    constexpr double least = 60; // pixels
    if (std::abs(before) < least || std::abs(now) < least) {
        return 1;
    }
    return std::clamp(std::abs(now / before), 0.2, 5.0);
}

} // namespace

PlotGestures::PlotGestures(QWidget *widget)
    : QObject(widget)
{
    widget->setAttribute(Qt::WA_AcceptTouchEvents);
    widget->installEventFilter(this);
}

bool PlotGestures::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        return touch(*static_cast<QTouchEvent *>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return mouse(*static_cast<QMouseEvent *>(event));
    default:
        return false;
    }
}

bool PlotGestures::touch(QTouchEvent &event)
{
    event.accept();
    m_isTouched = event.type() != QEvent::TouchEnd && event.type() != QEvent::TouchCancel;
    if (event.points().size() > 1) {
        m_isTap = false;
        m_isDown = false;
        pinch(event);
        return true;
    }
    const QPointF position = event.points().constFirst().position();
    if (event.type() == QEvent::TouchBegin) {
        press(position);
    } else if (m_isDown) {
        move(position);
    }
    if (!m_isTouched) {
        if (m_isDown && m_isTap && event.type() == QEvent::TouchEnd) {
            Q_EMIT tapped(position);
        }
        m_isDown = false;
    }
    return true;
}

bool PlotGestures::mouse(QMouseEvent &event)
{
    if (m_isTouched) {
        return true;
    }
    if (event.type() == QEvent::MouseMove) {
        if (m_isDown) {
            move(event.position());
        }
    } else if (event.type() != QEvent::MouseButtonRelease) {
        press(event.position());
    } else if (m_isDown) {
        m_isDown = false;
        if (m_isTap) {
            Q_EMIT tapped(event.position());
        }
    }
    return true;
}

void PlotGestures::press(QPointF position)
{
    m_pressed = position;
    m_last = position;
    m_isDown = true;
    m_isTap = true;
}

void PlotGestures::move(QPointF position)
{
    if (m_isTap && (position - m_pressed).manhattanLength() <= tapSlop) {
        return;
    }
    m_isTap = false;
    const QPointF distance = position - m_last;
    m_last = position;
    if (!distance.isNull()) {
        Q_EMIT dragged(distance);
    }
}

void PlotGestures::pinch(const QTouchEvent &event)
{
    const QEventPoint &one = event.points().at(0);
    const QEventPoint &other = event.points().at(1);
    const QPointF before = one.lastPosition() - other.lastPosition();
    const QPointF now = one.position() - other.position();
    const double horizontally = spread(before.x(), now.x());
    const double vertically = spread(before.y(), now.y());
    if (horizontally != 1 || vertically != 1) {
        Q_EMIT pinched((one.position() + other.position()) / 2, horizontally, vertically);
    }
}

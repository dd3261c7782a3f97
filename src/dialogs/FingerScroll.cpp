#include "FingerScroll.h"

#include <QAbstractScrollArea>
#include <QMouseEvent>
#include <QScroller>

FingerScroll::FingerScroll(QAbstractScrollArea *area)
    : QObject(area)
    , m_scroller(QScroller::scroller(area->viewport()))
{
    area->viewport()->installEventFilter(this);
}

bool FingerScroll::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return feed(*static_cast<QMouseEvent *>(event));
    default:
        return QObject::eventFilter(watched, event);
    }
}

bool FingerScroll::feed(const QMouseEvent &event)
{
    const bool dragging = m_scroller->state() == QScroller::Dragging;
    QScroller::Input input = QScroller::InputMove;
    if (event.type() == QEvent::MouseButtonPress) {
        input = QScroller::InputPress;
    } else if (event.type() == QEvent::MouseButtonRelease) {
        input = QScroller::InputRelease;
    } else if (!event.buttons().testFlag(Qt::LeftButton)) {
        return false;
    }
    m_scroller->handleInput(input, event.position(), qint64(event.timestamp()));
    return dragging || m_scroller->state() == QScroller::Dragging;
}

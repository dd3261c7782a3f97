#include "EventList.h"

#include <QEvent>
#include <QScroller>

#include <frame/ColorTheme.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kindRole = Qt::UserRole;

/// Not by colour alone, which not everybody can tell.
QString sign(RunEvent::Kind kind)
{
    switch (kind) {
    case RunEvent::Warning:
        return u"!"_s;
    case RunEvent::Failure:
        return u"\u2717"_s;
    default:
        return u"\u2022"_s;
    }
}

} // namespace

EventList::EventList(QWidget *parent)
    : QListWidget(parent)
{
    setObjectName(u"EventList"_s);
    setAccessibleName(tr("Events"));
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(NoSelection);
    setFocusPolicy(Qt::NoFocus);
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
}

void EventList::setEvents(const QVector<RunEvent> &events)
{
    clear();
    for (const RunEvent &event : events) {
        addEvent(event);
    }
}

void EventList::addEvent(const RunEvent &event)
{
    auto *item = new QListWidgetItem(
        u"%1 s   %2  %3"_s.arg(event.time, 8, 'f', 3).arg(sign(event.kind), event.text), this);
    item->setData(kindRole, event.kind);
    colourItem(item);
    scrollToBottom();
}

void EventList::changeEvent(QEvent *event)
{
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        for (int i = 0; i < count(); ++i) {
            colourItem(item(i));
        }
    } else if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(tr("Events"));
    }
}

void EventList::colourItem(QListWidgetItem *item)
{
    const char *const names[] = {"text", "warning", "fail"};
    const int kind = qBound(0, item->data(kindRole).toInt(), 2);
    item->setForeground(ColorTheme::current().color(names[kind]));
}

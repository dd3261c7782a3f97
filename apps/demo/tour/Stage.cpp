#include "Stage.h"

#include <QAbstractItemView>
#include <QDeadlineTimer>
#include <QPixmap>
#include <QScrollArea>
#include <QThread>
#include <QVariant>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned long glance = 25; // milliseconds between two looks
constexpr unsigned long tapTime = 60; // between two taps
constexpr int dragSteps = 8;
const QPoint nowhere(-1, -1);

QString plain(QString text)
{
    return text.remove(u'&').trimmed();
}

} // namespace

Stage::Stage(QWidget &window, const QString &pictureFolder)
    : m_window(window)
    , m_context(&window)
    , m_finger(window)
    , m_folder(pictureFolder)
{
}

void Stage::expect(const QString &what, const std::function<bool()> &condition,
                   int milliseconds) const
{
    const QDeadlineTimer deadline(milliseconds);
    while (!ask(condition)) {
        if (deadline.hasExpired()) {
            throw Missed {what};
        }
        QThread::msleep(glance);
    }
}

QWidget *Stage::shown(const QString &name) const
{
    const QList<QWidget *> found = m_window.findChildren<QWidget *>(name);
    for (QWidget *widget : found) {
        // A panel that is shut is visible, too, beside the window.
        const QRect place(widget->mapTo(&m_window, QPoint()), widget->size());
        if (widget->isVisible() && place.intersects(m_window.rect())) {
            return widget;
        }
    }
    return nullptr;
}

QString Stage::text(const QString &name) const
{
    const QWidget *widget = shown(name);
    return widget ? plain(widget->property("text").toString()) : QString();
}

void Stage::expectShown(const QString &name) const
{
    expect(u"%1 is shown"_s.arg(name), [&] { return shown(name) != nullptr; });
}

void Stage::expectGone(const QString &name) const
{
    expect(u"%1 is gone"_s.arg(name), [&] { return shown(name) == nullptr; });
}

void Stage::expectText(const QString &name, const QString &wanted) const
{
    expect(u"%1 says \"%2\""_s.arg(name, wanted), [&] {
        scrollTo(name);
        return text(name) == wanted;
    });
}

QWidget *Stage::target(const QString &name) const
{
    const QString button = name.section(u'|', 1);
    QWidget *widget = shown(name.section(u'|', 0, 0));
    if (!widget || button.isEmpty()) {
        return widget;
    }
    for (auto *candidate : widget->findChildren<QWidget *>()) {
        if (candidate->isVisible() && plain(candidate->property("text").toString()) == button) {
            return candidate;
        }
    }
    return nullptr;
}

/// As a person would, who looks for it.
void Stage::scrollTo(const QString &name) const
{
    for (QWidget *widget : m_window.findChildren<QWidget *>(name)) {
        for (QWidget *parent = widget; parent; parent = parent->parentWidget()) {
            auto *area = qobject_cast<QScrollArea *>(parent);
            if (area && widget->isVisible()) {
                area->ensureWidgetVisible(widget);
            }
        }
    }
}

/// Nowhere when there is no such widget, or a finger could not touch it.
QPoint Stage::middle(const QString &name) const
{
    scrollTo(name);
    const QWidget *widget = target(name);
    if (!widget || !widget->isEnabled()) {
        return nowhere;
    }
    const QPoint point = widget->mapTo(&m_window, widget->rect().center());
    const QWidget *hit = m_window.childAt(point);
    return hit && (hit == widget || widget->isAncestorOf(hit)) ? point : nowhere;
}

QPoint Stage::place(const QString &name) const
{
    return standing(name, [&] { return middle(name); });
}

QPoint Stage::standing(const QString &what, const std::function<QPoint()> &find) const
{
    QPoint last = nowhere;
    QPoint found = nowhere;
    expect(u"%1 can be touched"_s.arg(what), [&] {
        last = std::exchange(found, find());
        return found != nowhere && found == last;
    });
    return found;
}

/// Nowhere when there is no such row, or none that is to be seen.
QPoint Stage::row(const QString &list, const QString &text) const
{
    const auto *view = qobject_cast<QAbstractItemView *>(shown(list));
    for (int i = 0; view && i < view->model()->rowCount(view->rootIndex()); ++i) {
        const QModelIndex index = view->model()->index(i, 0, view->rootIndex());
        const QRect place = view->visualRect(index);
        if (index.data().toString().contains(text)
            && view->viewport()->rect().contains(place.center())) {
            const QPoint left(place.left() + qMin(100, place.width() / 2), place.center().y());
            return view->viewport()->mapTo(&m_window, left);
        }
    }
    return nowhere;
}

void Stage::tapRow(const QString &list, const QString &text)
{
    tapAt(standing(u"%1 in %2"_s.arg(text, list), [&] { return row(list, text); }));
}

void Stage::post(const std::function<void()> &action) const
{
    QMetaObject::invokeMethod(m_context, action, Qt::QueuedConnection);
}

void Stage::tap(const QString &name)
{
    tapAt(place(name));
}

void Stage::tapAt(QPoint position)
{
    // At once, so that a machine that halts in between makes no long press of it.
    post([this, position] { m_finger.press(position); });
    post([this, position] { m_finger.release(position); });
    QThread::msleep(tapTime);
}

void Stage::drag(QPoint from, QPoint to)
{
    post([this, from] { m_finger.press(from); });
    for (int i = 1; i <= dragSteps; ++i) {
        QThread::msleep(glance);
        post([this, point = from + (to - from) * i / dragSteps] { m_finger.move(point); });
    }
    post([this, to] { m_finger.release(to); });
}

void Stage::pinch(QPoint centre, int from, int to)
{
    const auto half = [](int distance) { return QPoint(distance / 2, 0); };
    post([=, this] { m_finger.pressTwo(centre - half(from), centre + half(from)); });
    for (int i = 1; i <= dragSteps; ++i) {
        QThread::msleep(glance);
        const QPoint now = half(from + (to - from) * i / dragSteps);
        post([=, this] { m_finger.moveTwo(centre - now, centre + now); });
    }
    post([=, this] { m_finger.releaseTwo(centre - half(to), centre + half(to)); });
}

void Stage::turnWheel(const QString &name, int notches)
{
    const QPoint point = place(name);
    for (int i = 0; i < qAbs(notches); ++i) {
        post([=, this] { m_finger.turnWheel(point, notches > 0 ? 1 : -1); });
        QThread::msleep(glance);
    }
}

void Stage::picture(const QString &name)
{
    constexpr int mostLooks = 12; // a live plot never stands still
    QImage image;
    for (int i = 0; i < mostLooks; ++i) {
        QThread::msleep(2 * glance);
        const QImage next = ask([this] { return m_window.grab().toImage(); });
        if (next == image) {
            break;
        }
        image = next;
    }
    const QString file = u"%1-%2.png"_s.arg(++m_pictures, 2, 10, QChar(u'0')).arg(name);
    if (!image.save(m_folder.filePath(file))) {
        throw Missed {u"%1 can be written"_s.arg(m_folder.filePath(file))};
    }
}

#include "Grabber.h"

#include "GalleryWindow.h"

#include <dialogs/QvexDialog.h>

#include <QApplication>
#include <QEventLoop>
#include <QPainter>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

void closeDialogs()
{
    while (QWidget *popup = QApplication::activePopupWidget()) {
        popup->close();
    }
    QvexDialog::cancellAllDialogBoxes();
    for (QWidget *widget : QApplication::allWidgets()) {
        if (auto *panel = qobject_cast<QvexDialog *>(widget); panel && panel->isVisible()) {
            panel->hide(); // one that is shown, not run
        }
    }
}

} // namespace

Grabber::Grabber(GalleryWindow &window, const QDir &directory, const QString &suffix)
    : m_window(window)
    , m_directory(directory)
    , m_suffix(suffix)
{
    qApp->installEventFilter(this);
}

QString Grabber::grabPage(int index)
{
    m_window.showPage(index);
    Page &page = *m_window.pages().at(static_cast<size_t>(index));
    const auto scenes = page.scenes();
    for (const Page::Scene &scene : scenes) {
        play(scene);
        const QString name = scene.name.isEmpty() ? page.name() : page.name() + u'-' + scene.name;
        if (QString error = save(m_picture, name); !error.isEmpty()) {
            return error;
        }
    }
    return {};
}

void Grabber::play(const Page::Scene &scene)
{
    QEventLoop loop;
    bool taken = false;
    QTimer::singleShot(scene.settle, Qt::PreciseTimer, this, [&] {
        m_picture = picture();
        taken = true;
        closeDialogs();
        loop.quit();
    });
    scene.play();
    if (!taken) {
        loop.exec();
    }
}

QPixmap Grabber::picture() const
{
    QPixmap picture = m_window.grab();
    QPainter painter(&picture);
    for (QWidget *widget : m_above) {
        if (widget && widget->isWindow() && widget->isVisible()) {
            const QPoint place = widget->mapToGlobal(QPoint()) - m_window.mapToGlobal(QPoint());
            painter.setClipping(false);
            if (!widget->mask().isEmpty()) {
                painter.setClipRegion(widget->mask().translated(place));
            }
            painter.drawPixmap(place, widget->grab());
        }
    }
    return picture;
}

QString Grabber::save(const QPixmap &picture, const QString &name) const
{
    const QString path = m_directory.filePath(name + m_suffix + u".png"_s);
    return picture.save(path, "PNG") ? QString() : u"can't write %1"_s.arg(path);
}

bool Grabber::eventFilter(QObject *watched, QEvent *event)
{
    const bool comesUp = event->type() == QEvent::Show || event->type() == QEvent::ZOrderChange;
    auto *widget = comesUp ? qobject_cast<QWidget *>(watched) : nullptr;
    if (widget && widget->isWindow() && widget != &m_window) {
        m_above.removeIf([widget](const auto &other) { return !other || other == widget; });
        m_above.append(widget);
    }
    return false;
}

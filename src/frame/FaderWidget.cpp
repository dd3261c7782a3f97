#include "FaderWidget.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int PaintIntervalMs = 33;
constexpr int Opaque = 255;

} // namespace

FaderWidget::FaderWidget(QWidget *parent)
    : QWidget(parent)
    , m_fadeColor(parent ? parent->palette().color(QPalette::Window) : QColor(Qt::white))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_NoMousePropagation);
    m_timer.setInterval(PaintIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, qOverload<>(&QWidget::update));
    if (parent) {
        resize(parent->size());
        parent->installEventFilter(this);
    }
}

void FaderWidget::startFadeIn()
{
    run(true);
    Q_EMIT fadeInStarted();
}

void FaderWidget::start()
{
    startFadeIn();
}

void FaderWidget::startFadeOut()
{
    run(false);
    Q_EMIT fadeOutStarted();
}

void FaderWidget::run(bool fadingIn)
{
    m_fadingIn = fadingIn;
    m_alpha = fadingIn ? Opaque : 0;
    m_timer.start();
    show();
    raise();
}

void FaderWidget::paintEvent(QPaintEvent *)
{
    QColor color = m_fadeColor;
    color.setAlpha(m_alpha);
    QPainter(this).fillRect(rect(), color);
    if (m_timer.isActive()) {
        step();
    }
}

void FaderWidget::step()
{
    const int size = PaintIntervalMs * Opaque / std::max(m_fadeDuration, 1);
    const int change = std::clamp(size, 1, Opaque);
    m_alpha = std::clamp(m_alpha + (m_fadingIn ? -change : change), 0, Opaque);
    if (m_alpha == (m_fadingIn ? 0 : Opaque)) {
        m_timer.stop();
        // Slots may do anything with the windows, which is no good inside a paint.
        QMetaObject::invokeMethod(this, &FaderWidget::finish, Qt::QueuedConnection);
    }
}

void FaderWidget::finish()
{
    if (m_timer.isActive() || isHidden()) {
        return; // started anew or closed meanwhile
    }
    const bool fadedIn = m_fadingIn;
    close();
    if (fadedIn) {
        Q_EMIT fadeInStopped();
    } else {
        Q_EMIT fadeOutStopped();
    }
}

bool FaderWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize) {
        resize(parentWidget()->size());
    }
    return QWidget::eventFilter(watched, event);
}

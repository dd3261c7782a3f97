#include "GestureButton.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QStyleOptionButton>

#include "ElidedText.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize FingerSize {48, 48};
constexpr QSize IconSize {16, 16};

} // namespace

GestureButton::GestureButton(QWidget *parent)
    : QPushButton(parent)
{
    setStyleSheet(u"QPushButton { background-color: none; border: 0px; }"_s);
    setIconSize(IconSize);
    setFocusPolicy(Qt::NoFocus);
}

QSize GestureButton::sizeHint() const
{
    return QPushButton::sizeHint().expandedTo(FingerSize);
}

/// With a style sheet, no style below it is asked where icon and text go.
void GestureButton::initStyleOption(QStyleOptionButton *option) const
{
    QPushButton::initStyleOption(option);
    option->text = elidedText(*option);
}

void GestureButton::remember(const QMouseEvent &event)
{
    m_position = event.position().toPoint();
    m_time = event.timestamp();
}

bool GestureButton::finishTouch()
{
    m_touch = Touch::Over;
    closeTouch();
    if (!isDown()) {
        return true;
    }
    const QPointer<GestureButton> self(this);
    setDown(false);
    Q_EMIT released();
    return !self.isNull();
}

bool GestureButton::isLostBy(const QEvent &event) const
{
    switch (event.type()) {
    case QEvent::Hide:
        return true;
    case QEvent::EnabledChange:
        return !isEnabled();
    case QEvent::WindowBlocked:
    case QEvent::WindowDeactivate:
        // The finger's release may go elsewhere now. A tap that is over keeps its report.
        return m_touch == Touch::Held;
    default:
        return false;
    }
}

bool GestureButton::event(QEvent *event)
{
    if (isLostBy(*event)) {
        stopTimers();
        if (m_touch == Touch::Held && !finishTouch()) {
            return true;
        }
    }
    return QPushButton::event(event);
}

/// Slots may delete the button, or open a dialog that keeps the release of the finger to itself.
bool GestureButton::staysHeldDuring(void (GestureButton::*report)())
{
    m_touch = Touch::Held;
    const QPointer<GestureButton> self(this);
    (this->*report)();
    return self && m_touch == Touch::Held;
}

void GestureButton::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QPushButton::mousePressEvent(event);
        return;
    }
    if (m_touch == Touch::Held && event->type() == QEvent::MouseButtonPress) {
        stopTimers(); // the release of the touch before was lost
    }
    if (staysHeldDuring(&GestureButton::settleTap)) {
        remember(*event);
        m_isClosed = false;
        touchStarted();
        QPushButton::mousePressEvent(event);
    }
}

void GestureButton::mouseMoveEvent(QMouseEvent *event)
{
    if (m_touch == Touch::Held && !hitButton(event->position().toPoint())) {
        stopTimers();
        if (!finishTouch()) {
            return;
        }
    }
    if (m_touch != Touch::Over) {
        QPushButton::mouseMoveEvent(event);
    }
}

void GestureButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        remember(*event);
        if (m_touch == Touch::Held) {
            const QPointer<GestureButton> self(this);
            touchEnded(hitButton(m_position));
            if (!self) {
                return;
            }
        }
        m_touch = Touch::None;
    }
    QPushButton::mouseReleaseEvent(event);
}

/// The platform also calls it a double click when the first touch was long, or slid off.
bool GestureButton::joinsLastTouch(const QMouseEvent &event) const
{
    const auto interval = static_cast<quint64>(QApplication::doubleClickInterval());
    return !m_isClosed || event.timestamp() - m_time > interval;
}

void GestureButton::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && joinsLastTouch(*event)) {
        remember(*event);
        if (!staysHeldDuring(&GestureButton::doubleTapped)) {
            return;
        }
    }
    // Skips the button's own handler: the widget's makes a press of it.
    QWidget::mouseDoubleClickEvent(event);
}

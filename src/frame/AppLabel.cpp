#include "AppLabel.h"

#include <QKeyEvent>
#include <QPainter>

#include "FrameLayout.h"

namespace {

constexpr int Padding = 4;
constexpr QColor PressedGround(255, 255, 255, 60);

} // namespace

AppLabel::AppLabel(int index, QWidget *parent)
    : QLabel(parent)
    , m_index(index)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setContentsMargins(Padding, FrameLayout::touchTarget - FrameLayout::barHeight, Padding, 0);
    setFocusPolicy(Qt::TabFocus);
}

QSize AppLabel::sizeHint() const
{
    return QLabel::sizeHint().expandedTo({FrameLayout::narrowestLabel, FrameLayout::touchTarget});
}

QSize AppLabel::minimumSizeHint() const
{
    return {FrameLayout::touchTarget, FrameLayout::touchTarget};
}

void AppLabel::mousePressEvent(QMouseEvent *event)
{
    setPressed(event->button() == Qt::LeftButton);
    event->setAccepted(m_isPressed);
}

void AppLabel::mouseReleaseEvent(QMouseEvent *event)
{
    const bool isTap = m_isPressed && rect().contains(event->position().toPoint());
    setPressed(false);
    if (isTap) {
        Q_EMIT labelClicked(m_index);
    }
}

void AppLabel::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter) {
        Q_EMIT labelClicked(m_index);
    } else {
        QLabel::keyPressEvent(event);
    }
}

/// The finger, or the keyboard's focus, shows on what is seen of the label. The text is drawn here
/// because under a style sheet no style cuts it.
void AppLabel::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    const QRect seen = rect().adjusted(1, contentsMargins().top() + 1, -1, -1);
    if (m_isPressed) {
        painter.fillRect(seen, PressedGround);
    }
    if (hasFocus()) {
        painter.setPen(QPen(Qt::white, 2));
        painter.drawRect(seen.adjusted(1, 1, -1, -1));
    }
    const QRect place = contentsRect();
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(place, int(alignment()),
                     fontMetrics().elidedText(text(), Qt::ElideRight, place.width()));
}

void AppLabel::setPressed(bool isPressed)
{
    m_isPressed = isPressed;
    update();
}

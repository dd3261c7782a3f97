#include "AppLabel.h"

#include <QKeyEvent>

#include "ElidedLabelStyle.h"
#include "FrameLayout.h"

namespace {

constexpr int Padding = 4;

} // namespace

AppLabel::AppLabel(int index, QWidget *parent)
    : QLabel(parent)
    , m_index(index)
{
    auto *cutting = new ElidedLabelStyle;
    cutting->setParent(this);
    setStyle(cutting);
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
    m_isPressed = event->button() == Qt::LeftButton;
    event->setAccepted(m_isPressed);
}

void AppLabel::mouseReleaseEvent(QMouseEvent *event)
{
    const bool isTap = m_isPressed && rect().contains(event->position().toPoint());
    m_isPressed = false;
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

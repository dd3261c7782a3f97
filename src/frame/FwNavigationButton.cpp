#include "FwNavigationButton.h"

#include <QEvent>
#include <QPainter>

#include "PanelLook.h"

FwNavigationButton::FwNavigationButton(ButtonSide side, QWidget *parent)
    : QPushButton(parent)
    , m_side(side)
{
    updateText();
}

QSize FwNavigationButton::sizeHint() const
{
    return {50, 60};
}

void FwNavigationButton::updateText()
{
    setAccessibleName(m_side == Left ? tr("Previous window") : tr("Next window"));
}

void FwNavigationButton::changeEvent(QEvent *event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        updateText();
    }
}

void FwNavigationButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor ink = PanelLook::drawPlate(painter, *this);
    // In a right-to-left layout the frame has changed their places.
    const bool pointsLeft = (m_side == Left) == (layoutDirection() == Qt::LeftToRight);
    PanelLook::drawChevron(painter, rect(), pointsLeft ? Qt::LeftArrow : Qt::RightArrow, ink);
}

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
    PanelLook::drawChevron(painter, rect(), m_side == Left ? Qt::LeftArrow : Qt::RightArrow, ink);
}

#include "SidePanel.h"

#include <QEvent>
#include <QStyle>

#include "PanelButton.h"
#include <dialogs/DialogTheme.h>

using namespace Qt::StringLiterals;

SidePanel::SidePanel(QWidget *parent)
    : SlidePanel(Side::Trailing, parent)
    , m_handle(new PanelButton(this))
{
    m_handle->setObjectName(u"PanelHandle"_s);
    updateHandle();
    addHandle(m_handle);
    connect(m_handle, &QAbstractButton::clicked, this, &SlidePanel::slideOut);
    connect(this, &SlidePanel::slideEnded, this, &SidePanel::tellChange);
    SlidePanel::layoutIn(parent->rect());
}

bool SidePanel::isPanelShown() const
{
    return !isOut();
}

QRect SidePanel::contentRect() const
{
    const int strip = DialogTheme::touchTarget + DialogTheme::spacing;
    return QStyle::visualRect(layoutDirection(), rect(), rect().adjusted(strip, 0, 0, 0));
}

QRect SidePanel::openGeometry(const QRect &area) const
{
    return area;
}

/// Points where the panel goes.
void SidePanel::updateHandle()
{
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    m_handle->setDirection(isMirrored ? Qt::LeftArrow : Qt::RightArrow);
    m_handle->setAccessibleName(tr("Close panel"));
    const QSize size = m_handle->sizeHint();
    const QRect place(QPoint(DialogTheme::spacing / 2, (height() - size.height()) / 2), size);
    m_handle->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
}

void SidePanel::tellChange(bool isIn)
{
    if (m_wasIn != isIn) {
        m_wasIn = isIn;
        Q_EMIT panelShown(isIn);
    }
}

void SidePanel::resizeEvent(QResizeEvent *event)
{
    SlidePanel::resizeEvent(event);
    updateHandle();
}

bool SidePanel::event(QEvent *event)
{
    const bool handled = SlidePanel::event(event);
    if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::LanguageChange) {
        updateHandle();
    }
    return handled;
}

#include "AppCustomWidget.h"

#include <QEvent>
#include <QStyle>

using namespace Qt::StringLiterals;

AppCustomWidget::AppCustomWidget(QWidget *parent)
    : SidePanel(parent)
{
    setObjectName(u"AppCustomWidgetFrame"_s);
    connect(this, &SidePanel::panelShown, this, &AppCustomWidget::customPanelShown);
}

bool AppCustomWidget::registerWidget(QWidget *widget)
{
    if (!widget) {
        return false;
    }
    m_contents.removeAll(nullptr);
    m_contents.append(widget);
    widget->setParent(this);
    placeContents();
    widget->show();
    widget->raise();
    return true;
}

void AppCustomWidget::showPanel()
{
    slideIn();
}

void AppCustomWidget::hidePanel()
{
    slideOut();
}

void AppCustomWidget::placeContents()
{
    const QRect place = contentRect();
    for (const QPointer<QWidget> &widget : std::as_const(m_contents)) {
        if (widget && widget->parentWidget() == this) {
            const QSize size = place.size().boundedTo(widget->maximumSize());
            widget->setGeometry(
                QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, size, place));
        }
    }
}

void AppCustomWidget::resizeEvent(QResizeEvent *event)
{
    SidePanel::resizeEvent(event);
    placeContents();
}

bool AppCustomWidget::event(QEvent *event)
{
    const bool handled = SidePanel::event(event);
    if (event->type() == QEvent::LayoutDirectionChange) {
        placeContents();
    }
    return handled;
}

#include "ElidedButtonStyle.h"

#include <QHelpEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionButton>

#include "ElidedText.h"
#include "ProxyBase.h"

namespace {

int roomForText(const QPushButton &button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    option.icon = button.icon();
    option.iconSize = button.iconSize();
    option.text = button.text();
    option.rect = button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button);
    return roomForText(option);
}

} // namespace

ElidedButtonStyle::ElidedButtonStyle(QStyle *base)
    : QProxyStyle(proxyBase(base))
{
}

void ElidedButtonStyle::drawControl(ControlElement element, const QStyleOption *option,
                                    QPainter *painter, const QWidget *widget) const
{
    const auto *label = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (element != CE_PushButtonLabel || !label || label->icon.isNull()) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionButton fitting = *label;
    fitting.text = elidedText(*label);
    QProxyStyle::drawControl(element, &fitting, painter, widget);
}

void ElidedButtonStyle::drawItemText(QPainter *painter, const QRect &rect, int flags,
                                     const QPalette &palette, bool enabled, const QString &text,
                                     QPalette::ColorRole textRole) const
{
    const QString fitting =
        elidedText(painter->fontMetrics(), text, Qt::ElideRight, rect.width(), flags);
    QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, fitting, textRole);
}

void ElidedButtonStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QPushButton *>(widget)) {
        widget->installEventFilter(this);
    }
}

void ElidedButtonStyle::unpolish(QWidget *widget)
{
    widget->removeEventFilter(this);
    QProxyStyle::unpolish(widget);
}

bool ElidedButtonStyle::eventFilter(QObject *watched, QEvent *event)
{
    auto *button = qobject_cast<QPushButton *>(watched);
    if (button && event->type() == QEvent::ToolTip) {
        return showWholeText(button, *static_cast<QHelpEvent *>(event), button->text(),
                             roomForText(*button));
    }
    return QProxyStyle::eventFilter(watched, event);
}

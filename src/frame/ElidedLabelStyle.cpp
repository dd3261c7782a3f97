#include "ElidedLabelStyle.h"

#include <QHelpEvent>
#include <QLabel>
#include <QPainter>

#include "ElidedText.h"
#include "ProxyBase.h"

namespace {

bool isDrawnByStyle(const QLabel &label)
{
    const Qt::TextFormat format = label.textFormat();
    const bool isPlain =
        format == Qt::PlainText || (format == Qt::AutoText && !Qt::mightBeRichText(label.text()));
    return isPlain && !label.wordWrap()
        && (label.textInteractionFlags() & Qt::TextSelectableByMouse) == 0;
}

} // namespace

ElidedLabelStyle::ElidedLabelStyle(QStyle *base)
    : QProxyStyle(proxyBase(base))
{
}

void ElidedLabelStyle::drawItemText(QPainter *painter, const QRect &rect, int flags,
                                    const QPalette &palette, bool enabled, const QString &text,
                                    QPalette::ColorRole textRole) const
{
    const QString fitting =
        elidedText(painter->fontMetrics(), text, Qt::ElideMiddle, rect.width(), flags);
    QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, fitting, textRole);
}

void ElidedLabelStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QLabel *>(widget)) {
        widget->installEventFilter(this);
    }
}

void ElidedLabelStyle::unpolish(QWidget *widget)
{
    widget->removeEventFilter(this);
    QProxyStyle::unpolish(widget);
}

bool ElidedLabelStyle::eventFilter(QObject *watched, QEvent *event)
{
    auto *label = qobject_cast<QLabel *>(watched);
    if (label && event->type() == QEvent::ToolTip && isDrawnByStyle(*label)) {
        const int width = label->contentsRect().width() - 2 * label->margin();
        return showWholeText(label, *static_cast<QHelpEvent *>(event), label->text(), width);
    }
    return QProxyStyle::eventFilter(watched, event);
}

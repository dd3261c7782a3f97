#include "ElidedText.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QStringList>
#include <QStyleOptionButton>
#include <QToolTip>
#include <QWidget>

namespace {

/// What the styles of Qt leave between a button's icon and its text.
constexpr int IconSpacing = 4;

/// Without the "&" of its mnemonics.
QString readable(const QString &text)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == u'&' && i + 1 < text.size()) {
            ++i;
        }
        result += text.at(i);
    }
    return result;
}

} // namespace

QString elidedText(const QFontMetrics &metrics, const QString &text, Qt::TextElideMode mode,
                   int width, int flags)
{
    if ((flags & Qt::TextWordWrap) != 0) {
        return text;
    }
    const bool hasMnemonics = (flags & (Qt::TextShowMnemonic | Qt::TextHideMnemonic)) != 0;
    QStringList lines = text.split(u'\n');
    for (QString &line : lines) {
        line = metrics.elidedText(line, mode, width, hasMnemonics ? Qt::TextShowMnemonic : 0);
    }
    return lines.join(u'\n');
}

QString elidedText(const QStyleOptionButton &button)
{
    return elidedText(button.fontMetrics, button.text, Qt::ElideRight, roomForText(button),
                      Qt::TextShowMnemonic);
}

int roomForText(const QStyleOptionButton &button)
{
    return button.rect.width() - (button.icon.isNull() ? 0 : button.iconSize.width() + IconSpacing);
}

bool showWholeText(QWidget *widget, const QHelpEvent &event, const QString &text, int width)
{
    const QFontMetrics metrics = widget->fontMetrics();
    if (!widget->toolTip().isEmpty()
        || elidedText(metrics, text, Qt::ElideRight, width, Qt::TextShowMnemonic) == text) {
        return false;
    }
    QToolTip::showText(event.globalPos(), readable(text).toHtmlEscaped(), widget);
    return true;
}

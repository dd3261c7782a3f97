#include "ThousandSeparators.h"

namespace {

constexpr QChar Separator = u' ';
constexpr qsizetype GroupSize = 3;

bool hasSign(QStringView text)
{
    return text.startsWith(u'-') || text.startsWith(u'+');
}

/// Appends digits of which the first @p firstGroup, 0 to 3 of them, make a group of their own.
void appendGrouped(QString &result, QStringView digits, qsizetype firstGroup)
{
    for (qsizetype i = 0; i < digits.size(); ++i) {
        if (i > 0 && (i - firstGroup) % GroupSize == 0) {
            result += Separator;
        }
        result += digits[i];
    }
}

} // namespace

QString ThousandSeparators::added(const QString &text)
{
    if (text.contains(Separator)) {
        return added(removed(text));
    }
    QStringView rest(text);
    QString result;
    result.reserve(2 + text.size() + text.size() / GroupSize);
    if (hasSign(rest)) {
        result += rest.front();
        rest = rest.mid(1);
    }
    const qsizetype point = rest.indexOf(u'.');
    const QStringView whole = point < 0 ? rest : rest.first(point);
    if (whole.isEmpty()) {
        result += u'0';
    }
    appendGrouped(result, whole, whole.size() % GroupSize);
    if (point >= 0) {
        result += u'.';
        appendGrouped(result, rest.mid(point + 1), 0);
    }
    return result;
}

QString ThousandSeparators::removed(const QString &text)
{
    QString bare = text;
    bare.remove(Separator);
    return bare;
}

QString ThousandSeparators::padded(const QString &text, int digits)
{
    const qsizetype first = hasSign(text) ? 1 : 0;
    const qsizetype point = text.indexOf(u'.');
    const qsizetype missing = digits - ((point < 0 ? text.size() : point) - first);
    QString result = text;
    if (missing > 0) {
        result.insert(first, QString(missing, u'0'));
    }
    return result;
}

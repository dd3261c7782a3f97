#include "NumericText.h"

#include <algorithm>

namespace {

qsizetype skipSpaces(const QString &text, qsizetype from)
{
    while (from < text.size() && text.at(from) == u' ') {
        ++from;
    }
    return from;
}

qsizetype skipOne(const QString &text, qsizetype from, char16_t character)
{
    return from < text.size() && text.at(from) == character ? from + 1 : from;
}

} // namespace

bool NumericText::isEmptyEntry(const QString &text)
{
    qsizetype at = skipSpaces(text, 0);
    at = skipOne(text, at, u'-');
    at = skipOne(text, at, u'.');
    return skipSpaces(text, at) == text.size();
}

bool NumericText::startsWithMinus(const QString &text)
{
    const auto first = std::find_if_not(text.cbegin(), text.cend(),
                                        [](QChar character) { return character.isSpace(); });
    return first != text.cend() && *first == u'-';
}

int NumericText::digitsAfterPoint(const QString &text)
{
    const qsizetype point = text.indexOf(u'.');
    if (point < 0) {
        return 0;
    }
    const auto begin = text.cbegin() + point + 1;
    const auto end =
        std::find_if_not(begin, text.cend(), [](QChar character) { return character.isDigit(); });
    return int(end - begin);
}

QValidator::State NumericText::worse(QValidator::State one, QValidator::State other)
{
    return std::min(one, other);
}

void NumericText::leaveSpecialText(const QString &specialText, QString &input, int &pos)
{
    if (pos < 1 || pos > input.size() || input.size() != specialText.size() + 1) {
        return;
    }
    const QChar typed = input.at(pos - 1);
    const QStringView all(input);
    const bool isTypedOntoIt = all.first(pos - 1) == QStringView(specialText).first(pos - 1)
        && all.sliced(pos) == QStringView(specialText).sliced(pos - 1);
    if (isTypedOntoIt && typed.isDigit()) {
        input = typed;
        pos = 1;
    }
}

#include "DigitCursor.h"

#include <algorithm>

namespace {

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

qsizetype countDigits(QStringView text)
{
    return std::count_if(text.cbegin(), text.cend(), isDigit);
}

qsizetype pointOf(QStringView text)
{
    const qsizetype point = text.indexOf(u'.');
    return point < 0 ? text.size() : point;
}

/// The first digit at @p index or beyond it in a direction; -1 when there is none.
qsizetype digitFrom(QStringView text, qsizetype index, int direction)
{
    while (index >= 0 && index < text.size()) {
        if (isDigit(text[index])) {
            return index;
        }
        index += direction;
    }
    return -1;
}

} // namespace

void DigitCursor::select(QStringView text, qsizetype index)
{
    m_position = int(index);
    if (index >= 0) {
        const qsizetype point = pointOf(text);
        m_exponent = index < point ? int(countDigits(text.sliced(index + 1, point - index - 1)))
                                   : -int(countDigits(text.sliced(point, index + 1 - point)));
    }
}

void DigitCursor::place(QStringView text, qsizetype index)
{
    const qsizetype start =
        std::clamp<qsizetype>(index, 0, std::max<qsizetype>(text.size(), 1) - 1);
    const qsizetype left = digitFrom(text, start, -1);
    select(text, left >= 0 ? left : digitFrom(text, start, 1));
}

void DigitCursor::move(QStringView text, int direction)
{
    const qsizetype next = digitFrom(text, m_position + direction, direction);
    if (next >= 0) {
        select(text, next);
    } else {
        place(text, m_position);
    }
}

void DigitCursor::follow(QStringView text)
{
    if (!isOnDigit()) {
        return;
    }
    int exponent = int(countDigits(text.first(pointOf(text)))) - 1;
    qsizetype nearest = -1;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!isDigit(text[i])) {
            continue;
        }
        nearest = i;
        if (exponent <= m_exponent) {
            break;
        }
        --exponent;
    }
    select(text, nearest);
}

#include "NumericField.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int MostDecimals = 15;

/// The Gray codes of the digits 0 to 3, and back: the code is its own inverse.
QString recoded(QString digits)
{
    for (QChar &digit : digits) {
        const int number = digit.digitValue();
        digit = QChar(u'0' + (number ^ (number >> 1)));
    }
    return digits;
}

bool isSeparator(QChar character)
{
    return character.isSpace();
}

} // namespace

NumericField::NumericField(Notation notation)
    : m_notation(notation)
    , m_isSigned(notation == Decimal)
    , m_maximum(DecimalNumber::fromUnsigned(std::numeric_limits<quint64>::max()))
{
}

int NumericField::radix() const
{
    switch (m_notation) {
    case Hexadecimal:
        return 16;
    case Binary:
        return 2;
    case Base4:
    case CodingPam4:
        return 4;
    default:
        return 10;
    }
}

void NumericField::setDecimals(int decimals)
{
    m_decimals = m_notation == Decimal ? std::clamp(decimals, 0, MostDecimals) : 0;
    setValue(m_value);
}

void NumericField::setMinimum(DecimalNumber minimum)
{
    m_minimum = minimum;
    setValue(m_value);
}

void NumericField::setMaximum(DecimalNumber maximum)
{
    m_maximum = maximum;
    setValue(m_value);
}

void NumericField::setValue(DecimalNumber value)
{
    m_value = clamped(value).rounded(m_decimals);
}

DecimalNumber NumericField::clamped(DecimalNumber value) const
{
    return std::max(m_minimum, std::min(value, m_maximum));
}

QString NumericField::textOf(DecimalNumber value) const
{
    if (m_notation == Decimal || m_notation == Password) {
        return value.toText(m_decimals);
    }
    const QString digits = QString::number(value.toUnsigned(), radix()).toUpper();
    const QString padded = digits.rightJustified(this->digits(), u'0');
    return m_notation == CodingPam4 ? recoded(padded) : padded;
}

int NumericField::digits() const
{
    if (m_notation == Decimal) {
        const DecimalNumber largest = std::max(m_maximum, -m_minimum);
        return int(largest.toText(m_decimals).size()) - (m_decimals > 0 ? 1 : 0);
    }
    return int(QString::number(m_maximum.toUnsigned(), radix()).size());
}

QString NumericField::withoutSeparators(const QString &text)
{
    QString bare = text;
    bare.removeIf(isSeparator);
    bare.replace(u',', u'.');
    return bare;
}

std::optional<DecimalNumber> NumericField::parse(const QString &text) const
{
    const QString bare = withoutSeparators(text);
    if (m_notation == Decimal) {
        return DecimalNumber::fromText(bare);
    }
    const bool isClean = std::all_of(bare.cbegin(), bare.cend(),
                                     [this](QChar character) { return isAllowed(character); });
    bool isNumber = false;
    const quint64 number = (m_notation == CodingPam4 && isClean ? recoded(bare) : bare)
                               .toULongLong(&isNumber, radix());
    if (!isClean || !isNumber) {
        return {};
    }
    return DecimalNumber::fromUnsigned(number);
}

bool NumericField::isAllowed(QChar character) const
{
    if (m_notation == Password) {
        return character >= u'0' && character <= u'9';
    }
    if (m_notation == Decimal && (character == u'.' || character == u',')) {
        return m_decimals > 0;
    }
    if (m_notation == Decimal && character == u'-') {
        return mayBeNegative();
    }
    if (m_notation == Decimal && character == u'+') {
        return true;
    }
    bool isDigit = false;
    QString(character).toInt(&isDigit, radix());
    return isDigit && character != u'-' && character != u'+';
}

NumericField::Verdict NumericField::check(const QString &text) const
{
    if (m_notation == Password) {
        return {};
    }
    const QString bare = withoutSeparators(text);
    for (const QChar character : bare) {
        if (character == u'.' && m_decimals == 0) {
            return {Verdict::Refused, tr("Whole numbers only")};
        }
        if (character == u'-' && !mayBeNegative()) {
            return {Verdict::Refused, tr("No negative values")};
        }
        if (!isAllowed(character)) {
            return {Verdict::Refused, tr("\"%1\" is no digit here").arg(character)};
        }
    }
    if (bare.isEmpty() || bare == u"-" || bare == u"." || bare == u"-.") {
        return {Verdict::Unfinished, tr("Enter a number")};
    }
    const qsizetype point = bare.indexOf(u'.');
    if (point >= 0 && bare.size() - point - 1 > m_decimals) {
        return {Verdict::Refused, tr("Digits after the point: %1 at most").arg(m_decimals)};
    }
    if (const auto number = parse(text)) {
        return checkNumber(*number, bare);
    }
    return {Verdict::Refused, tr("Not a number in the range")};
}

NumericField::Verdict NumericField::checkNumber(DecimalNumber number, const QString &text) const
{
    // A bound as it is shown is in the range, even if rounding has carried it out.
    const bool isAbove = number > m_maximum && number != m_maximum.rounded(m_decimals);
    const bool isBelow = number < m_minimum && number != m_minimum.rounded(m_decimals);
    if (!isAbove && !isBelow) {
        return {};
    }
    const QString reason = isAbove ? tr("The largest value is %1").arg(textOf(m_maximum))
                                   : tr("The smallest value is %1").arg(textOf(m_minimum));
    const qsizetype point = text.indexOf(u'.');
    const bool isNegative = text.startsWith(u'-') || m_maximum.isNegative();
    const DecimalNumber magnitude = number.isNegative() ? -number : number;
    const bool mayGrow = canGrowIntoRange(magnitude, point < 0 ? 0 : int(text.size() - point - 1),
                                          point >= 0, isNegative);
    return {mayGrow ? Verdict::Unfinished : Verdict::Refused, reason};
}

/// Whether digits behind what was typed, and a point where there is none, can lead into the range.
bool NumericField::canGrowIntoRange(DecimalNumber magnitude, int decimalsTyped, bool hasPoint,
                                    bool isNegative) const
{
    const DecimalNumber smallest = isNegative ? -m_maximum : m_minimum;
    const DecimalNumber largest = isNegative ? -m_minimum : m_maximum;
    if (hasPoint) {
        return decimalsTyped < m_decimals && magnitude <= largest
            && magnitude + DecimalNumber::powerOfTen(-decimalsTyped) > smallest;
    }
    // With some more digits it lies from "low" to below "high".
    DecimalNumber low = magnitude;
    DecimalNumber high = magnitude + DecimalNumber::fromInt(1);
    for (int digitsAdded = 0; digitsAdded < digits() && low <= largest; ++digitsAdded) {
        if (high > smallest) {
            return true;
        }
        low = low.times(radix());
        high = high.times(radix());
    }
    return low <= largest && high > smallest;
}

bool NumericField::setText(const QString &text)
{
    const auto number = parse(text);
    if (!number || check(text).state != Verdict::Valid) {
        return false;
    }
    setValue(*number);
    return true;
}

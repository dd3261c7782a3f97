#include "DecimalNumber.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

__extension__ using Wide = __int128;
__extension__ using UnsignedWide = unsigned __int128;

constexpr Wide One = Wide(1'000'000'000) * 1'000'000'000;
constexpr Wide Limit = (Wide(1) << 64) * One;

} // namespace

/// 10 to the power of an exponent, in units.
DecimalNumber::Units DecimalNumber::unit(int exponent)
{
    Units result = 1;
    for (int i = -Decimals; i < exponent; ++i) {
        result *= 10;
    }
    return result;
}

DecimalNumber DecimalNumber::clamped(Units units)
{
    DecimalNumber number;
    number.m_units = std::clamp(units, -Limit, Limit);
    return number;
}

DecimalNumber DecimalNumber::fromInt(qint64 value)
{
    return clamped(Units(value) * One);
}

DecimalNumber DecimalNumber::fromUnsigned(quint64 value)
{
    return clamped(Units(value) * One);
}

DecimalNumber DecimalNumber::fromDouble(double value)
{
    if (std::isnan(value)) {
        return {};
    }
    constexpr double limit = 18446744073709551616.0; // 2^64
    if (std::abs(value) >= limit) {
        return clamped(value < 0 ? -Limit : Limit);
    }
    const QString text = QString::number(value, 'f', QLocale::FloatingPointShortest);
    const qsizetype point = text.indexOf(u'.');
    // Digits beyond the last one kept are less than anything that is shown.
    return fromText(point < 0 ? QStringView(text) : QStringView(text).left(point + 1 + Decimals))
        .value_or(DecimalNumber());
}

std::optional<DecimalNumber> DecimalNumber::fromText(QStringView text)
{
    const bool isNegative = text.startsWith(u'-');
    if (isNegative || text.startsWith(u'+')) {
        text = text.sliced(1);
    }
    UnsignedWide mantissa = 0;
    int digits = 0;
    int decimals = -1; // no point yet
    for (const QChar character : text) {
        if (character == u'.' && decimals < 0) {
            decimals = 0;
            continue;
        }
        if (character < u'0' || character > u'9' || decimals == Decimals
            || mantissa > UnsignedWide(Limit)) {
            return {};
        }
        mantissa = mantissa * 10 + UnsignedWide(character.unicode() - u'0');
        ++digits;
        decimals += decimals < 0 ? 0 : 1;
    }
    if (digits == 0) {
        return {};
    }
    for (int i = std::max(decimals, 0); i < Decimals; ++i) {
        if (mantissa > UnsignedWide(Limit)) {
            return {};
        }
        mantissa *= 10;
    }
    if (mantissa > UnsignedWide(Limit)) {
        return {};
    }
    return clamped(isNegative ? -Units(mantissa) : Units(mantissa));
}

DecimalNumber DecimalNumber::powerOfTen(int exponent)
{
    Q_ASSERT(exponent >= -Decimals && exponent <= 19);
    return clamped(unit(exponent));
}

QString DecimalNumber::toText(int decimals) const
{
    Q_ASSERT(decimals >= 0 && decimals <= Decimals);
    UnsignedWide rest = UnsignedWide(rounded(decimals).m_units < 0 ? -rounded(decimals).m_units
                                                                   : rounded(decimals).m_units);
    rest /= UnsignedWide(unit(-decimals));
    QString digits;
    while (rest > 0 || digits.size() <= decimals) {
        digits.prepend(QChar(u'0' + int(rest % 10)));
        rest /= 10;
    }
    if (decimals > 0) {
        digits.insert(digits.size() - decimals, u'.');
    }
    return rounded(decimals).isNegative() ? u'-' + digits : digits;
}

double DecimalNumber::toDouble() const
{
    return toText(Decimals).toDouble();
}

qint64 DecimalNumber::toInt() const
{
    constexpr Units least = std::numeric_limits<qint64>::min();
    constexpr Units most = std::numeric_limits<qint64>::max();
    return static_cast<qint64>(std::clamp(m_units / One, least, most));
}

quint64 DecimalNumber::toUnsigned() const
{
    constexpr Units most = std::numeric_limits<quint64>::max();
    return static_cast<quint64>(std::clamp(m_units / One, Units(0), most));
}

bool DecimalNumber::fits(int decimals) const
{
    return m_units % unit(-decimals) == 0;
}

DecimalNumber DecimalNumber::rounded(int decimals) const
{
    const Units last = unit(-decimals);
    const Units half = m_units < 0 ? -(last / 2) : last / 2;
    return clamped((m_units + half) / last * last);
}

DecimalNumber DecimalNumber::operator+(DecimalNumber other) const
{
    return clamped(m_units + other.m_units);
}

DecimalNumber DecimalNumber::operator-(DecimalNumber other) const
{
    return clamped(m_units - other.m_units);
}

DecimalNumber DecimalNumber::operator-() const
{
    return clamped(-m_units);
}

DecimalNumber DecimalNumber::times(qint64 factor) const
{
    Units product = 0;
    if (__builtin_mul_overflow(m_units, Units(factor), &product)) {
        return clamped((m_units < 0) == (factor < 0) ? Limit : -Limit);
    }
    return clamped(product);
}

std::optional<DecimalNumber> DecimalNumber::shifted(int exponent) const
{
    Units units = m_units;
    for (int i = exponent; i < 0; ++i) {
        if (units % 10 != 0) {
            return {};
        }
        units /= 10;
    }
    for (int i = 0; i < exponent; ++i) {
        if (__builtin_mul_overflow(units, Units(10), &units) || units > Limit || units < -Limit) {
            return {};
        }
    }
    return clamped(units);
}

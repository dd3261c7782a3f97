#include "QvexExpValidator.h"

#include <algorithm>
#include <array>
#include <optional>

#include "NumericText.h"

namespace {

bool isSeparator(QChar character)
{
    return character == u'.' || character == u'E' || character == u'e';
}

bool isSign(QChar character)
{
    return character == u'+' || character == u'-';
}

/// Mantissa, fraction and exponent; nothing when there are more or fewer parts.
std::optional<std::array<QStringView, 3>> partsOf(const QString &input)
{
    const auto first = std::find_if(input.cbegin(), input.cend(), isSeparator);
    if (first == input.cend()) {
        return {};
    }
    const auto second = std::find_if(first + 1, input.cend(), isSeparator);
    if (second == input.cend() || std::any_of(second + 1, input.cend(), isSeparator)) {
        return {};
    }
    return {{{{input.cbegin(), first}, {first + 1, second}, {second + 1, input.cend()}}}};
}

QString withoutSpaces(QStringView text)
{
    QString result = text.toString();
    result.remove(u' ');
    return result;
}

/// Spaces, a sign, and at least one space: digits may still come.
bool isLoneSign(QStringView part, bool mayBeNegative)
{
    const auto sign =
        std::find_if(part.begin(), part.end(), [](QChar character) { return character != u' '; });
    return sign != part.end() && isSign(*sign) && (mayBeNegative || *sign == u'+')
        && sign + 1 != part.end()
        && std::all_of(sign + 1, part.end(), [](QChar character) { return character == u' '; });
}

} // namespace

QvexExpValidator::QvexExpValidator(QObject *parent)
    : QValidator(parent)
{
}

void QvexExpValidator::setMinimum(double minimum)
{
    m_minimum = minimum;
    m_negativeExponentAllowed = !(m_maximum <= -1.0 || minimum >= 1.0);
    m_negativeMantissaAllowed = minimum < 0 || m_maximum < 0;
}

void QvexExpValidator::setMaximum(double maximum)
{
    m_maximum = maximum;
    m_negativeExponentAllowed = !(maximum <= -1.0 || m_minimum >= 1.0);
    m_negativeMantissaAllowed = m_negativeMantissaAllowed || m_minimum < 0 || maximum < 0;
}

void QvexExpValidator::setDecimals(int decimals)
{
    m_decimals = decimals;
}

QValidator::State QvexExpValidator::validate(QString &input, int &) const
{
    const auto parts = partsOf(input);
    if (!parts) {
        return Invalid;
    }
    const auto &[mantissa, fraction, exponent] = *parts;
    if (std::any_of(fraction.begin(), fraction.end(), isSign)) {
        return Invalid;
    }
    State state = validatePart(mantissa, m_negativeMantissaAllowed);
    state = NumericText::worse(state, validatePart(fraction, false));
    state = NumericText::worse(state, validatePart(exponent, m_negativeExponentAllowed));
    return state == Acceptable ? validateValue(input) : state;
}

QValidator::State QvexExpValidator::validatePart(QStringView part, bool mayBeNegative) const
{
    const QString digits = withoutSpaces(part);
    if (digits.isEmpty()) {
        return Intermediate;
    }
    bool isNumber = false;
    digits.toInt(&isNumber);
    if (isNumber) {
        return Acceptable;
    }
    return isLoneSign(part, mayBeNegative) ? Intermediate : Invalid;
}

QValidator::State QvexExpValidator::validateValue(const QString &input) const
{
    bool isNumber = false;
    const double value = withoutSpaces(input).toDouble(&isNumber);
    if (!isNumber) {
        return Invalid;
    }
    return m_minimum <= value && value <= m_maximum ? Acceptable : Intermediate;
}

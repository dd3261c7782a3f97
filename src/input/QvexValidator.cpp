#include "QvexValidator.h"

#include <QRegularExpressionValidator>

#include <limits>

#include "NumericText.h"

namespace {

/// Toward zero; what 64 bits do not hold becomes the nearest that they do.
qint64 truncated(double value)
{
    constexpr double beyond = 9223372036854775808.0; // 2^63
    if (!(value > -beyond)) {
        return std::numeric_limits<qint64>::min();
    }
    return value < beyond ? static_cast<qint64>(value) : std::numeric_limits<qint64>::max();
}

} // namespace

QvexValidator::QvexValidator(QObject *parent)
    : QValidator(parent)
    , m_regExpValidator(std::make_unique<QRegularExpressionValidator>())
{
}

QvexValidator::QvexValidator(const QRegularExpression &rx, double bottom, double top, int decimals,
                             int base, QObject *parent)
    : QvexValidator(parent)
{
    m_regExpValidator->setRegularExpression(rx);
    m_base = base;
    setRange(bottom, top, decimals);
}

QvexValidator::QvexValidator(const QRegularExpression &rx, qint64 bottom, qint64 top, int base,
                             QObject *parent)
    : QvexValidator(parent)
{
    m_regExpValidator->setRegularExpression(rx);
    m_base = base;
    setRange(bottom, top);
}

QvexValidator::QvexValidator(const QRegularExpression &rx, quint64 bottom, quint64 top, int base,
                             QObject *parent)
    : QvexValidator(parent)
{
    m_regExpValidator->setRegularExpression(rx);
    m_base = base;
    setRange(bottom, top);
}

QvexValidator::~QvexValidator() = default;

void QvexValidator::setRange(double bottom, double top, int decimals)
{
    m_bottom = bottom;
    m_top = top;
    m_llbottom = truncated(bottom);
    m_lltop = truncated(top);
    m_isSigned = true;
    m_decimals = decimals;
}

void QvexValidator::setRange(qint64 bottom, qint64 top)
{
    m_bottom = static_cast<double>(bottom);
    m_top = static_cast<double>(top);
    m_llbottom = bottom;
    m_lltop = top;
    m_isSigned = true;
    m_decimals = 0;
}

void QvexValidator::setRange(quint64 bottom, quint64 top)
{
    m_bottom = static_cast<double>(bottom);
    m_top = static_cast<double>(top);
    m_llbottom = static_cast<qint64>(bottom);
    m_lltop = static_cast<qint64>(top);
    m_isSigned = false;
    m_decimals = 0;
}

void QvexValidator::setBottom(double bottom)
{
    setRange(bottom, m_top, m_decimals);
}

void QvexValidator::setBottom(qint64 bottom)
{
    setRange(bottom, m_lltop);
}

void QvexValidator::setBottom(quint64 bottom)
{
    setRange(bottom, static_cast<quint64>(m_lltop));
}

void QvexValidator::setTop(double top)
{
    setRange(m_bottom, top, m_decimals);
}

void QvexValidator::setTop(qint64 top)
{
    setRange(m_llbottom, top);
}

void QvexValidator::setTop(quint64 top)
{
    setRange(static_cast<quint64>(m_llbottom), top);
}

void QvexValidator::setDecimals(int decimals)
{
    m_decimals = decimals;
}

void QvexValidator::setBase(int base)
{
    m_base = base;
}

void QvexValidator::setSpecialText(const QString &text)
{
    m_specialText = text;
}

QRegularExpression QvexValidator::regExp() const
{
    return m_regExpValidator->regularExpression();
}

QValidator::State QvexValidator::validate(QString &input, int &pos) const
{
    if (!m_specialText.isEmpty()) {
        if (input == m_specialText) {
            return Acceptable;
        }
        NumericText::leaveSpecialText(m_specialText, input, pos);
    }
    QString decimal = m_base == 10 ? input : QString::number(input.toULongLong(nullptr, m_base));
    const State range = minmaxvalidate(decimal, pos);
    if (range == Invalid) {
        return Invalid;
    }
    int ignored = pos; // the expression's validator moves the cursor when it refuses
    return NumericText::worse(range, m_regExpValidator->validate(input, ignored));
}

QValidator::State QvexValidator::minmaxvalidate(QString &input, int &) const
{
    if (m_decimals > 0) {
        return validateFloat(input);
    }
    return m_isSigned ? validateSigned(input) : validateUnsigned(input);
}

QValidator::State QvexValidator::validateFloat(const QString &text) const
{
    if (m_bottom >= 0 && NumericText::startsWithMinus(text)) {
        return Invalid;
    }
    if (NumericText::isEmptyEntry(text)) {
        return Intermediate;
    }
    if (text.contains(u'e')) {
        return Invalid;
    }
    if (NumericText::digitsAfterPoint(text) > m_decimals) {
        return Intermediate;
    }
    // A bound as it is shown is always in the range, even if rounding has carried it out.
    const double value = text.toDouble();
    const bool isAbove = value > m_top && !isTop(text);
    const bool isBelow = value < m_bottom && !isBottom(text);
    return isAbove || isBelow ? Intermediate : Acceptable;
}

bool QvexValidator::isTop(const QString &text) const
{
    return text == QString::number(m_top, 'f', m_decimals);
}

bool QvexValidator::isBottom(const QString &text) const
{
    return text == QString::number(m_bottom, 'f', m_decimals);
}

QValidator::State QvexValidator::validateSigned(const QString &text) const
{
    if (m_llbottom >= 0 && NumericText::startsWithMinus(text)) {
        return Invalid;
    }
    if (NumericText::isEmptyEntry(text)) {
        return Intermediate;
    }
    if (text.contains(u'e') || text.contains(u'.')) {
        return Invalid;
    }
    const qint64 value = text.toLongLong();
    return value > m_lltop || value < m_llbottom ? Intermediate : Acceptable;
}

QValidator::State QvexValidator::validateUnsigned(const QString &text) const
{
    if (text.contains(u'-')) {
        return Invalid;
    }
    if (NumericText::isEmptyEntry(text)) {
        return Intermediate;
    }
    if (text.contains(u'e') || text.contains(u'.')) {
        return Invalid;
    }
    const quint64 value = text.toULongLong();
    const bool isInRange =
        value <= static_cast<quint64>(m_lltop) && value >= static_cast<quint64>(m_llbottom);
    return isInRange ? Acceptable : Intermediate;
}

#include "QvexStepValidator.h"

#include <QRegularExpressionValidator>

#include "NumericText.h"

QvexStepValidator::QvexStepValidator(QObject *parent)
    : QValidator(parent)
    , m_regExpValidator(std::make_unique<QRegularExpressionValidator>())
{
}

QvexStepValidator::QvexStepValidator(const QRegularExpression &rx, double bottom, double top,
                                     int decimals, int base, int step, QObject *parent)
    : QvexStepValidator(parent)
{
    m_regExpValidator->setRegularExpression(rx);
    m_base = base;
    m_step = step;
    setRange(bottom, top, decimals);
}

QvexStepValidator::~QvexStepValidator() = default;

void QvexStepValidator::setRange(double bottom, double top, int decimals)
{
    m_bottom = bottom;
    m_top = top;
    m_decimals = decimals;
}

void QvexStepValidator::setBottom(double bottom)
{
    m_bottom = bottom;
}

void QvexStepValidator::setTop(double top)
{
    m_top = top;
}

void QvexStepValidator::setDecimals(int decimals)
{
    m_decimals = decimals;
}

void QvexStepValidator::setBase(int base)
{
    m_base = base;
}

void QvexStepValidator::setStep(int step)
{
    m_step = step;
}

void QvexStepValidator::setSpecialText(const QString &text)
{
    m_specialText = text;
}

QValidator::State QvexStepValidator::validate(QString &input, int &pos) const
{
    if (!m_specialText.isEmpty()) {
        if (input == m_specialText) {
            return Acceptable;
        }
        NumericText::leaveSpecialText(m_specialText, input, pos);
    }
    QString decimal = m_base == 10 ? input : QString::number(input.toUInt(nullptr, m_base));
    const State range = minmaxvalidate(decimal, pos);
    if (range == Invalid) {
        return Invalid;
    }
    int ignored = pos; // the expression's validator moves the cursor when it refuses
    const State shape = m_regExpValidator->validate(input, ignored);
    return NumericText::worse(NumericText::worse(range, shape), stepValidate(input, pos));
}

QValidator::State QvexStepValidator::minmaxvalidate(QString &input, int &) const
{
    if (m_bottom >= 0 && NumericText::startsWithMinus(input)) {
        return Invalid;
    }
    if (NumericText::isEmptyEntry(input)) {
        return Intermediate;
    }
    if (input.contains(u'e')) {
        return Invalid;
    }
    if (NumericText::digitsAfterPoint(input) > m_decimals) {
        return Intermediate;
    }
    const double value = input.toDouble();
    if (value > m_top) {
        return Invalid;
    }
    return value < m_bottom ? Intermediate : Acceptable;
}

QValidator::State QvexStepValidator::stepValidate(QString &input, int &) const
{
    if (m_step == 0) {
        return Acceptable;
    }
    const qint64 value = input.toUInt(nullptr, m_base);
    return value % m_step == 0 ? Acceptable : Intermediate;
}

#pragma once

#include <QValidator>

#include <VexExport.h>

/**
 * Accepts numbers in exponent notation within a range: mantissa, point, fraction, the letter E or
 * e, exponent, as in 1.00E+3. A text without a point and an exponent letter is
 * QValidator::Invalid; spaces stand for digits that are still to come.
 *
 * Where a minus may stand follows from the range: in the mantissa when it reaches below zero, in
 * the exponent when it reaches magnitudes below one.
 */
class VEX_EXPORT QvexExpValidator : public QValidator
{
    Q_OBJECT

public:
    /** Both bounds are 0, and there are 2 decimals; set the range before use. */
    explicit QvexExpValidator(QObject *parent = nullptr);

    /** Call it after setMaximum(): this one finds anew whether a mantissa may be negative. */
    void setMinimum(double minimum);
    /** May allow a negative mantissa, but never forbids what was allowed. */
    void setMaximum(double maximum);
    /** For the editor that formats the value; validate() does not look at it. */
    void setDecimals(int decimals);
    int decimals() const { return m_decimals; }

    /** Never changes @p input. */
    State validate(QString &input, int &pos) const override;

private:
    State validatePart(QStringView part, bool mayBeNegative) const;
    State validateValue(const QString &input) const;

    double m_minimum = 0;
    double m_maximum = 0;
    int m_decimals = 2;
    bool m_negativeExponentAllowed = true;
    bool m_negativeMantissaAllowed = false;
};

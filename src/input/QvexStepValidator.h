#pragma once

#include <QValidator>

#include <memory>

#include <VexExport.h>

class QRegularExpression;
class QRegularExpressionValidator;

/**
 * Accepts floating-point numbers within a range that are whole multiples of a step and match a
 * regular expression.
 *
 * Stricter than QvexValidator at the upper end: what is above the range is QValidator::Invalid, and
 * the upper bound as it is shown has no privilege. The step is one of whole numbers: a number with
 * a fraction passes it. As there, the expression sees what was typed, in whatever radix, and a
 * special text stands for a value of its own.
 */
class VEX_EXPORT QvexStepValidator : public QValidator
{
    Q_OBJECT

public:
    /** Base 10, no step, no special text; set the range before use. */
    explicit QvexStepValidator(QObject *parent = nullptr);
    QvexStepValidator(const QRegularExpression &rx, double bottom, double top, int decimals,
                      int base, int step, QObject *parent = nullptr);
    ~QvexStepValidator() override;

    void setRange(double bottom, double top, int decimals);
    void setBottom(double bottom);
    void setTop(double top);
    /** The digits after the point beyond which a number is not acceptable. */
    void setDecimals(int decimals);
    /** The radix in which the user types, 2 to 36. */
    void setBase(int base);
    /** 0, the default: every number of the range will do. */
    void setStep(int step);
    /** A text that is acceptable as it is; empty, the default: there is none. */
    void setSpecialText(const QString &text);

    int decimals() const { return m_decimals; }
    QString specialText() const { return m_specialText; }

    /** Changes @p input only where QvexValidator::validate() does. */
    State validate(QString &input, int &pos) const override;

protected:
    /** The range alone, of a text in base 10. */
    State minmaxvalidate(QString &input, int &pos) const;
    /** The step alone, of the text as it was typed. */
    State stepValidate(QString &input, int &pos) const;

private:
    const std::unique_ptr<QRegularExpressionValidator> m_regExpValidator;
    double m_bottom = 0;
    double m_top = 0;
    int m_base = 10;
    int m_decimals = 0;
    int m_step = 0;
    QString m_specialText;
};

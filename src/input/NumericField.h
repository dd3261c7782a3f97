#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

#include "DecimalNumber.h"

/**
 * A number that is edited: its value, its range, how it is written, and what a text typed for it
 * is worth. The numpad and the line edits show it; no widget is in it.
 *
 * Decimal numbers are exact (DecimalNumber). The other notations are those of unsigned 64-bit
 * integers. What is stored is what is shown: a value is rounded to the decimals when it is set,
 * and kept within the range.
 */
class VEX_EXPORT NumericField
{
    Q_DECLARE_TR_FUNCTIONS(NumericField)

public:
    /** The numbers are those by which applications know the notations. */
    enum Notation {
        Decimal = 0,
        Hexadecimal = 1,
        Binary = 2,
        Password = 7, ///< no number at all: any digits
        Base4 = 11,
        /// Two bits a symbol by Gray code: 00 is 0, 01 is 1, 11 is 2, 10 is 3.
        CodingPam4 = 12,
    };

    /** What a typed text is worth. */
    struct Verdict
    {
        enum State {
            Refused, ///< no further digit makes it valid
            Unfinished, ///< further digits may
            Valid,
        };
        State state = Valid;
        QString reason; ///< in words, unless it is valid
    };

    /** Values from 0 to the largest unsigned number, value and default 0, no decimals. */
    explicit NumericField(Notation notation = Decimal);

    Notation notation() const { return m_notation; }
    int radix() const;

    /** Digits after the point, 0 (the default) to 15; the value is rounded to them. */
    void setDecimals(int decimals);
    int decimals() const { return m_decimals; }
    /** Whether the field holds signed numbers; does not change the range. */
    void setSigned(bool isSigned) { m_isSigned = isSigned; }
    bool isSigned() const { return m_isSigned; }
    /** Whether a minus has a place in it. */
    bool mayBeNegative() const { return m_minimum.isNegative(); }

    /** Each carries the value along, when that is out of the range then. */
    void setMinimum(DecimalNumber minimum);
    void setMaximum(DecimalNumber maximum);
    void setDefault(DecimalNumber value) { m_default = value; }
    /** The smallest difference between two values; 0, the default: that of the last digit. */
    void setStep(DecimalNumber step) { m_step = step; }
    DecimalNumber minimum() const { return m_minimum; }
    DecimalNumber maximum() const { return m_maximum; }
    DecimalNumber defaultValue() const { return m_default; }
    DecimalNumber step() const { return m_step; }

    void setValue(DecimalNumber value);
    DecimalNumber value() const { return m_value; }

    /** The value as it is written, without separators. */
    QString text() const { return textOf(m_value); }
    QString textOf(DecimalNumber value) const;
    /** The digits that the largest value needs, those after the point included; at least one. */
    int digits() const;

    /** The number that a text stands for, in the range or not; spaces do not count, "," is ".". */
    std::optional<DecimalNumber> parse(const QString &text) const;
    Verdict check(const QString &text) const;
    /** Takes the value of a text that is valid; changes nothing and gives false otherwise. */
    [[nodiscard]] bool setText(const QString &text);
    /** Whether a character may occur in this notation. */
    bool isAllowed(QChar character) const;

private:
    Verdict checkNumber(DecimalNumber number, const QString &text) const;
    bool canGrowIntoRange(DecimalNumber magnitude, int decimalsTyped, bool hasPoint,
                          bool isNegative) const;
    DecimalNumber clamped(DecimalNumber value) const;
    static QString withoutSeparators(const QString &text);

    Notation m_notation;
    bool m_isSigned;
    int m_decimals = 0;
    DecimalNumber m_minimum;
    DecimalNumber m_maximum;
    DecimalNumber m_default;
    DecimalNumber m_step;
    DecimalNumber m_value;
};

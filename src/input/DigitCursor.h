#pragma once

#include <QStringView>

/**
 * The selected digit of a number as it is shown: which character it is, and which power of ten it
 * counts. Signs, points and separators are never selected.
 */
class DigitCursor
{
public:
    /** Index of the digit in the text; -1 when none is selected. */
    int position() const { return m_position; }
    bool isOnDigit() const { return m_position >= 0; }
    /** The digit counts 10 to the power of this. Of use only when one is selected. */
    int exponent() const { return m_exponent; }

    /** Selects the digit at an index, or else the nearest one to its left, or else to its right. */
    void place(QStringView text, qsizetype index);
    /** Goes to the next digit in a direction, 1 or -1; stays on the last one. */
    void move(QStringView text, int direction);
    /** Finds the digit again after the text has changed; the nearest one when it is gone. */
    void follow(QStringView text);

private:
    void select(QStringView text, qsizetype index);

    int m_position = -1;
    int m_exponent = 0;
};

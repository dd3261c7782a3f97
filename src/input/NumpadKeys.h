#pragma once

#include <QHash>
#include <QStringList>
#include <QWidget>

#include "NumericField.h"

class QGridLayout;
class QPushButton;

/**
 * The keys of the numpad, digits in the order of a telephone, each 64 pixels high or more, 48 on a
 * low screen. There
 * are only those of the field's notation. A tap leaves the focus where it is; the keyboard
 * reaches all keys by Tab.
 */
class NumpadKeys : public QWidget
{
    Q_OBJECT

public:
    enum Command { Backspace, Clear, Left, Right, Sign, Point, Minimum, Maximum, Default };
    Q_ENUM(Command)

    static constexpr int KeyHeight = 64;
    static constexpr int LowKeyHeight = 48;
    static constexpr int KeyWidth = 80;
    /// Of many columns, so that the keypad still fits beside a field in the screen's middle.
    static constexpr int NarrowKeyWidth = 64;
    static constexpr int Gap = 8;
    static constexpr int LowGap = 4;

    explicit NumpadKeys(NumericField::Notation notation, QWidget *parent = nullptr);

    /** All are visible at first, but those that are not for the notation. */
    void setKeyVisible(Command command, bool visible);
    /** A key for each prefix, in this order. */
    void setUnits(const QString &unit, const QStringList &prefixes);
    /** What the keys that fill the entry would fill in, for those who can't see the range. */
    void setDescription(Command command, const QString &text);
    void updateTexts();
    /** For a low screen: KeyHeight and Gap, or LowKeyHeight and LowGap. */
    void setLow(bool low);

Q_SIGNALS:
    void typed(const QString &digit);
    void commanded(NumpadKeys::Command command);
    void unitChosen(const QString &prefix);

private:
    QPushButton *makeKey(const QString &name);
    void addDigit(QChar digit, int row, int column, int rows = 1, int columns = 1);
    void addDigits(NumericField::Notation notation);
    void addCommand(Command command, int row, int column, int columns = 1);
    void spread();
    void setTexts(Command command, const QString &text, const QString &name);

    QGridLayout *m_grid;
    QHash<Command, QPushButton *> m_commands;
    QList<QPushButton *> m_unitKeys;
    int m_keyHeight = KeyHeight;
    int m_columns = 0;
};

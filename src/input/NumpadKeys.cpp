#include "NumpadKeys.h"

#include <QGridLayout>
#include <QMetaEnum>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int Rows = 4;
constexpr int FewColumns = 5;

} // namespace

NumpadKeys::NumpadKeys(NumericField::Notation notation, QWidget *parent)
    : QWidget(parent)
    , m_grid(new QGridLayout(this))
{
    setObjectName(u"NumpadKeys"_s);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(Gap);
    addDigits(notation);
    if (notation == NumericField::Decimal) {
        addCommand(Sign, Rows - 1, 0);
        addCommand(Point, Rows - 1, 2);
    }
    addCommand(Backspace, 0, m_columns);
    addCommand(Clear, 0, m_columns + 1);
    addCommand(Left, 1, m_columns);
    addCommand(Right, 1, m_columns + 1);
    if (notation != NumericField::Password) {
        addCommand(Minimum, 2, m_columns);
        addCommand(Maximum, 2, m_columns + 1);
        addCommand(Default, Rows - 1, m_columns, 2);
    }
    m_columns += 2;
    m_commands[Backspace]->setAutoRepeat(true);
    spread();
    updateTexts();
}

QPushButton *NumpadKeys::makeKey(const QString &name)
{
    auto *key = new QPushButton(this);
    key->setObjectName(name);
    key->setFocusPolicy(Qt::TabFocus);
    key->setMinimumSize(NarrowKeyWidth, m_keyHeight);
    key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return key;
}

void NumpadKeys::addDigit(QChar digit, int row, int column, int rows, int columns)
{
    QPushButton *key = makeKey(u"NumpadKey_"_s + digit);
    key->setText(digit);
    key->setAccessibleName(digit);
    m_grid->addWidget(key, row, column, rows, columns);
    connect(key, &QPushButton::clicked, this, [this, digit] { Q_EMIT typed(digit); });
}

void NumpadKeys::addDigits(NumericField::Notation notation)
{
    m_columns = 3;
    if (notation == NumericField::Binary) {
        addDigit(u'1', 0, 0, 2, 3);
        addDigit(u'0', 2, 0, 2, 3);
        return;
    }
    const bool isBase4 = notation == NumericField::Base4 || notation == NumericField::CodingPam4;
    const bool isHex = notation == NumericField::Hexadecimal;
    const int height = isBase4 ? 2 : 1;
    for (int digit = 1; digit <= (isBase4 ? 3 : 9); ++digit) {
        addDigit(QChar(u'0' + digit), (digit - 1) / 3, (digit - 1) % 3, height);
    }
    for (int i = 0; i < (isHex ? 6 : 0); ++i) {
        addDigit(QChar(u'A' + i), i / 2, 3 + i % 2);
    }
    m_columns = isHex ? 5 : 3;
    // Beside it there are other keys, or nothing.
    const bool isWide = isBase4 || isHex;
    addDigit(u'0', Rows - height, isWide ? 0 : 1, height, isWide ? m_columns : 1);
}

void NumpadKeys::addCommand(Command command, int row, int column, int columns)
{
    const QString name = QString::fromLatin1(QMetaEnum::fromType<Command>().valueToKey(command));
    QPushButton *key = makeKey(u"NumpadKey_"_s + name);
    m_commands.insert(command, key);
    m_grid->addWidget(key, row, column, 1, columns);
    connect(key, &QPushButton::clicked, this, [this, command] { Q_EMIT commanded(command); });
}

void NumpadKeys::setKeyVisible(Command command, bool visible)
{
    if (QPushButton *key = m_commands.value(command)) {
        key->setVisible(visible);
    }
}

void NumpadKeys::setDescription(Command command, const QString &text)
{
    if (QPushButton *key = m_commands.value(command)) {
        key->setAccessibleDescription(text);
    }
}

void NumpadKeys::setUnits(const QString &unit, const QStringList &prefixes)
{
    for (QPushButton *key : std::as_const(m_unitKeys)) {
        // One of them may be what called.
        m_grid->removeWidget(key);
        key->hide();
        key->deleteLater();
    }
    m_unitKeys.clear();
    for (const QString &prefix : prefixes) {
        const QString text = prefix + unit;
        QPushButton *key = makeKey(u"NumpadUnit_"_s + prefix);
        key->setProperty("isUnit", true);
        key->setText(text.isEmpty() ? u"1"_s : text);
        key->setAccessibleName(text.isEmpty() ? tr("Without a prefix") : text);
        const auto at = int(m_unitKeys.size());
        m_grid->addWidget(key, at % Rows, m_columns + at / Rows);
        m_unitKeys.append(key);
        key->show();
        connect(key, &QPushButton::clicked, this, [this, prefix] { Q_EMIT unitChosen(prefix); });
    }
    spread();
}

/// Gives all cells the same size, whatever is in them.
void NumpadKeys::spread()
{
    const int unitColumns = (int(m_unitKeys.size()) + Rows - 1) / Rows;
    const int used = m_columns + unitColumns;
    for (int column = 0; column < m_grid->columnCount(); ++column) {
        const int width = used > FewColumns ? NarrowKeyWidth : KeyWidth;
        m_grid->setColumnMinimumWidth(column, column < used ? width : 0);
        m_grid->setColumnStretch(column, column < used ? 1 : 0);
    }
    for (int row = 0; row < Rows; ++row) {
        m_grid->setRowMinimumHeight(row, m_keyHeight);
        m_grid->setRowStretch(row, 1);
    }
}

void NumpadKeys::setLow(bool low)
{
    m_keyHeight = low ? LowKeyHeight : KeyHeight;
    m_grid->setSpacing(low ? LowGap : Gap);
    for (QPushButton *key : findChildren<QPushButton *>()) {
        key->setMinimumHeight(m_keyHeight);
    }
    spread();
}

void NumpadKeys::setTexts(Command command, const QString &text, const QString &name)
{
    if (QPushButton *key = m_commands.value(command)) {
        key->setText(text);
        key->setAccessibleName(name);
    }
}

void NumpadKeys::updateTexts()
{
    setTexts(Backspace, u"\u232b"_s, tr("Backspace"));
    setTexts(Clear, tr("Clear"), tr("Clear"));
    setTexts(Left, u"\u25c0"_s, tr("Cursor left"));
    setTexts(Right, u"\u25b6"_s, tr("Cursor right"));
    setTexts(Sign, u"\u00b1"_s, tr("Change the sign"));
    setTexts(Point, u"."_s, tr("Decimal point"));
    setTexts(Minimum, tr("Min"), tr("Minimum"));
    setTexts(Maximum, tr("Max"), tr("Maximum"));
    setTexts(Default, tr("Default"), tr("Default"));
}

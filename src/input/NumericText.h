#pragma once

#include <QString>
#include <QValidator>

/** @file What the validators of numbers have in common. */

namespace NumericText {

/**
 * Whether nothing that counts was typed yet: spaces, at most one minus, at most one point, spaces,
 * in this order.
 */
bool isEmptyEntry(const QString &text);

/** Whether the first character that is no space is a minus. */
bool startsWithMinus(const QString &text);

/** How many digits follow the first point without interruption; 0 without a point. */
int digitsAfterPoint(const QString &text);

/** The answers of two checks as one: the worse of them. */
QValidator::State worse(QValidator::State one, QValidator::State other);

/**
 * Undoes the typing of a character onto a special text. A digit replaces the whole @p input, with
 * the cursor behind it; any other character changes nothing.
 */
void leaveSpecialText(const QString &specialText, QString &input, int &pos);

} // namespace NumericText

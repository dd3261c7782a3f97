#pragma once

#include <QString>

class QFontMetrics;
class QHelpEvent;
class QStyleOptionButton;
class QWidget;

/** @file What the styles that cut texts share. */

/**
 * @p text, each of its lines cut to @p width with an ellipsis where @p mode says. @p flags are
 * those that it is drawn with: mnemonics stay whole and take no room, and what wraps is not cut.
 */
QString elidedText(const QFontMetrics &metrics, const QString &text, Qt::TextElideMode mode,
                   int width, int flags);

/**
 * The text of a push button, cut to what its rectangle leaves beside the icon. The styles of Qt
 * centre icon and text together, so that a text too long would push the icon out.
 */
QString elidedText(const QStyleOptionButton &button);
int roomForText(const QStyleOptionButton &button);

/**
 * Answers a tool tip event with the whole of a text that does not fit in @p width.
 * @return false, and does nothing, when it fits or when the widget has a tool tip of its own.
 */
bool showWholeText(QWidget *widget, const QHelpEvent &event, const QString &text, int width);

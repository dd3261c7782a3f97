#pragma once

#include <QColor>
#include <QIcon>
#include <QPalette>
#include <QSize>
#include <QString>

class QAbstractButton;

/// What the dialogs look like: the sizes in pixels and the colours that are not the palette's.
namespace DialogTheme {

/// What the layouts are made for.
inline constexpr QSize screenSize {1280, 800};

inline constexpr int touchTarget = 48;
inline constexpr int spacing = 12;
inline constexpr int fontSize = 16;

inline constexpr int headerHeight = 56;
inline constexpr int panelPadding = 8;
inline constexpr int panelRadius = 8;
inline constexpr QSize headerIcon {48, 48};
/// A move bar above or below; those at the sides are turned.
inline constexpr QSize moveBar {60, 48};

inline constexpr int messageIcon = 64;
inline constexpr int smallIcon = 24;
inline constexpr int messageFontSize = 18;
inline constexpr int narrowestMessage = 280;
inline constexpr int widestMessage = 640;
inline constexpr int detailsHeight = 200;
inline constexpr int buttonWidth = 112;
inline constexpr QSize helpSize {960, 600};

inline constexpr int tabHeight = 56;
inline constexpr int tabIcon = 32;
inline constexpr int narrowestTab = 96;
inline constexpr int widestTab = 240;

/// Over the application behind a running dialog, and over the dialogs below another one.
inline constexpr QColor shieldColor(bool isLowest)
{
    return QColor(0, 0, 0, isLowest ? 110 : 50);
}

/// What is between the two: @p share of @p first and the rest of @p second.
QColor mixed(const QColor &first, const QColor &second, double share);
/// Lines around what can be touched: 3:1 on a window's ground.
QColor outline(const QPalette &palette);

/// Black or white, whichever is legible on @p ground.
QColor inkOn(const QColor &ground);

QString borderStyle(const QPalette &palette);
/// For a widget with push buttons.
QString buttonStyle(const QPalette &palette);
/// The icon of the resource @p file. Read once: icons made anew each time would crowd the cache of
/// pixmaps.
QIcon icon(const QString &file);
/// With a gap between icon and text, for which style sheets have no word.
void setText(QAbstractButton *button, const QString &text);
/// Sets a style sheet that is made from @p widget's palette, if it differs from the one it has.
void apply(QWidget *widget, QString (*style)(const QPalette &));

} // namespace DialogTheme

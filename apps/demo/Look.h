#pragma once

#include <QColor>
#include <QFont>
#include <QString>

class QLabel;
class QPushButton;
class QWidget;

/// What the pages share in their looks. All colours are the theme's (ColorTheme).
namespace Look {

constexpr int fingerSize = 48; ///< the least that a finger meets, in pixels
constexpr int spacing = 12;
constexpr int compactWidth = 1000; ///< of a page, below which it leaves out what can be spared

/// A button with an object name, by which tests and the tour find it.
QPushButton *button(const QString &objectName, QWidget *parent);
/// The one button of a page that it is all about.
QPushButton *mainButton(const QString &objectName, QWidget *parent);
QLabel *heading(QWidget *parent);
QFont scaled(const QFont &font, double factor, bool isBold = false);

/**
 * The style sheet of a window, in the colours of the moment: buttons, entry lines and lists look
 * like those of the library's dialogs. To be set anew when the theme changes.
 */
QString sheet();

/// Black or white, whichever is legible on @p ground.
QColor inkOn(const QColor &ground);

} // namespace Look

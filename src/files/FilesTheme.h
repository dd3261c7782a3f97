#pragma once

#include <QPalette>
#include <QString>

class QIcon;
class QToolButton;
class QWidget;

/// What the file dialog looks like, besides what all dialogs share.
namespace FilesTheme {

inline constexpr int rowHeight = 52;
inline constexpr int headerHeight = 48;
inline constexpr int tickWidth = 52;
inline constexpr int tickBox = 26;
inline constexpr int entryIcon = 32;
inline constexpr int placeHeight = 60;
inline constexpr int placeWidth = 168;
inline constexpr int gap = 8;

/// For a pane, a strip or a panel and what is in it.
QString style(const QPalette &palette);
/// Red for a text on a window's ground.
QColor errorInk(const QPalette &palette);
QIcon icon(const QString &name);
/// A button with nothing but the picture of @p iconName, 52 pixels square.
QToolButton *toolButton(const QString &objectName, const QString &iconName, QWidget *parent);
/// Names a button for a person.
void setName(QToolButton *button, const QString &name);

} // namespace FilesTheme

#pragma once

#include <QColor>
#include <QSize>
#include <QString>

/// What the dialogs look like: the sizes in pixels and the colours that are not the palette's.
namespace DialogTheme {

/// What the layouts are made for.
inline constexpr QSize screenSize {1280, 800};

inline constexpr int touchTarget = 48;
inline constexpr int spacing = 12;

inline constexpr int headerHeight = 56;
inline constexpr int panelPadding = 8;
inline constexpr int panelRadius = 8;
inline constexpr int barLength = 128;
inline constexpr int barThickness = 48;
inline constexpr QSize headerIcon {40, 40};
inline constexpr QSize barIcon {40, 40};

/// Over the application behind a running dialog.
inline constexpr QColor shieldColor()
{
    return QColor(0, 0, 0, 110);
}

QString borderStyle();

} // namespace DialogTheme

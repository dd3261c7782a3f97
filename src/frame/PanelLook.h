#pragma once

#include <QColor>
#include <QPalette>
#include <Qt>

class QAbstractButton;
class QFont;
class QPainter;
class QRect;

/// What the panels of the frame paint alike, in the colours of the palette.
namespace PanelLook {

/// Text in the theme's colour of what has failed, or in that of another theme which has 4.5:1 on
/// @p ground.
QColor errorInk(const QColor &ground);
QFont font(const QFont &base, int pixels, bool bold = false);

/// The plate of a button as it is at the moment: up, down, disabled, with focus.
/// @return The ink for what stands on it.
QColor drawPlate(QPainter &painter, const QAbstractButton &button);
/// In the middle of @p place.
void drawChevron(QPainter &painter, const QRect &place, Qt::ArrowType direction, const QColor &ink);

} // namespace PanelLook

#include "PanelLook.h"

#include <QAbstractButton>
#include <QPainter>
#include <QPolygonF>
#include <QTransform>

#include "ColorTheme.h"
#include <dialogs/DialogTheme.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal ChevronSize = 9;
constexpr qreal ChevronPen = 4;
constexpr qreal PlateRadius = 6;
constexpr qreal FocusPen = 3;
constexpr double Legible = 4.5;

qreal angleOf(Qt::ArrowType direction)
{
    switch (direction) {
    case Qt::RightArrow:
        return 90;
    case Qt::DownArrow:
        return 180;
    case Qt::LeftArrow:
        return 270;
    default:
        return 0;
    }
}

} // namespace

namespace PanelLook {

QColor errorInk(const QColor &ground)
{
    // The palette of a widget may be another one than the theme's.
    for (const ColorTheme &theme : {ColorTheme::current(), ColorTheme::dark()}) {
        const QColor fail = theme.color("fail"_L1);
        if (ColorTheme::contrast(fail, ground) >= Legible) {
            return fail;
        }
    }
    return ColorTheme::light().color("fail"_L1);
}

QFont font(const QFont &base, int pixels, bool bold)
{
    QFont font = base;
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

QColor drawPlate(QPainter &painter, const QAbstractButton &button)
{
    const QPalette &colors = button.palette();
    const auto color = [&colors](QPalette::ColorRole role) {
        // Those of the disabled group are too faint to be read.
        return colors.color(QPalette::Active, role);
    };
    QColor ground = color(QPalette::Button);
    QColor ink = color(QPalette::ButtonText);
    if (!button.isEnabled()) {
        ground = color(QPalette::Window);
        ink = DialogTheme::mixed(color(QPalette::WindowText), ground, 0.6);
    } else if (button.isDown()) {
        ground = color(QPalette::Highlight);
        ink = DialogTheme::inkOn(ground);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(DialogTheme::outline(colors), 1, button.isEnabled() ? Qt::SolidLine : Qt::DashLine));
    painter.setBrush(ground);
    const QRectF plate = QRectF(button.rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(plate, PlateRadius, PlateRadius);
    if (button.hasFocus()) {
        painter.setPen(QPen(color(QPalette::Highlight), FocusPen));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(plate.adjusted(2, 2, -2, -2), PlateRadius, PlateRadius);
    }
    return ink;
}

void drawChevron(QPainter &painter, const QRect &place, Qt::ArrowType direction, const QColor &ink)
{
    const QPolygonF up(
        {{-ChevronSize, ChevronSize / 2}, {0, -ChevronSize / 2}, {ChevronSize, ChevronSize / 2}});
    const QPointF center = QRectF(place).center();
    QTransform turned = QTransform::fromTranslate(center.x(), center.y());
    turned.rotate(angleOf(direction));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ink, ChevronPen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(turned.map(up));
}

} // namespace PanelLook

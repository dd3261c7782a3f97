#include "TickBox.h"

#include <QPainter>

#include <dialogs/DialogTheme.h>

namespace {

constexpr int BoxSize = 32;
constexpr int Margin = 4;

} // namespace

QSize TickBox::sizeHint() const
{
    return {2 * Margin + BoxSize + DialogTheme::spacing + fontMetrics().horizontalAdvance(text()),
            DialogTheme::touchTarget};
}

bool TickBox::hitButton(const QPoint &at) const
{
    return rect().contains(at);
}

void TickBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor window = palette().color(QPalette::Window);
    const QColor strong = palette().color(QPalette::Active, QPalette::WindowText);
    const QColor ink = isEnabled() ? strong : DialogTheme::mixed(strong, window, 0.6);
    drawBox(painter, ink);
    painter.setPen(ink);
    const QRect words = rect().adjusted(Margin + BoxSize + DialogTheme::spacing, 0, 0, 0);
    painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter, text());
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 6, 6);
    }
}

void TickBox::drawBox(QPainter &painter, const QColor &ink) const
{
    const QRectF box(Margin + 1, (height() - BoxSize) / 2.0 + 1, BoxSize - 2, BoxSize - 2);
    const QColor ground = palette().color(isDown()          ? QPalette::Highlight
                                              : isEnabled() ? QPalette::Base
                                                            : QPalette::Window);
    painter.setPen(QPen(ink, 2));
    painter.setBrush(ground);
    painter.drawRoundedRect(box, 4, 4);
    if (isChecked()) {
        const QColor tick = isEnabled() ? DialogTheme::inkOn(ground) : ink;
        painter.setPen(QPen(tick, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF {box.topLeft() + QPointF(7, 16),
                                        box.topLeft() + QPointF(13, 22),
                                        box.topLeft() + QPointF(23, 8)});
    }
}

#include "SlideUpButton.h"

#include <QPainter>

#include "FrameLayout.h"

namespace {

constexpr int Radius = 8;
constexpr QRgb Ground = 0xff26323c;
constexpr QRgb PressedGround = 0xff0b5f9e;

} // namespace

SlideUpButton::SlideUpButton(QWidget *parent)
    : QPushButton(parent)
{
    QFont bold = font();
    bold.setPixelSize(FrameLayout::labelFont);
    bold.setBold(true);
    setFont(bold);
}

void SlideUpButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, hasFocus() ? 2 : 1));
    painter.setBrush(QColor::fromRgb(isDown() ? PressedGround : Ground));
    const QRectF tab = QRectF(rect()).adjusted(1, -Radius, -1, -1);
    painter.drawRoundedRect(tab, Radius, Radius);

    const QRect seen = rect().adjusted(Radius, -FrameLayout::slideUpButton({}).top(), -Radius, 0);
    painter.setPen(Qt::white);
    painter.drawText(seen, Qt::AlignCenter,
                     fontMetrics().elidedText(text(), Qt::ElideRight, seen.width()));
}

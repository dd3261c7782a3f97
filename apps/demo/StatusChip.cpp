#include "StatusChip.h"

#include "Look.h"

#include <QEvent>
#include <QPainter>

#include <frame/ColorTheme.h>

StatusChip::StatusChip(QWidget *parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void StatusChip::setStatus(const QString &text, const QByteArray &colorName)
{
    m_colorName = colorName;
    setText(text);
    setAccessibleName(text);
    updateGeometry();
    update();
}

QSize StatusChip::sizeHint() const
{
    const int width = fontMetrics().horizontalAdvance(text()) + 32;
    return {qMax(120, width), Look::fingerSize};
}

void StatusChip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isColoured = !m_colorName.isEmpty();
    const QColor ground = isColoured ? ColorTheme::current().color(m_colorName.constData())
                                     : palette().color(QPalette::Button);
    painter.setBrush(isDown() ? ground.darker(120) : ground);
    painter.setPen(Qt::NoPen);
    const QRectF place = QRectF(rect()).adjusted(1, 4, -1, -4);
    painter.drawRoundedRect(place, 8, 8);
    painter.setPen(isColoured ? Look::inkOn(ground) : palette().color(QPalette::ButtonText));
    painter.drawText(place.adjusted(8, 0, -8, 0), Qt::AlignCenter,
                     fontMetrics().elidedText(text(), Qt::ElideRight, width() - 16));
}

void StatusChip::changeEvent(QEvent *event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        update();
    }
}

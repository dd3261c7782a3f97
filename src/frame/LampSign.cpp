#include "LampSign.h"

#include <dialogs/DialogTheme.h>

#include <QEvent>
#include <QPainter>
#include <QStyle>

#include "PanelLook.h"

namespace {

constexpr int Lamp = 28;
constexpr int Gap = 8;

} // namespace

LampSign::LampSign(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFont(PanelLook::font(font(), DialogTheme::fontSize));
    updateText();
}

void LampSign::setOn(bool on)
{
    if (m_on != on) {
        m_on = on;
        updateText();
    }
}

QString LampSign::word() const
{
    return m_on ? tr("On") : tr("Off");
}

void LampSign::updateText()
{
    setAccessibleName(tr("Indicator: %1").arg(word()));
    updateGeometry();
    update();
}

/// Of the wider word, so that nothing moves when the lamp is switched.
QSize LampSign::sizeHint() const
{
    const int text = std::max(fontMetrics().horizontalAdvance(tr("On")),
                              fontMetrics().horizontalAdvance(tr("Off")));
    return {Lamp + Gap + text + 2, DialogTheme::touchTarget};
}

void LampSign::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::FontChange) {
        updateText();
    }
}

void LampSign::paintEvent(QPaintEvent *)
{
    const auto visual = [this](const QRect &place) {
        return QStyle::visualRect(layoutDirection(), rect(), place);
    };
    const QColor ink = palette().color(QPalette::Active, QPalette::WindowText);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_on ? ink : DialogTheme::outline(palette()), 2));
    painter.setBrush(m_on ? QColor(0x3d, 0xd6, 0x68) : QColor(Qt::transparent));
    const QRectF lamp = visual({0, (height() - Lamp) / 2, Lamp, Lamp});
    painter.drawEllipse(lamp.adjusted(2, 2, -2, -2));
    painter.setPen(ink);
    painter.drawText(visual(rect().adjusted(Lamp + Gap, 0, 0, 0)),
                     int(Qt::AlignVCenter | Qt::AlignLeading), word());
}

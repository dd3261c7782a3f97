#include "Toast.h"

#include "Look.h"

#include <QPainter>

using namespace Qt::StringLiterals;

Toast::Toast(QWidget *parent)
    : QLabel(parent)
{
    setObjectName(u"Toast"_s);
    setAlignment(Qt::AlignCenter);
    setFont(Look::scaled(font(), 1.1));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setForegroundRole(QPalette::ToolTipText);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &QWidget::hide);
    hide();
}

void Toast::showText(const QString &text, int milliseconds, int width, int height)
{
    constexpr int fromBottom = 140; // above the buttons of the pages
    setText(text);
    setAccessibleName(text);
    const QSize needed = sizeHint() + QSize(48, 0);
    resize(width > 0 ? width : qMin(needed.width(), parentWidget()->width() - 48),
           height > 0 ? height : qMax(needed.height(), Look::fingerSize));
    move((parentWidget()->width() - this->width()) / 2,
         parentWidget()->height() - fromBottom - this->height());
    show();
    raise();
    m_timer.start(milliseconds);
}

void Toast::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(palette().toolTipBase());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 10, 10);
    painter.end();
    QLabel::paintEvent(event);
}

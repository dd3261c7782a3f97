#include "QLrudMoveFrame.h"

#include <QImageReader>
#include <QPainter>

#include "LrudLook.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QPoint basePosition {30, 0};

} // namespace

QLrudMoveFrame::QLrudMoveFrame(QWidget *parent)
    : QFrame(parent)
    , m_base(u":/images/bar_base.png"_s)
    , m_baseSize(QImageReader(u":/images/bar_base.png"_s).size())
{
    LrudLook::dress(this);
}

void QLrudMoveFrame::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    const QSize size(m_baseSize.width(), height());
    const QPixmap picture = m_base.pixmap(m_baseSize, devicePixelRatioF());
    painter.drawPixmap(QRect(basePosition, size), picture);
    painter.end();
    QFrame::paintEvent(event);
}

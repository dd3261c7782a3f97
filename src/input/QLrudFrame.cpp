#include "QLrudFrame.h"

#include <QImageReader>
#include <QPainter>

#include "LrudLook.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QPoint basePosition {30, 30};

} // namespace

QLrudFrame::QLrudFrame(QWidget *parent)
    : QFrame(parent)
    , m_base(u":/images/key_base.png"_s)
    , m_baseSize(QImageReader(u":/images/key_base.png"_s).size())
{
    LrudLook::dress(this);
    // The frame's corners lie over the move bar and the numpad frame.
    setMask(QRegion(QRect(basePosition, m_baseSize)));
}

void QLrudFrame::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    m_base.paint(&painter, QRect(basePosition, m_baseSize));
    painter.end();
    QFrame::paintEvent(event);
}

#include "QPushButtonLrud.h"

#include <QMouseEvent>
#include <QPointer>

#include <utility>

QPushButtonLrud::QPushButtonLrud(QString imagePath, QWidget *parent)
    : QPushButton(parent)
    , m_image(imagePath.isEmpty() ? QImage() : QImage(imagePath))
{
}

bool QPushButtonLrud::covers(const QPoint &point) const
{
    if (m_image.isNull()) {
        return rect().contains(point);
    }
    return m_image.valid(point) && qAlpha(m_image.pixel(point)) > 0;
}

bool QPushButtonLrud::isOverlapped(const QPoint &point) const
{
    return m_image.valid(point) && !covers(point);
}

bool QPushButtonLrud::isLeftHalf(const QPoint &point) const
{
    return point.x() < m_image.width() / 2;
}

void QPushButtonLrud::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QPushButton::mousePressEvent(event);
        return;
    }
    m_pressPoint = event->position().toPoint();
    m_pressWasOverlapped = isOverlapped(m_pressPoint);
    if (!m_pressWasOverlapped) {
        QPushButton::mousePressEvent(event);
        return;
    }
    // Accepted, so that the release comes here, too.
    event->accept();
    if (isLeftHalf(m_pressPoint)) {
        Q_EMIT mousePressEventFromLeftOverlappedArea();
    } else {
        Q_EMIT mousePressEventFromRightOverlappedArea();
    }
}

void QPushButtonLrud::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QPushButton::mouseReleaseEvent(event);
        return;
    }
    const QPoint point = event->position().toPoint();
    const bool overlapped = std::exchange(m_pressWasOverlapped, false) || isOverlapped(point);
    const bool left = isLeftHalf(point);
    const QPointer<QPushButtonLrud> guard(this);
    endOwnPress(event);
    event->accept();
    if (!guard || !overlapped) {
        return;
    }
    if (left) {
        Q_EMIT mouseReleaseEventFromLeftOverlappedArea();
    } else {
        Q_EMIT mouseReleaseEventFromRightOverlappedArea();
    }
}

/// Also when the finger has slid to a transparent pixel meanwhile.
void QPushButtonLrud::endOwnPress(QMouseEvent *event)
{
    if (!isDown()) {
        return;
    }
    if (hitButton(event->position().toPoint())) {
        QPushButton::mouseReleaseEvent(event);
    } else {
        // QAbstractButton would go up without telling.
        setDown(false);
        Q_EMIT released();
    }
}

#pragma once

#include <QImage>
#include <QPushButton>

#include "VexExport.h"

/**
 * A key whose shape is given by the alpha channel of its image.
 *
 * Keys whose rectangles overlap leave a press on a fully transparent pixel to each other: the key
 * under the finger takes the press, but only tells of it by signal, with pressPoint() as its place.
 * The release of such a press is told in the same way, wherever the finger is then, and so is any
 * other release on a transparent pixel. A key without an image is an ordinary button.
 *
 * A held key that loses its finger to something else tells released() nevertheless.
 */
class VEX_EXPORT QPushButtonLrud : public QPushButton
{
    Q_OBJECT

public:
    /** @p imagePath is a file or a resource. Icon and size are left to the caller. */
    QPushButtonLrud(QString imagePath, QWidget *parent);

    /** Whether the pixel at @p point is the key's own: in the image and not fully transparent. */
    bool covers(const QPoint &point) const;
    /** Where the last press was, in the key's coordinates. */
    QPoint pressPoint() const { return m_pressPoint; }

Q_SIGNALS:
    /** A press on a transparent pixel in the left half of the image. */
    void mousePressEventFromLeftOverlappedArea();
    /** The same in the right half. */
    void mousePressEventFromRightOverlappedArea();
    void mouseReleaseEventFromLeftOverlappedArea();
    void mouseReleaseEventFromRightOverlappedArea();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    bool isOverlapped(const QPoint &point) const;
    bool isLeftHalf(const QPoint &point) const;
    void endOwnPress(QMouseEvent *event);

    const QImage m_image;
    QPoint m_pressPoint;
    bool m_pressWasOverlapped = false;
};

#include "RoundedRect.h"

#include <algorithm>

QRegion roundedRect(const QRect &rect, int radius)
{
    const int fitting = std::min({radius, rect.width() / 2, rect.height() / 2});
    if (fitting < 1) {
        return QRegion(rect);
    }
    QRect circle(rect.topLeft(), QSize(2 * fitting, 2 * fitting));
    QRegion region = QRegion(rect.adjusted(fitting, 0, -fitting, 0))
        + QRegion(rect.adjusted(0, fitting, 0, -fitting));
    for (const bool atRight : {false, true}) {
        for (const bool atBottom : {false, true}) {
            circle.moveTo(atRight ? rect.x() + rect.width() - circle.width() : rect.x(),
                          atBottom ? rect.y() + rect.height() - circle.height() : rect.y());
            region += QRegion(circle, QRegion::Ellipse);
        }
    }
    return region;
}

#include "RoundedRect.h"

#include <algorithm>
#include <cmath>

QRegion roundedRect(const QRect &rect, int radius)
{
    const int fitting = std::max(0, std::min({radius, rect.width() / 2, rect.height() / 2}));
    QRegion region(rect.adjusted(0, fitting, 0, -fitting));
    for (int row = 0; row < fitting; ++row) {
        const double height = fitting - row - 0.5; // of the middle of the row above the centre
        const int cut = fitting - qRound(std::sqrt(fitting * fitting - height * height));
        const QRect span(rect.x() + cut, rect.y() + row, rect.width() - 2 * cut, 1);
        region += span;
        region += span.translated(0, rect.height() - 1 - 2 * row);
    }
    return region;
}

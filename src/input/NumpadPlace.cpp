#include "NumpadPlace.h"

#include <array>
#include <limits>

namespace {

constexpr int Gap = 8;

int kept(int pos, int length, int first, int last)
{
    return qMax(first, qMin(pos, last + 1 - length));
}

QRect keptInside(const QRect &rect, const QRect &space)
{
    return {QPoint(kept(rect.x(), rect.width(), space.left(), space.right()),
                   kept(rect.y(), rect.height(), space.top(), space.bottom())),
            rect.size()};
}

} // namespace

QPoint placeBeside(const QRect &field, QSize size, const QRect &space)
{
    const QPoint middle = field.center() - QRect({}, size).center();
    const std::array places {
        QPoint(field.right() + 1 + Gap, middle.y()),
        QPoint(field.left() - Gap - size.width(), middle.y()),
        QPoint(middle.x(), field.bottom() + 1 + Gap),
        QPoint(middle.x(), field.top() - Gap - size.height()),
    };
    QPoint best;
    int leastCovered = std::numeric_limits<int>::max();
    for (const QPoint &place : places) {
        const QRect rect = keptInside({place, size}, space);
        const QRect common = rect & field;
        const int covered = common.width() * common.height();
        if (covered < leastCovered) {
            leastCovered = covered;
            best = rect.topLeft();
        }
    }
    return best;
}

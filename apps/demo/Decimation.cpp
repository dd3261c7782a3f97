#include "Decimation.h"

#include <algorithm>

namespace {

using Iterator = QVector<Sample>::const_iterator;

QPointF point(const Sample &sample)
{
    return {sample.time, sample.level};
}

void appendColumn(QList<QPointF> &points, Iterator first, Iterator last)
{
    const auto byLevel = [](const Sample &a, const Sample &b) { return a.level < b.level; };
    const auto [lowest, highest] = std::minmax_element(first, last, byLevel);
    points.append(point(*std::min(lowest, highest)));
    if (lowest != highest) {
        points.append(point(*std::max(lowest, highest)));
    }
}

Iterator firstAfter(Iterator first, Iterator last, double time)
{
    return std::upper_bound(first, last, time,
                            [](double t, const Sample &sample) { return t < sample.time; });
}

} // namespace

QList<QPointF> Decimation::decimate(const QVector<Sample> &samples, double from, double to,
                                    int columns)
{
    QList<QPointF> points;
    if (columns < 1 || !(from < to) || samples.isEmpty()) {
        return points;
    }
    Iterator first =
        std::lower_bound(samples.cbegin(), samples.cend(), from,
                         [](const Sample &sample, double t) { return sample.time < t; });
    Iterator last = firstAfter(first, samples.cend(), to);
    first -= first == samples.cbegin() ? 0 : 1;
    last += last == samples.cend() ? 0 : 1;
    if (last - first <= 2 * columns) {
        std::transform(first, last, std::back_inserter(points), point);
        return points;
    }
    points.reserve(2 * columns + 4);
    for (int column = 0; first != last; ++column) {
        const double end =
            column < columns ? from + (to - from) * (column + 1) / columns : samples.last().time;
        const Iterator next = firstAfter(first, last, end);
        if (next != first) {
            appendColumn(points, first, next);
            first = next;
        }
    }
    return points;
}

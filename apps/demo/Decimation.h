#pragma once

#include <QList>
#include <QPointF>

#include "Run.h"

/// Thins a trace out to what a screen can show.
namespace Decimation {

/**
 * The samples with times from @p from to @p to as at most two points for each of @p columns: the
 * lowest and the highest level that fall into it, in the order in which they came. No peak is lost,
 * however narrow. Where there are fewer samples than that, they are all there.
 *
 * One sample beyond either end is included, so that the line reaches the edges.
 */
QList<QPointF> decimate(const QVector<Sample> &samples, double from, double to, int columns);

} // namespace Decimation

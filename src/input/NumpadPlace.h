#pragma once

#include <QRect>

/**
 * Where something of @p size goes in @p space so that it covers nothing of @p field: to the right,
 * left, below or above, the first that has room; where none has, the one that covers least of it.
 * It never leaves the space, if it fits at all.
 */
QPoint placeBeside(const QRect &field, QSize size, const QRect &space);

#pragma once

#include <QString>

#include "VexExport.h"

/** @file How long numbers are made readable: with a space between groups of three digits. */

namespace ThousandSeparators {

/**
 * Groups the digits on both sides of the point, counted from it. A sign stays in front, separators
 * that are there already do not count, and where no digit is before the point there is a 0.
 */
VEX_EXPORT QString added(const QString &text);

VEX_EXPORT QString removed(const QString &text);

/** A number without separators, with zeros in front so that it has @p digits before the point. */
VEX_EXPORT QString padded(const QString &text, int digits);

} // namespace ThousandSeparators

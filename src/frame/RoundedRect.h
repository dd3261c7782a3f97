#pragma once

#include <QRegion>

#include "VexExport.h"

/**
 * The rectangle with its corners rounded to quarter circles of @p radius pixels, no larger than
 * half its shorter side; with a radius below 1 the rectangle itself. To be used as a mask.
 */
VEX_EXPORT QRegion roundedRect(const QRect &rect, int radius);

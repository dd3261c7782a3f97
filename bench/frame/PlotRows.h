#pragma once

#include "harness/Suite.h"

/** @p scale shortens the time for which the plot is watched. */
void addPlotRows(Suite &suite, double scale);

#pragma once

#include "harness/Suite.h"

/** A slide between two full pages. The application object must be a QApplication. */
void addSlideRows(Suite &suite);

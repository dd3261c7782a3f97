#pragma once

#include "harness/Suite.h"

/** What message boxes leave behind. The application object must be a QApplication. */
void addMessageBoxRows(Suite &suite);

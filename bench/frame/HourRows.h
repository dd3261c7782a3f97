#pragma once

#include "DemoWindow.h"
#include "harness/Suite.h"
#include "link/Connections.h"

/** What an hour of events leaves behind. The references must be valid until the suite has run. */
void addHourRows(Suite &suite, DemoWindow &demo, Simulator &simulator, double scale);

#pragma once

#include "DemoWindow.h"
#include "harness/Suite.h"

/** Slides and the change of the theme. @p demo must live until the suite has run. */
void addWindowRows(Suite &suite, DemoWindow &demo);

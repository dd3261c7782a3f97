#pragma once

#include "harness/Program.h"
#include "harness/Suite.h"

/** Setting a property that has listeners; saving and loading many. */
void addPropertiesRows(Suite &suite, const ProgramOptions &options);

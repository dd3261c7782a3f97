#pragma once

#include "harness/Program.h"

/** What a field for numbers and its numpad take for each act of the user. */
void addEditRows(Suite &suite, const ProgramOptions &options);

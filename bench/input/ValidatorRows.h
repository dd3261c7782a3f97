#pragma once

#include "harness/Program.h"

/** One validate() of each validator, beside Qt's own pair on the same texts. */
void addValidatorRows(Suite &suite, const ProgramOptions &options);

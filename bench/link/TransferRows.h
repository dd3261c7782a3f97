#pragma once

#include "LinkRows.h"

/** One large file and many small ones, in both directions, and the memory that this takes. */
void addTransferRows(Suite &suite, const LinkBench &bench);

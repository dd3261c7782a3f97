#pragma once

#include "harness/Suite.h"

class Folders;

/** The model over the local disk. The folders must outlive the suite. */
void addLocalRows(Suite &suite, const Folders &folders);

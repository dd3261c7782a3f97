#pragma once

#include "harness/Suite.h"

class FcpAppCORBA;
class Folders;

/** The tree over the controller's files. Both must outlive the suite. */
void addRemoteRows(Suite &suite, Folders &folders, FcpAppCORBA &controller);

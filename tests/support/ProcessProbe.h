#pragma once

/** @file What this process has open, as the kernel counts it. */

int openDescriptors();
/** Of them the sockets: threads that start meanwhile open descriptors of other kinds. */
int openSockets();
int runningThreads();

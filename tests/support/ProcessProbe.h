#pragma once

/** @file What this process has open, as the kernel counts it. */

int openDescriptors();
int runningThreads();

/**
 * Moves this process, and the programs it starts from now on, into a network with nothing but a
 * loopback interface, so that ports are its own. Call it at the begin of main().
 * @return false when the system does not allow it.
 */
bool enterPrivateNetwork();

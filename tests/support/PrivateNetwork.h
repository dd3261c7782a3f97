#pragma once

#include "FileDescriptor.h"

/**
 * Moves this process, and the programs it starts from now on, into a network with nothing but a
 * loopback interface, so that ports are its own. Call it at the begin of main().
 * @return false when the system does not allow it; the process stays where it is then.
 */
bool enterPrivateNetwork();

/**
 * Adds an interface with an IPv4 address to the private network, for as long as the result is
 * open. Not valid when the system does not allow it.
 */
FileDescriptor addInterface(const char *address);

#pragma once

#include <QtGlobal>

#include "FileDescriptor.h"

/** @file TCP sockets on 127.0.0.1. */

/** Listens without blocking; port 0 means any. A port that is taken ends the program. */
FileDescriptor listenOn(quint16 port);
/** Not valid when the connection is refused. */
FileDescriptor connectTo(quint16 port);
quint16 localPort(const FileDescriptor &socket);
/** Also sends at once what is written. */
void makeNonBlocking(const FileDescriptor &socket);
/** Closing it sends a RST instead of a FIN. */
void resetOnClose(const FileDescriptor &socket);

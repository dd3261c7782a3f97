#pragma once

#include <QtGlobal>

/**
 * Turns the first SIGINT, SIGTERM or SIGHUP into a request that the command can honour in its own
 * time; a second one ends the program at once, as if this object were not there.
 *
 * One at a time. Make it before the link, so that no thread of the ORB misses it.
 */
class Interrupt
{
public:
    Interrupt();
    ~Interrupt();
    Q_DISABLE_COPY_MOVE(Interrupt)

    bool requested() const { return signal() != 0; }
    /// The signal that asked for the end; 0 when none did.
    int signal() const;
    /// The exit code that tells of it, as shells have it: 130 for Ctrl-C.
    int exitCode() const { return 128 + signal(); }
    /// Readable once the end was asked for.
    int descriptor() const;
};

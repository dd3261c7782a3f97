#pragma once

/**
 * The body of a simulated test's process, "fcp-sim --test-process START RUN CLOSE": after START
 * milliseconds it listens on a port of the loopback address, where it sends its name to everybody
 * who connects; after RUN milliseconds more (0: never), or on SIGTERM, it begins to close, and it
 * ends after CLOSE milliseconds more. See TestRunner for what it prints.
 * @return the exit code
 */
int runTestProcess(int argc, char **argv);

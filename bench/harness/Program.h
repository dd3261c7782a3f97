#pragma once

#include <QString>

#include <functional>
#include <vector>

#include "Suite.h"

/** What is said on the command line of every benchmark program. */
struct ProgramOptions
{
    QString directory; ///< an empty one, in memory
    double scale = 1; ///< how much of everything is done, above 0 and up to 1
    QString markdown; ///< the file that keeps the table; may be empty
};

/**
 * The body of main() of the program bench-NAME: reads the options, measures, and prints the rows.
 * The application object exists already.
 * @return the exit code: 0 when all rows reach what they must, 1 when one does not, 2 for a wrong
 *     option, 3 when it could not be measured.
 */
int runProgram(const QString &name, int argc, char **argv,
               const std::function<std::vector<Row>(const ProgramOptions &)> &measure);

#pragma once

#include <QString>

/// How the program ends. The numbers are what scripts rely on.
enum class Exit {
    Done = 0,
    Failed = 1, ///< refused by the instrument, or failed on either side
    Usage = 2, ///< the command line makes no sense
    NoLink = 3, ///< no link to the controller, or it was lost
};

/// Thrown by whatever can not go on; main() prints the message and ends with the code.
struct Failure
{
    Exit exit = Exit::Failed;
    QString message;
};

/// The failure of what was to be done with the file or directory @p path, here or there.
Failure fileFailure(const QString &path, const QString &reason);

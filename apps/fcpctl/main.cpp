// fcpctl: the instrument's controller from a shell.

#include "CommandLine.h"
#include "Output.h"
#include "Text.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    Output::reserveStandardStreams();
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments += fromShell(argv[i]);
    }
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("fcpctl"));
    QCoreApplication::setApplicationVersion(QStringLiteral(FCPCTL_VERSION));
    try {
        return runCommandLine(arguments);
    } catch (const Failure &failure) {
        Output::error(failure.message);
        return static_cast<int>(failure.exit);
    }
}

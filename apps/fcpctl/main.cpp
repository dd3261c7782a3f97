// fcpctl: the instrument's controller from a shell.

#include "CommandLine.h"
#include "Output.h"
#include "Text.h"

#include <QCoreApplication>
#include <QLoggingCategory>

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
    // The messages of failures tell the same; QT_LOGGING_RULES brings the log back.
    QLoggingCategory::setFilterRules(QStringLiteral("vex.*.warning=false"));
    try {
        return runCommandLine(arguments);
    } catch (const Failure &failure) {
        Output::error(failure.message);
        return static_cast<int>(failure.exit);
    }
}

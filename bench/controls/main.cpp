// What an application does all the time without the controller, beside plain Qt doing the same.

#include <QCoreApplication>

#include "PropertiesRows.h"
#include "harness/Program.h"

namespace {

std::vector<Row> measure(const ProgramOptions &options)
{
    Suite suite;
    addPropertiesRows(suite, options);
    return suite.run();
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return runProgram(QStringLiteral("controls"), argc, argv, measure);
}

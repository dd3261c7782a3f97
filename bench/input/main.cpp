// What the editing of a number costs, beside plain Qt.

#include <QApplication>

#include "EditRows.h"
#include "ValidatorRows.h"
#include "harness/Program.h"

namespace {

std::vector<Row> measure(const ProgramOptions &options)
{
    Suite suite;
    addValidatorRows(suite, options);
    addEditRows(suite, options);
    return suite.run();
}

} // namespace

int main(int argc, char **argv)
{
    // Software rendering, whatever the machine has.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return runProgram(QStringLiteral("input"), argc, argv, measure);
}

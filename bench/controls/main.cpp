// What an application does all the time without the controller, beside plain Qt doing the same.

#include <QApplication>

#include "MessageBoxRows.h"
#include "PropertiesRows.h"
#include "SlideRows.h"
#include "harness/Program.h"

namespace {

std::vector<Row> measure(const ProgramOptions &options)
{
    Suite suite;
    addPropertiesRows(suite, options);
    addSlideRows(suite);
    addMessageBoxRows(suite);
    return suite.run();
}

} // namespace

int main(int argc, char **argv)
{
    // Software rendering, whatever the machine has.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return runProgram(QStringLiteral("controls"), argc, argv, measure);
}

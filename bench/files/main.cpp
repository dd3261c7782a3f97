// The file models, beside the toolkit's own and beside plain loops.

#include <QApplication>

#include "Folders.h"
#include "LocalRows.h"
#include "RemoteRows.h"
#include "harness/Program.h"
#include "link/Connections.h"

namespace {

std::vector<Row> measure(const ProgramOptions &options)
{
    Folders folders(options.directory, options.scale);
    const Simulator simulator(folders.serverRoot());
    VexConnection connection(simulator.port());
    Suite suite;
    addRemoteRows(suite, folders, connection.controller());
    addLocalRows(suite, folders);
    return suite.run();
}

} // namespace

int main(int argc, char **argv)
{
    // Software rendering, whatever the machine has.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return runProgram(QStringLiteral("files"), argc, argv, measure);
}

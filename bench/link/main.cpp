// The controller link, beside plain TCP, a bare ORB and the usual programs for carrying files.

#include <QCoreApplication>

#include "Connections.h"
#include "RawClient.h"
#include "TransferRows.h"
#include "Workbench.h"
#include "harness/Program.h"

namespace {

std::vector<Row> measure(const ProgramOptions &options)
{
    const Workbench workbench(options.directory, options.scale);
    workbench.makeListedDirectory();
    Simulator simulator(workbench.serverRoot());
    VexConnection connection(simulator.port());
    RawClient raw;
    BareStub stub(simulator.port(), connection.orbArguments());
    Suite suite;
    const LinkBench bench {workbench, simulator, connection, raw, stub};
    addTransferRows(suite, bench);
    addCallRows(suite, bench);
    return suite.run();
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return runProgram(QStringLiteral("link"), argc, argv, measure);
}

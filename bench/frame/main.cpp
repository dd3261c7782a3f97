// The frame as a person meets it: the level meter's start, its slides, its plot, and an hour of it.

#include <QApplication>
#include <QDir>

#include <Platform.h>

#include "DemoWindow.h"
#include "HourRows.h"
#include "PlotRows.h"
#include "StartRows.h"
#include "WindowRows.h"
#include "harness/Program.h"
#include "link/Connections.h"

using namespace Qt::StringLiterals;

namespace {

std::vector<Row> measure(const ProgramOptions &options)
{
    const QDir directory(options.directory);
    Simulator simulator(directory.filePath(u"root"_s));
    DemoWindow demo(directory, simulator.port());
    Suite suite;
    addStartRows(suite, directory, simulator.port());
    addWindowRows(suite, demo);
    addPlotRows(suite, options.scale);
    addHourRows(suite, demo, simulator, options.scale);
    return suite.run();
}

} // namespace

int main(int argc, char **argv)
{
    // Software rendering, whatever the machine has.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Platform::setLook();
    return runProgram(u"frame"_s, argc, argv, measure);
}

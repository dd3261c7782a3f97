// The controller link, beside plain TCP, a bare ORB and the usual programs for carrying files.

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <exception>

#include "Connections.h"
#include "RawClient.h"
#include "TransferRows.h"
#include "Workbench.h"
#include "harness/Machine.h"
#include "harness/Report.h"

using namespace Qt::StringLiterals;

namespace {

struct Options
{
    QString directory;
    QString markdown;
    double scale = 1;
};

Options readOptions()
{
    const QCommandLineOption directory(u"directory"_s,
                                       u"An empty directory of memory to work in."_s, u"path"_s);
    const QCommandLineOption markdown(u"markdown"_s, u"Keep the table in this Markdown file."_s,
                                      u"file"_s);
    const QCommandLineOption scale(
        u"scale"_s, u"Carry, list and send less, for a quick look (default 1)."_s, u"factor"_s);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Measures the controller link. Options of Google Benchmark work too."_s);
    parser.addHelpOption();
    parser.addOptions({directory, markdown, scale});
    parser.process(*QCoreApplication::instance());
    Options options;
    options.directory = parser.value(directory);
    options.markdown = parser.value(markdown);
    if (parser.isSet(scale)) {
        options.scale = parser.value(scale).toDouble();
    }
    if (!QFileInfo(options.directory).isDir() || options.scale <= 0 || options.scale > 1) {
        parser.showHelp(2);
    }
    return options;
}

std::vector<Row> measure(const Options &options)
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

QString markdownSection(const std::vector<Row> &rows, const Options &options,
                        const QString &machine)
{
    QString command = u"scripts/bench link"_s;
    if (options.scale != 1) {
        command += u" --scale %1"_s.arg(options.scale);
    }
    return u"Command: `%1`. Date: %2.\nMachine: %3.\n\n%4"_s.arg(
        command, QDateTime::currentDateTime().toString(Qt::ISODate), machine, markdownTable(rows));
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    const QCoreApplication application(argc, argv);
    const Options options = readOptions();
    const AwakeProcessors awake;
    const QString machine = describeMachine()
        + (awake.isGranted() ? u", processors kept awake"_s : u", processors may sleep"_s);
    try {
        const std::vector<Row> rows = measure(options);
        std::printf("%s\n\n%s", qPrintable(machine), qPrintable(plainTable(rows)));
        if (!options.markdown.isEmpty()) {
            const QString error = replaceSection(options.markdown, u"link"_s,
                                                 markdownSection(rows, options, machine));
            if (!error.isEmpty()) {
                throw std::runtime_error(error.toStdString());
            }
        }
        return allMet(rows) ? 0 : 1;
    } catch (const std::exception &exception) {
        std::fprintf(stderr, "bench-link: %s\n", exception.what());
        return 3;
    }
}

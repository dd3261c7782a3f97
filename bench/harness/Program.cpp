#include "Program.h"

#include <QCommandLineParser>
#include <QDateTime>
#include <QFileInfo>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <exception>
#include <stdexcept>

#include "Machine.h"
#include "Report.h"

using namespace Qt::StringLiterals;

namespace {

void printHelp()
{
    std::puts("  --directory DIR    an empty directory of memory to work in\n"
              "  --scale FACTOR     do less of everything, for a quick look (default 1)\n"
              "  --markdown FILE    keep the table in this Markdown file\n"
              "and the options of Google Benchmark:\n");
    benchmark::PrintDefaultHelp();
}

/// @return an error text, empty after success.
QString readOptions(int argc, char **argv, ProgramOptions &options)
{
    const QCommandLineOption directory(u"directory"_s, {}, u"path"_s);
    const QCommandLineOption markdown(u"markdown"_s, {}, u"file"_s);
    const QCommandLineOption scale(u"scale"_s, {}, u"factor"_s);
    QCommandLineParser parser;
    parser.addOptions({directory, markdown, scale});
    QStringList words;
    for (int i = 0; i < argc; ++i) {
        words.append(QString::fromLocal8Bit(argv[i]));
    }
    if (!parser.parse(words)) {
        return parser.errorText();
    }
    options.directory = parser.value(directory);
    options.markdown = parser.value(markdown);
    if (!QFileInfo(options.directory).isDir()) {
        return u"--directory: expected a directory, found \"%1\""_s.arg(options.directory);
    }
    if (parser.isSet(scale)) {
        options.scale = parser.value(scale).toDouble();
    }
    if (options.scale <= 0 || options.scale > 1) {
        return u"--scale: expected a number above 0 and up to 1, found \"%1\""_s.arg(
            parser.value(scale));
    }
    return {};
}

QString markdownSection(const QString &name, const ProgramOptions &options, const QString &machine,
                        const std::vector<Row> &rows)
{
    QString command = u"scripts/bench "_s + name;
    if (options.scale < 1) {
        command += u" --scale %1"_s.arg(options.scale);
    }
    return u"Command: `%1`. Date: %2.\nMachine: %3.\n\n%4"_s.arg(
        command, QDateTime::currentDateTime().toString(Qt::ISODate), machine, markdownTable(rows));
}

void report(const QString &name, const ProgramOptions &options, const QString &machine,
            const std::vector<Row> &rows)
{
    std::printf("%s\n\n%s", qPrintable(machine), qPrintable(plainTable(rows)));
    if (options.markdown.isEmpty()) {
        return;
    }
    const QString error =
        replaceSection(options.markdown, name, markdownSection(name, options, machine, rows));
    if (!error.isEmpty()) {
        throw std::runtime_error(error.toStdString());
    }
}

} // namespace

int runProgram(const QString &name, int argc, char **argv,
               const std::function<std::vector<Row>(const ProgramOptions &)> &measure)
{
    benchmark::Initialize(&argc, argv, printHelp);
    ProgramOptions options;
    const QString error = readOptions(argc, argv, options);
    if (!error.isEmpty()) {
        std::fprintf(stderr, "bench-%s: %s\n", qPrintable(name), qPrintable(error));
        return 2;
    }
    const AwakeProcessors awake;
    const QString machine = describeMachine()
        + (awake.isGranted() ? u", processors kept awake"_s : u", processors may sleep"_s);
    try {
        const std::vector<Row> rows = measure(options);
        report(name, options, machine, rows);
        return allMet(rows) ? 0 : 1;
    } catch (const std::exception &exception) {
        std::fprintf(stderr, "bench-%s: %s\n", qPrintable(name), exception.what());
        return 3;
    }
}

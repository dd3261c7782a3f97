#include "StartRows.h"

#include "harness/ChildProcess.h"
#include "harness/Stopwatch.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Rounds = 9;
constexpr double Milli = 1e-3;

/// From the start of the process to the line that it writes after its first complete frame.
double secondsToShow(const QString &program, const QStringList &arguments)
{
    std::unique_ptr<ChildProcess> process;
    return secondsOf([&] {
        process = std::make_unique<ChildProcess>(besideThisProgram(program), arguments);
        process->waitForLine(program.section(u"bench-"_s, -1) + u": shown"_s);
    });
}

} // namespace

void addStartRows(Suite &suite, const QDir &directory, quint16 port)
{
    qputenv("LEVEL_METER_REPORT", "1");
    const QStringList arguments = {u"--fcp"_s,        u"127.0.0.1:%1"_s.arg(port),
                                   u"--properties"_s, directory.filePath(u"start-settings"_s),
                                   u"--results"_s,    directory.filePath(u"start-results"_s)};
    const auto demo = [arguments] { return secondsToShow(u"level-meter"_s, arguments); };
    Comparison start;
    start.name = u"start to the first complete frame, link up"_s;
    start.work = {1, u"ms"_s, Milli};
    start.subject = {u"level-meter"_s, demo, {}, {}};
    start.rivals = {{u"bare QMainWindow"_s,
                     [] { return secondsToShow(u"bench-bare-window"_s, {}); },
                     Demand::timeAtMost(3),
                     {}}};
    start.rounds = Rounds;
    suite.add(start);
    suite.add({u"that start"_s, u"ms"_s, 400, [demo] { return demo() / Milli; }, Rounds});
}

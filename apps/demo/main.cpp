// level-meter: an instrument application to learn from. It measures the level and the bit errors of
// a received signal; the values are made up, the test that they belong to runs at the controller.

#include "ControllerLink.h"
#include "Framework.h"
#include "Meter.h"
#include "MeterWindow.h"
#include "Options.h"
#include "Platform.h"
#include "Settings.h"
#include "SimulatedSource.h"
#include "StartReport.h"
#include "tour/Tour.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <frame/FwLog.h>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

enum ExitCode { Done = 0, Failed = 1, Misused = 2 };

int complain(const QString &message, ExitCode code)
{
    std::fprintf(stderr, "level-meter: %s\n", qPrintable(message));
    return code;
}

/// The order of the parts is that of their lives: what is made later uses what was made before.
int run(const Options &options, QVector<QString> &words)
{
    Settings settings(options.settingsFolder);
    ControllerLink link;
    const bool isTour = !options.tourFolder.isEmpty();
    if (options.useLink && !isTour) {
        link.start(options.host, options.port); // comes up while the window is made
    }
    Meter meter(std::make_unique<SimulatedSource>());
    MeterWindow window(words, settings, meter, link, options.resultsFolder);
    const Framework framework(window, meter, link);
    window.resize(options.size);
    const StartReport report(window, link);
    window.show();
    if (!isTour) {
        return QApplication::exec();
    }
    Tour tour(window, settings, meter, link, options.tourFolder, options.resultsFolder);
    QObject::connect(&tour, &QThread::finished, &window, &QCoreApplication::quit);
    // The window is gone at the tour's end, but not the tour.
    QApplication::setQuitOnLastWindowClosed(false);
    tour.start();
    while (!tour.isFinished()) {
        QApplication::exec();
    }
    return tour.hasPassed() ? Done : Failed;
}

/// Beside the settings; a tour's beside its pictures, where only what goes wrong is to be read.
void startLog(const Options &options)
{
    const bool isTour = !options.tourFolder.isEmpty();
    FwLog::Options log;
    log.standardError = !isTour;
    log.filePath =
        QDir(isTour ? options.tourFolder : options.settingsFolder).filePath(u"level-meter.log"_s);
    FwLog::instance().start(log);
}

/// A tour changes settings and saves results: not those of the person who has asked for it.
int runTour(Options options, QVector<QString> &words)
{
    const QTemporaryDir folder;
    options.settingsFolder = folder.filePath(u"settings"_s);
    options.resultsFolder = folder.filePath(u"results"_s);
    return run(options, words);
}

} // namespace

int main(int argc, char *argv[])
{
    // A colour of its own, unless the command line has another: the last one counts.
    QVector<QString> words = {u"--appColor=38,70,83"_s};
    for (int i = 1; i < argc; ++i) {
        words += QString::fromLocal8Bit(argv[i]);
    }
    const Options options = Options::parse(words);
    if (!options.error.isEmpty()) {
        return complain(options.error, Misused);
    }
    if (options.help) {
        std::fputs(qPrintable(Options::helpText()), stdout);
        return Done;
    }
    const bool isTour = !options.tourFolder.isEmpty();
    startLog(options);
    const Platform platform(isTour, options.size);
    if (!platform.error().isEmpty()) {
        return complain(platform.error(), Failed);
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"level-meter"_s);
    Platform::setLook();
    return isTour ? runTour(options, words) : run(options, words);
}

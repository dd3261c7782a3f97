#include "Tour.h"

#include "ControllerLink.h"
#include "Meter.h"
#include "MeterWindow.h"
#include "RunFile.h"
#include "Settings.h"
#include "TracePlot.h"

#include <QElapsedTimer>

#include <frame/ColorTheme.h>
#include <frame/VexTranslation.h>

#include <cstdio>

using namespace Qt::StringLiterals;

Tour::Tour(MeterWindow &window, Settings &settings, Meter &meter, ControllerLink &link,
           const QString &pictureFolder, const QString &resultsFolder)
    : m_window(window)
    , m_settings(settings)
    , m_meter(meter)
    , m_link(link)
    , m_resultsFolder(resultsFolder)
    , m_stage(window, pictureFolder)
{
    QDir().mkpath(pictureFolder);
}

void Tour::run()
{
    static constexpr Step steps[] = {
        {"start", &Tour::seeStart},
        {"help", &Tour::readHelp},
        {"numpad", &Tour::enterByNumpad},
        {"wheel and keys", &Tour::enterByWheelAndKeys},
        {"pattern", &Tour::enterPattern},
        {"settings are saved", &Tour::findSettingsSaved},
        {"language", &Tour::changeLanguage},
        {"theme", &Tour::changeTheme},
        {"choice of the test", &Tour::chooseTest},
        {"run", &Tour::startRun},
        {"plot", &Tour::usePlot},
        {"end of the run", &Tour::finishRun},
        {"save", &Tour::saveResult},
        {"result browser", &Tour::browseResults},
        {"upload", &Tour::uploadResult},
        {"files of the instrument", &Tour::seeInstrumentFiles},
        {"link lost and back", &Tour::loseLink},
        {"stop without a link", &Tour::stopWithoutLink},
        {"instrument restarted", &Tour::loseInstrument},
        {"mission control", &Tour::openMissionControl},
        {"log", &Tour::readLog},
        {"autosave", &Tour::saveByItself},
        {"close", &Tour::closeApplication},
    };
    TourSimulator simulator;
    m_simulator = &simulator;
    for (const Step &step : steps) {
        play(step);
    }
    m_simulator = nullptr;
}

void Tour::play(const Step &step)
{
    QElapsedTimer clock;
    clock.start();
    try {
        (this->*step.play)();
        std::printf("ok      %s (%.1f s)\n", step.name,
                    static_cast<double>(clock.elapsed()) / 1000);
    } catch (const Missed &missed) {
        ++m_misses;
        std::printf("FAILED  %s: expected that %s\n", step.name, qPrintable(missed.what));
        try {
            m_stage.picture(u"failed"_s);
        } catch (const Missed &) {
            // There is no more to be told.
        }
    }
    std::fflush(stdout);
}

/// A letter or figure is its own key; "." and "-" are those of the point and the sign.
void Tour::type(const QString &keys)
{
    for (const QChar key : keys) {
        const QString name = key == u'.' ? u"Point"_s : key == u'-' ? u"Sign"_s : QString(key);
        m_stage.tap(u"NumpadKey_"_s + name);
    }
}

void Tour::startSimulator()
{
    const QString error = m_simulator->start();
    if (!error.isEmpty()) {
        throw Missed {u"the simulator runs, but %1"_s.arg(error)};
    }
}

void Tour::waitForMeasurement()
{
    const auto before = m_stage.ask([this] { return m_meter.run().samples().size(); });
    m_stage.expect(u"measured values come"_s, [&] {
        return m_meter.state() == Meter::State::Running
            && m_meter.run().samples().size() > before + 300;
    });
}

QString Tour::onlyResult() const
{
    const QStringList names = results();
    if (names.size() != 1) {
        throw Missed {u"there is one result, not %1"_s.arg(names.size())};
    }
    return QDir(m_resultsFolder).filePath(names.constFirst());
}

QStringList Tour::results() const
{
    return QDir(m_resultsFolder).entryList(QDir::Files);
}

/// From another page; ends on the setup page.
void Tour::enterDuration(const QString &seconds)
{
    m_stage.tap(u"FwLabelRow|SETUP"_s);
    m_stage.expectShown(u"SetupStart"_s);
    m_stage.tap(u"Duration"_s);
    m_stage.expectShown(u"NumpadPanel"_s);
    m_stage.tap(u"NumpadKey_Clear"_s);
    type(seconds);
    m_stage.tap(u"NumpadOk"_s);
    m_stage.expectGone(u"NumpadPanel"_s);
    m_stage.expect(u"the duration is %1 s"_s.arg(seconds),
                   [&] { return m_settings.value(Settings::Duration) == seconds.toDouble(); });
}

/// Long enough for any machine: it is not to end before the step has ended it.
void Tour::startLongRun()
{
    enterDuration(u"600"_s);
    m_stage.tap(u"SetupStart"_s);
    m_stage.expectShown(u"StartStop"_s);
    waitForMeasurement();
}

/// And keeps it down, with the controller alive, until the simulator's faults are cleared.
void Tour::cutLink()
{
    if (!m_simulator->command("fault registerApp:*:close")
        || !m_simulator->command("fault isMaximumClientCountOK:*:close")) {
        throw Missed {u"the simulator obeys"_s};
    }
    m_stage.expectText(u"LinkChip"_s, u"Link lost"_s);
    m_stage.expect(u"the run waits for the link"_s,
                   [this] { return m_meter.state() == Meter::State::Interrupted; });
}

void Tour::waitForLink()
{
    if (!m_simulator->command("faults clear")) {
        throw Missed {u"the simulator obeys"_s};
    }
    m_stage.expectText(u"LinkChip"_s, u"Link up"_s);
}

void Tour::seeStart()
{
    m_stage.expectShown(u"SetupPage"_s);
    m_stage.expectText(u"LinkChip"_s, u"No link"_s);
    startSimulator();
    const int port = m_simulator->port();
    m_stage.ask([this, port] {
        m_link.start(u"127.0.0.1"_s, port);
        return true;
    });
    m_stage.expectText(u"LinkChip"_s, u"Link up"_s);
    m_stage.picture(u"start"_s);
}

void Tour::readHelp()
{
    m_stage.tap(u"Help"_s);
    m_stage.expectShown(u"HelpBrowser"_s);
    m_stage.picture(u"help"_s);
    m_stage.tap(u"HelpClose"_s);
    m_stage.expectGone(u"HelpBrowser"_s);
}

void Tour::enterByNumpad()
{
    m_stage.tap(u"Threshold"_s);
    m_stage.expectShown(u"NumpadPanel"_s);
    type(u"20.5-"_s);
    m_stage.picture(u"numpad"_s);
    m_stage.tap(u"NumpadOk"_s);
    m_stage.expectGone(u"NumpadPanel"_s);
    m_stage.expect(u"the threshold is -20.5"_s,
                   [this] { return m_settings.value(Settings::Threshold) == -20.5; });
}

void Tour::enterByWheelAndKeys()
{
    const auto isDuration = [this](double wanted) {
        return [this, wanted] { return m_settings.value(Settings::Duration) == wanted; };
    };
    m_stage.tap(u"Duration"_s);
    m_stage.tap(u"NumpadEditDigits"_s);
    m_stage.expectShown(u"LrudArrow_up"_s);
    m_stage.tap(u"LrudArrow_up"_s);
    m_stage.tap(u"LrudArrow_up"_s);
    m_stage.expect(u"the keys have raised the duration to 10 s"_s, isDuration(10));
    m_stage.turnWheel(u"Duration"_s, 5);
    m_stage.expect(u"the wheel has raised the duration to 15 s"_s, isDuration(15));
    m_stage.picture(u"wheel"_s);
    m_stage.tap(u"LrudNumpad"_s);
    m_stage.tap(u"NumpadCancel"_s);
    m_stage.tap(u"NumbersHeading"_s);
    m_stage.expectGone(u"LrudArrow_up"_s);
}

void Tour::enterPattern()
{
    m_stage.tap(u"PatternHex"_s);
    m_stage.tap(u"NumpadKey_Clear"_s);
    type(u"1B4D"_s);
    m_stage.picture(u"pattern-numpad"_s);
    m_stage.tap(u"NumpadOk"_s);
    m_stage.expectText(u"PatternHex"_s, u"00001B4D"_s);
    m_stage.expectText(u"PatternBin"_s, u"00000000000000000001101101001101"_s);
    // By Gray code 00 01 10 11 01 00 11 01 is 0 1 3 2 1 0 2 1.
    m_stage.expectText(u"PatternPam4"_s, u"0000000001321021"_s.right(16));
    m_stage.picture(u"pattern"_s);
}

void Tour::findSettingsSaved()
{
    const QString path = m_stage.ask([this] { return m_settings.path(); });
    m_stage.expect(u"the pattern is in %1"_s.arg(path), [path] {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) && file.readAll().contains("1b4d");
    });
}

void Tour::changeLanguage()
{
    m_stage.tap(u"Language"_s);
    m_stage.expectShown(u"Choices"_s);
    m_stage.picture(u"languages"_s);
    m_stage.tapRow(u"Choices"_s, u"Deutsch"_s);
    m_stage.expect(u"the language is German"_s,
                   [] { return VexTranslation::installed() == u"de"_s; });
    m_stage.expectText(u"Language"_s, u"Deutsch"_s);
    m_stage.expectText(u"SetupStart"_s, u"Test starten"_s);
    m_stage.picture(u"german"_s);
    m_stage.tap(u"Language"_s);
    m_stage.tapRow(u"Choices"_s, u"English"_s);
    m_stage.expectText(u"Language"_s, u"English"_s);
    m_stage.expectGone(u"Choices"_s);
}

void Tour::changeTheme()
{
    m_stage.tap(u"Theme"_s);
    m_stage.expect(u"the colours are light"_s,
                   [] { return ColorTheme::current() == ColorTheme::light(); });
    m_stage.picture(u"light"_s);
    m_stage.tap(u"Theme"_s);
    m_stage.expect(u"the colours are dark"_s,
                   [] { return ColorTheme::current() == ColorTheme::dark(); });
}

void Tour::chooseTest()
{
    m_stage.tap(u"TestName"_s);
    m_stage.expectShown(u"Choices"_s);
    m_stage.picture(u"tests"_s);
    m_stage.tapRow(u"Choices"_s, u"BERT"_s);
    m_stage.expectGone(u"Choices"_s);
    m_stage.expectText(u"TestName"_s, u"BERT"_s);
}

void Tour::startRun()
{
    m_stage.tap(u"SetupStart"_s);
    m_stage.expectText(u"RunState"_s, u"Measuring"_s);
    m_stage.expectText(u"StartStop"_s, u"Stop"_s);
    waitForMeasurement();
    m_stage.picture(u"running"_s);
}

/// Empty when there is no plot. GUI thread.
QRectF Tour::plotRange() const
{
    const auto *plot = qobject_cast<TracePlot *>(m_stage.shown(u"TracePlot"_s));
    return plot ? plot->visibleRange() : QRectF();
}

void Tour::usePlot()
{
    m_stage.expect(u"there is something to look at"_s,
                   [this] { return m_meter.run().samples().size() > 1500; });
    const QPoint centre = m_stage.ask([this] {
        const QWidget *plot = m_stage.shown(u"TracePlot"_s);
        return plot->mapTo(&m_window, QPoint(200, plot->height() / 2));
    });
    const QRectF all = m_stage.ask([this] { return plotRange(); });
    m_stage.pinch(centre, 120, 400);
    m_stage.expect(u"two fingers zoom the plot"_s,
                   [&] { return plotRange().width() < all.width() / 2; });
    const QRectF zoomed = m_stage.ask([this] { return plotRange(); });
    m_stage.drag(centre, centre + QPoint(60, 0));
    m_stage.expect(u"a finger moves the plot"_s,
                   [&] { return plotRange().left() < zoomed.left(); });
    m_stage.tapAt(centre - QPoint(60, 0));
    m_stage.tapAt(centre + QPoint(60, 40));
    m_stage.expect(u"two taps set the markers"_s,
                   [this] { return m_stage.text(u"MarkerReadout"_s).contains(u"B - A"_s); });
    m_stage.picture(u"markers"_s);
    if (m_stage.ask([this] { return m_stage.shown(u"ZoomIn"_s) != nullptr; })) {
        m_stage.tap(u"ZoomIn"_s);
        m_stage.tap(u"ZoomOut"_s);
    }
    m_stage.tap(u"Fit"_s);
    m_stage.expect(u"the plot shows all again"_s,
                   [&] { return plotRange().width() == all.width(); });
}

void Tour::finishRun()
{
    m_stage.expect(
        u"the run comes to its end"_s, [this] { return !m_meter.isBusy(); }, 180000);
    m_stage.expect(u"it is complete"_s,
                   [this] { return m_meter.run().ending == Run::Ending::Complete; });
    m_stage.expect(u"there is a verdict"_s, [this] {
        const QString verdict = m_stage.text(u"Verdict"_s);
        return verdict == u"PASS"_s || verdict == u"FAIL"_s;
    });
    m_stage.picture(u"verdict"_s);
}

void Tour::saveResult()
{
    m_stage.tap(u"Save"_s);
    m_stage.expectShown(u"CommitButton"_s);
    m_stage.picture(u"save"_s);
    m_stage.tap(u"CommitButton"_s);
    m_stage.expectShown(u"ResultTable"_s);
    m_stage.expect(u"the result that was saved is shown"_s, [this] {
        return m_stage.text(u"ResultName"_s) == QFileInfo(onlyResult()).fileName();
    });
    RunFile file;
    const QString error = file.read(onlyResult());
    if (!error.isEmpty()) {
        throw Missed {u"the result can be read, but %1"_s.arg(error)};
    }
    m_stage.expect(u"the file has all that was measured"_s,
                   [&] { return file.run.samples() == m_meter.run().samples(); });
    m_stage.picture(u"result"_s);
}

void Tour::browseResults()
{
    m_stage.tap(u"FwSlideUpButton"_s);
    m_stage.expectShown(u"FileList"_s);
    m_stage.picture(u"browser"_s);
    m_stage.tap(u"CancelButton"_s);
    m_stage.expectGone(u"FileList"_s);
    // The one that is shown would be no proof.
    const QString copy = u"copy.xml"_s;
    QFile::copy(onlyResult(), QDir(m_resultsFolder).filePath(copy));
    m_stage.tap(u"Browse"_s);
    m_stage.tapRow(u"FileList"_s, copy);
    m_stage.tap(u"CommitButton"_s);
    m_stage.expectText(u"ResultName"_s, copy);
    m_stage.tap(u"Delete"_s);
    m_stage.picture(u"delete"_s);
    m_stage.tap(u"MsgButtons|Yes"_s);
    m_stage.expect(u"the copy is deleted"_s, [this] { return results().size() == 1; });
    m_stage.tapRow(u"Results"_s, QFileInfo(onlyResult()).completeBaseName());
    m_stage.expectText(u"ResultName"_s, QFileInfo(onlyResult()).fileName());
}

void Tour::uploadResult()
{
    const QString path = onlyResult();
    m_stage.tap(u"Upload"_s);
    const QString remote = m_simulator->local(u"/Internal/"_s + QFileInfo(path).fileName());
    m_stage.expect(u"the result is on the instrument"_s, [&] {
        QFile here(path);
        QFile there(remote);
        return here.open(QIODevice::ReadOnly) && there.open(QIODevice::ReadOnly)
            && here.readAll() == there.readAll();
    });
    m_stage.picture(u"uploaded"_s);
}

void Tour::seeInstrumentFiles()
{
    m_stage.tap(u"Transfer"_s);
    m_stage.expectShown(u"CopyToRight"_s);
    m_stage.picture(u"transfer"_s);
    m_stage.tap(u"DlgCloseButton"_s);
    m_stage.expectGone(u"CopyToRight"_s);
}

void Tour::loseLink()
{
    startLongRun();
    cutLink();
    m_stage.picture(u"link-lost"_s);
    waitForLink();
    waitForMeasurement();
    m_stage.picture(u"link-back"_s);
    m_stage.tap(u"StartStop"_s);
    m_stage.expect(u"the run is stopped"_s, [this] {
        return !m_meter.isBusy() && m_meter.run().ending == Run::Ending::Stopped;
    });
}

void Tour::stopWithoutLink()
{
    m_stage.tap(u"StartStop"_s);
    waitForMeasurement();
    cutLink();
    m_stage.tap(u"StartStop"_s);
    m_stage.expect(u"the run is stopped without a link"_s, [this] { return !m_meter.isBusy(); });
    m_stage.picture(u"stopped-without-link"_s);
    waitForLink();
}

void Tour::loseInstrument()
{
    // Another run right after that one.
    m_stage.tap(u"StartStop"_s);
    waitForMeasurement();
    m_simulator->kill();
    m_stage.expectText(u"LinkChip"_s, u"Link lost"_s);
    m_stage.tap(u"LinkChip"_s);
    m_stage.expectShown(u"LinkPanel"_s);
    m_stage.picture(u"no-instrument"_s);
    // While there is nothing to find: the next attempt by itself could come before the finger.
    m_stage.tap(u"RetryLink"_s);
    startSimulator();
    m_stage.expectText(u"LinkChip"_s, u"Link up"_s);
    m_stage.expect(u"the run has ended, since its test is gone"_s, [this] {
        return !m_meter.isBusy() && m_meter.run().ending == Run::Ending::EndedByInstrument;
    });
    m_stage.tap(u"Level"_s);
    m_stage.expectGone(u"LinkPanel"_s);
    m_stage.picture(u"instrument-back"_s);
}

void Tour::openMissionControl()
{
    m_stage.tap(u"McGrip"_s);
    m_stage.tap(u"AutoSave"_s);
    m_stage.expectText(u"AutoSave"_s, u"Autosave: on"_s);
    m_stage.picture(u"mission-control"_s);
}

void Tour::readLog()
{
    m_stage.tap(u"ShowLog"_s);
    m_stage.expectShown(u"LogLines"_s);
    m_stage.expectGone(u"McClose"_s);
    m_stage.picture(u"log"_s);
    m_stage.tap(u"PanelHandle"_s);
    m_stage.expectGone(u"LogLines"_s);
}

void Tour::saveByItself()
{
    const qsizetype before = results().size();
    m_stage.tap(u"StartStop"_s);
    waitForMeasurement();
    m_stage.tap(u"StartStop"_s);
    m_stage.expect(u"the run is saved without a question"_s,
                   [&] { return !m_meter.isBusy() && results().size() == before + 1; });
    m_stage.expectShown(u"ResultTable"_s);
    // So that there is something to lose at the end.
    m_stage.tap(u"McGrip"_s);
    m_stage.tap(u"AutoSave"_s);
    m_stage.expectText(u"AutoSave"_s, u"Autosave: off"_s);
    m_stage.tapAt({60, 100}); // beside it
    m_stage.expectGone(u"McClose"_s);
    m_stage.tap(u"FwLabelRow|TEST"_s);
    m_stage.tap(u"StartStop"_s);
    waitForMeasurement();
}

void Tour::closeApplication()
{
    m_stage.tap(u"McGrip"_s);
    m_stage.tap(u"McClose"_s);
    m_stage.expectShown(u"MsgButtons"_s);
    m_stage.picture(u"close"_s);
    m_stage.tap(u"MsgButtons|No"_s);
    m_stage.expectGone(u"MsgButtons"_s);
    m_stage.expect(u"the window is still there"_s, [this] { return m_window.isVisible(); });
    m_stage.tap(u"McClose"_s);
    m_stage.tap(u"MsgButtons|Yes"_s);
    m_stage.expect(u"the window is gone"_s, [this] { return !m_window.isVisible(); });
}

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "Decimation.h"
#include "GuardedTest.h"
#include "Meter.h"
#include "Options.h"
#include "RunFile.h"
#include "Settings.h"
#include "SimulatedSource.h"
#include "Wording.h"

using namespace Qt::StringLiterals;

namespace {

Run measured(double seconds)
{
    Run run;
    run.settings.testName = u"BERT"_s;
    run.started = QDateTime(QDate(2026, 11, 21), QTime(22, 13, 44, 250));
    run.ending = Run::Ending::Complete;
    run.events = {{0.5, RunEvent::Warning, u"a < b & \"c\""_s}};
    SimulatedSource source;
    source.begin(run.settings);
    for (const Sample &sample : source.take(seconds)) {
        run.add(sample);
    }
    return run;
}

QString writeFile(const QTemporaryDir &folder, const QByteArray &contents)
{
    const QString path = folder.filePath(u"file.xml"_s);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() ? path
                                                                                      : QString();
}

/// What happens to a run, one letter each; "." lets the values of a moment come.
void tell(Meter &meter, char word)
{
    switch (word) {
    case 's':
        return meter.start({});
    case 'x':
        return meter.stop();
    case 'l':
        return meter.testLaunched(7);
    case 'n':
        return meter.testLaunched(0);
    case 'r':
        return meter.testPhaseKnown(7, TestPhase::Running);
    case 'g':
        return meter.testPhaseKnown(7, TestPhase::Gone);
    case 'o':
        return meter.testPhaseKnown(6, TestPhase::Gone);
    case 'd':
        return meter.linkLost({});
    case 'u':
        return meter.linkRestored();
    default:
        return QTest::qWait(70);
    }
}

} // namespace

class tst_demo : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatItWrote();
    void refusesWhatIsNoRun_data();
    void refusesWhatIsNoRun();
    void decimationKeepsEveryPeak();
    void runGoesThroughItsStates_data();
    void runGoesThroughItsStates();
    void settingsSurviveTheirFile_data();
    void settingsSurviveTheirFile();
    void optionsRefuseNonsense_data();
    void optionsRefuseNonsense();
    void linkReasonsAreForAPerson();
};

void tst_demo::readsWhatItWrote()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"run.xml"_s);
    const RunFile written {{u"FT2-00417"_s, u"LevelMeter"_s, u"Optical"_s, u"1/1"_s},
                           measured(2.5)};
    QCOMPARE(written.write(path), QString());
    RunFile read;
    QCOMPARE(read.read(path), QString());
    QCOMPARE(read.head, written.head);
    QCOMPARE(read.run.settings, written.run.settings);
    QCOMPARE(read.run.started, written.run.started);
    QVERIFY(read.run.events == written.run.events);
    QVERIFY(read.run.samples() == written.run.samples());
    QCOMPARE(read.run.ending, written.run.ending);
}

void tst_demo::refusesWhatIsNoRun_data()
{
    QTest::addColumn<QByteArray>("before"); // what stands in a good file
    QTest::addColumn<QByteArray>("after"); // what stands there instead
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const QByteArray &before, const QByteArray &after,
                        const QString &reason) {
        QTest::newRow(name) << before << after << reason;
    };
    row("too large", " first=", QByteArray(RunFile::largestFile, ' ') + " first=", u"larger"_s);
    row("no XML", "<?xml", "<!xml", u"begin"_s);
    row("long tag", "<Settings ", "<Settings " + QByteArray(5000, ' '), u"too long"_s);
    row("truncated", "</LevelMeterRun>", "", u"line"_s);
    row("behind the end", "</LevelMeterRun>", "</LevelMeterRun><x/>", u"line"_s);
    row("entities", "<!DOCTYPE VEX>", "<!DOCTYPE VEX [<!ENTITY a \"b\">]>", u"entities"_s);
    row("no document type", "<!DOCTYPE VEX>", "", u"document type"_s);
    row("another root", "LevelMeterRun>", "OtherRun>", u"another application"_s);
    row("unknown element", "<Ports>", "<Cables/><Ports>", u"unknown"_s);
    row("no number", "threshold=\"-20\"", "threshold=\"nan\"", u"number"_s);
    row("beyond the range", "sampleRate=\"500\"", "sampleRate=\"0\"", u"number"_s);
    row("no level", "first=\"0\">", "first=\"0\">one ", u"number"_s);
    row("no count of errors", "first=\"0\">", "first=\"0\">-13/-1 ", u"number"_s);
    row("backward", "</LevelMeterRun>", "<Samples first=\"0\">-13</Samples></LevelMeterRun>",
        u"order"_s);
}

void tst_demo::refusesWhatIsNoRun()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, reason);
    const QTemporaryDir folder;
    const QString good = folder.filePath(u"good.xml"_s);
    QCOMPARE((RunFile {{}, measured(0.1)}).write(good), QString());
    QFile file(good);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray contents = file.readAll();
    QVERIFY(contents.contains(before));
    RunFile read;
    read.head.serverId = u"as it was"_s;
    const QString error = read.read(writeFile(folder, QByteArray(contents).replace(before, after)));
    QVERIFY2(error.contains(reason), qPrintable(error));
    QCOMPARE(read.head.serverId, u"as it was"_s);
}

void tst_demo::decimationKeepsEveryPeak()
{
    QVector<Sample> samples;
    for (int i = 0; i < 10000; ++i) {
        samples.append({i * 0.002, i == 7777 ? -40.0 : i == 3333 ? 5.0 : -13.0, 0});
    }
    const QList<QPointF> points = Decimation::decimate(samples, 0, 20, 400);
    QVERIFY(points.size() <= 2 * 400 + 2);
    QVERIFY(points.contains(QPointF(7777 * 0.002, -40.0)));
    QVERIFY(points.contains(QPointF(3333 * 0.002, 5.0)));
    QVERIFY(std::is_sorted(points.begin(), points.end(),
                           [](QPointF a, QPointF b) { return a.x() < b.x(); }));
    QCOMPARE(Decimation::decimate(samples, 5, 5.1, 400).size(), 52); // and one beyond either end
}

void tst_demo::runGoesThroughItsStates_data()
{
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<Meter::State>("state");
    QTest::addColumn<Run::Ending>("ending");
    QTest::addColumn<int>("terminated");
    using State = Meter::State;
    using Ending = Run::Ending;
    const auto row = [](const char *words, State state, Ending ending, int terminated) {
        QTest::newRow(words) << QByteArray(words) << state << ending << terminated;
    };
    row("sl", State::Launching, Ending::NotStarted, 0);
    row("sn", State::Idle, Ending::NotStarted, 0);
    row("sd", State::Idle, Ending::NotStarted, 0);
    row("slg", State::Idle, Ending::NotStarted, 0);
    row("sxl", State::Stopping, Ending::NotStarted, 1);
    row("slr.x", State::Stopping, Ending::NotStarted, 1);
    row("slr.xg", State::Idle, Ending::Stopped, 1);
    row("slr.xd", State::Idle, Ending::Stopped, 1);
    row("slr.xdu", State::Idle, Ending::Stopped, 2);
    row("slr.o", State::Running, Ending::NotStarted, 0);
    row("slr.g", State::Idle, Ending::EndedByInstrument, 0);
    row("slr.d", State::Interrupted, Ending::NotStarted, 0);
    row("slr.dur", State::Running, Ending::NotStarted, 0);
    row("slr.dug", State::Idle, Ending::EndedByInstrument, 0);
    row("slr.dx", State::Idle, Ending::Stopped, 0);
    row("slr.dxu", State::Idle, Ending::Stopped, 1);
    row("slr.dxsulr", State::Running, Ending::NotStarted, 1);
}

void tst_demo::runGoesThroughItsStates()
{
    QFETCH(QByteArray, words);
    QFETCH(Meter::State, state);
    Meter meter(std::make_unique<SimulatedSource>());
    const QSignalSpy started(&meter, &Meter::started);
    const QSignalSpy finished(&meter, &Meter::finished);
    const QSignalSpy terminated(&meter, &Meter::terminateWanted);
    for (const char word : words) {
        tell(meter, word);
    }
    QCOMPARE(meter.state(), state);
    QTEST(meter.run().ending, "ending");
    QTEST(static_cast<int>(terminated.size()), "terminated");
    QCOMPARE(finished.size(), started.size() - (meter.isBusy() ? 1 : 0));
}

void tst_demo::settingsSurviveTheirFile_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<double>("read");
    QTest::newRow("good") << u"-12.5"_s << -12.5;
    QTest::newRow("too low") << u"-1e9"_s << -40.0;
    QTest::newRow("too high") << u"99"_s << 5.0;
    QTest::newRow("no number") << u"low"_s << -20.0;
    QTest::newRow("not finite") << u"nan"_s << -20.0;
}

void tst_demo::settingsSurviveTheirFile()
{
    QFETCH(QString, written);
    const QTemporaryDir folder;
    {
        Settings settings(folder.path());
        settings.setText(Settings::Threshold, written);
        settings.setPattern(0xBEEF);
    }
    {
        Settings settings(folder.path());
        QTEST(settings.value(Settings::Threshold), "read");
        QCOMPARE(settings.pattern(), quint64(0xBEEF));
        settings.restoreStandard();
    }
    QFile file(Settings(folder.path()).path());
    QVERIFY(file.resize(file.size() / 2));
    messages().allow(u"settings.xml"_s);
    QCOMPARE(Settings(folder.path()).value(Settings::Threshold), -20.0);
}

void tst_demo::optionsRefuseNonsense_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("error");
    const auto row = [](const QStringList &words, const QString &error) {
        QTest::newRow(qPrintable(words.join(u' '))) << words << error;
    };
    row({u"--fcp"_s, u"box:1234"_s, u"--size"_s, u"800x480"_s}, {});
    row({u"--fcp"_s, u"box"_s}, u"HOST:PORT"_s);
    row({u"--fcp"_s, u":5650"_s}, u"HOST:PORT"_s);
    row({u"--fcp"_s, u"box:65536"_s}, u"HOST:PORT"_s);
    row({u"--size"_s, u"799x480"_s}, u"--size wants"_s);
    row({u"--size"_s, u"800x"_s}, u"--size wants"_s);
    row({u"--tour="_s}, u"directory"_s);
    row({u"--colour"_s}, u"--help"_s);
    row({u"box:1234"_s}, u"unexpected word"_s);
}

void tst_demo::optionsRefuseNonsense()
{
    QFETCH(QStringList, words);
    QFETCH(QString, error);
    const Options options = Options::parse(words);
    QVERIFY2(options.error.contains(error), qPrintable(options.error));
    QCOMPARE(options.error.isEmpty(), error.isEmpty());
}

void tst_demo::linkReasonsAreForAPerson()
{
    QCOMPARE(
        Wording::linkReason(u"no link to box:1: the connection broke during a call; whether it "
                            "was carried out is unknown (COMM_FAILURE COMM_FAILURE_X)"_s),
        u"The connection broke."_s);
    QCOMPARE(Wording::linkReason(u"registered with box:1 as client 2"_s),
             u"Registered with box:1 as client 2"_s);
}

QTEST_GUILESS_MAIN(tst_demo)
#include "tst_demo.moc"

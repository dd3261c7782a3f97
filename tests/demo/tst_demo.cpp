#include <QTemporaryDir>
#include <QTest>

#include "Decimation.h"
#include "GuardedTest.h"
#include "RunFile.h"
#include "SimulatedSource.h"

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

} // namespace

class tst_demo : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatItWrote();
    void decimationKeepsEveryPeak();
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

void tst_demo::decimationKeepsEveryPeak()
{
    QVector<Sample> samples;
    for (int i = 0; i < 10000; ++i) {
        samples.append({i * 0.002, i == 7777 ? -40.0 : -13.0, 0});
    }
    const QList<QPointF> points = Decimation::decimate(samples, 0, 20, 400);
    QVERIFY(points.size() <= 2 * 400 + 2);
    QVERIFY(points.contains(QPointF(7777 * 0.002, -40.0)));
}

QTEST_GUILESS_MAIN(tst_demo)
#include "tst_demo.moc"

#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <atomic>

#include <files/QvexFileMoverThread.h>

#include "FakeController.h"
#include "GuardedTest.h"
#include "Link.h"
#include "LocalFiles.h"
#include "Pattern.h"
#include "Poll.h"
#include "ProcessProbe.h"
#include "SimulatorProcess.h"

using namespace Qt::StringLiterals;

namespace {

enum Result { Done = 0, Failed = 1, Exists = 2, Cancelled = 3 };

/// A mover of lists, and what it reported.
class ListMover
{
public:
    explicit ListMover(FcpAppCORBA *controller)
        : m_mover(controller)
    {
        QObject::connect(
            &m_mover, &QvexFileMoverThread::complete, &m_mover,
            [this](int result) {
                m_onOtherThread = QThread::currentThread() != qApp->thread();
                m_result = result;
                ++m_completions;
            },
            Qt::DirectConnection);
    }

    QvexFileMoverThread *operator->() { return &m_mover; }
    QvexFileMoverThread &mover() { return m_mover; }

    /// Waits for the end of a run and gives its result; -1 when it was not reported exactly once.
    int result()
    {
        pollUntil([this] { return m_completions > 0 && m_mover.thread() == qApp->thread(); });
        return m_completions.exchange(0) == 1 && m_onOtherThread ? m_result.load() : -1;
    }

private:
    QvexFileMoverThread m_mover;
    std::atomic<int> m_completions = 0;
    std::atomic<int> m_result = -1;
    std::atomic<bool> m_onOtherThread = false;
};

} // namespace

/** Carries lists of files on a thread of its own. */
class TestMoverThread : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_simulator.start(); }
    void init();

    void carriesAListBothWays();
    void reportsTheLastFilesResult_data();
    void reportsTheLastFilesResult();
    void emptyListFails();
    void cancelBeforeTheFirstFileReports3();
    void cancelLetsTheFileInProgressComplete();
    void abortEndsTheFileInProgress();
    void refusesASecondRunMeanwhile();
    void nextListMayBeStartedFromComplete();
    void tellsWhatExists();
    void probingClosesWhatItOpened();
    void destructionWaitsForTheRun();

private:
    QString local(const QString &name) const { return m_directory->filePath(name); }
    QString onInstrument(const QString &name) const
    {
        return m_simulator.local(u"/Internal/"_s + name);
    }
    QVector<QString> makeSources(int count, qsizetype size);

    SimulatorProcess m_simulator;
    std::optional<QTemporaryDir> m_directory;
};

void TestMoverThread::init()
{
    GuardedTest::init();
    m_directory.emplace();
    removeFiles(m_simulator.local(u"/Internal"_s));
}

QVector<QString> TestMoverThread::makeSources(int count, qsizetype size)
{
    QVector<QString> sources;
    for (int i = 0; i < count; ++i) {
        sources.append(local(u"source/%1.bin"_s.arg(i)));
        writeFile(sources.last(), patternBytes(size, quint32(i + 1)));
    }
    return sources;
}

void TestMoverThread::carriesAListBothWays()
{
    const QVector<QString> sources = makeSources(20, 200'000);
    Link link;
    QVERIFY(link.connectTo(m_simulator.port()));
    ListMover mover(link.proxy());
    const int threads = runningThreads();
    mover->uploadFiles(sources, u"/Internal"_s, false);
    QCOMPARE(mover.result(), Done);
    QVector<QString> remote;
    for (const QString &source : sources) {
        const QString name = QFileInfo(source).fileName();
        QVERIFY(contentsOf(onInstrument(name)) == contentsOf(source));
        remote.append(u"/Internal/"_s + name);
    }
    mover->downloadFiles(remote, local(u"target"_s), false);
    QCOMPARE(mover.result(), Done);
    for (const QString &source : sources) {
        QVERIFY(contentsOf(local(u"target/"_s + QFileInfo(source).fileName()))
                == contentsOf(source));
    }
    QTRY_COMPARE(runningThreads(), threads);
    QCOMPARE(m_simulator.openFiles(), QStringList());
}

void TestMoverThread::reportsTheLastFilesResult_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("result");
    QTest::newRow("second fails, third does not")
        << QStringList {u"0.bin"_s, u"missing"_s, u"1.bin"_s} << int(Done);
    QTest::newRow("last fails") << QStringList {u"0.bin"_s, u"missing"_s} << int(Failed);
    QTest::newRow("last exists") << QStringList {u"missing"_s, u"there.bin"_s} << int(Exists);
    QTest::newRow("first exists") << QStringList {u"there.bin"_s, u"0.bin"_s} << int(Done);
}

void TestMoverThread::reportsTheLastFilesResult()
{
    QFETCH(QStringList, names);
    makeSources(2, 10);
    writeFile(local(u"source/there.bin"_s), "mine");
    writeFile(onInstrument(u"there.bin"_s), "its");
    Link link;
    QVERIFY(link.connectTo(m_simulator.port()));
    ListMover mover(link.proxy());
    QVector<QString> sources;
    for (const QString &name : names) {
        sources.append(local(u"source/"_s + name));
    }
    mover->uploadFiles(sources, u"/Internal"_s, false);
    QTEST(mover.result(), "result");
    QCOMPARE(contentsOf(onInstrument(u"there.bin"_s)), "its");
    for (const QString &source : sources) {
        const QString name = QFileInfo(source).fileName();
        QCOMPARE(QFile::exists(onInstrument(name)), QFile::exists(source));
    }
}

void TestMoverThread::emptyListFails()
{
    Link link;
    QVERIFY(link.connectTo(m_simulator.port()));
    ListMover mover(link.proxy());
    mover->uploadFiles({}, u"/Internal"_s, true);
    QCOMPARE(mover.result(), Failed);
    mover->downloadFiles({}, local(u"target"_s), true);
    QCOMPARE(mover.result(), Failed);
}

void TestMoverThread::cancelBeforeTheFirstFileReports3()
{
    const QVector<QString> sources = makeSources(2, 10);
    Link link;
    QVERIFY(link.connectTo(m_simulator.port()));
    ListMover mover(link.proxy());
    const auto callsBefore = m_simulator.calls().size();
    mover->cancelThread();
    mover->uploadFiles(sources, u"/Internal"_s, false);
    QCOMPARE(mover.result(), Cancelled);
    QCOMPARE(m_simulator.calls().size(), callsBefore);

    mover->uploadFiles(sources, u"/Internal"_s, false);
    QCOMPARE(mover.result(), Done);
}

void TestMoverThread::cancelLetsTheFileInProgressComplete()
{
    const QVector<QString> sources = makeSources(3, 2'000'000);
    Link link;
    QVERIFY(link.connectTo(m_simulator.port()));
    ListMover mover(link.proxy());
    m_simulator.order("latency 20");
    std::atomic<bool> begun = false;
    connect(
        &mover.mover(), &QvexFileMoverThread::progress, this, [&] { begun = true; },
        Qt::DirectConnection);
    mover->uploadFiles(sources, u"/Internal"_s, false);
    const bool hasBegun = pollUntil([&] { return begun.load(); });
    mover->cancelThread();
    const int result = mover.result();
    m_simulator.order("latency 0");
    QVERIFY(hasBegun);
    QCOMPARE(result, Cancelled);
    QVERIFY(contentsOf(onInstrument(u"0.bin"_s)) == contentsOf(sources.first()));
    QVERIFY(!QFile::exists(onInstrument(u"1.bin"_s)));
    QCOMPARE(m_simulator.openFiles(), QStringList());
}

void TestMoverThread::abortEndsTheFileInProgress()
{
    const QVector<QString> sources = makeSources(3, 2'000'000);
    Link link;
    QVERIFY(link.connectTo(m_simulator.port()));
    ListMover mover(link.proxy());
    m_simulator.order("latency 20");
    std::atomic<bool> begun = false;
    connect(
        &mover.mover(), &QvexFileMoverThread::progress, this, [&] { begun = true; },
        Qt::DirectConnection);
    mover->uploadFiles(sources, u"/Internal"_s, false);
    const bool hasBegun = pollUntil([&] { return begun.load(); });
    mover->abort();
    const int result = mover.result();
    m_simulator.order("latency 0");
    QVERIFY(hasBegun);
    QCOMPARE(result, Cancelled);
    // What was carried of it stays.
    QCOMPARE_LT(QFileInfo(onInstrument(u"0.bin"_s)).size(), QFileInfo(sources.first()).size());
    QVERIFY(!QFile::exists(onInstrument(u"1.bin"_s)));
    QCOMPARE(m_simulator.openFiles(), QStringList());
}

void TestMoverThread::refusesASecondRunMeanwhile()
{
    messages().allow(u"a transfer is under way"_s);
    const QVector<QString> sources = makeSources(1, 2'000'000);
    Link link;
    QVERIFY(link.connectTo(m_simulator.port()));
    ListMover mover(link.proxy());
    m_simulator.order("latency 20");
    mover->uploadFiles(sources, u"/Internal"_s, false);
    mover->uploadFiles({}, u"/Remote"_s, false);
    const int result = mover.result();
    m_simulator.order("latency 0");
    QCOMPARE(result, Done);
}

void TestMoverThread::nextListMayBeStartedFromComplete()
{
    const QVector<QString> sources = makeSources(3, 10'000);
    Link link;
    QVERIFY(link.connectTo(m_simulator.port()));
    QvexFileMoverThread mover(link.proxy());
    QVector<int> results;
    connect(&mover, &QvexFileMoverThread::complete, this, [&](int result) {
        results.append(result);
        if (results.size() < sources.size()) {
            mover.uploadFiles({sources.at(results.size())}, u"/Internal"_s, false);
        }
    });
    // The mover's thread is held up there, so that the next list begins before it has ended.
    connect(
        &mover, &QvexFileMoverThread::complete, &mover, [] { QThread::msleep(50); },
        Qt::DirectConnection);
    mover.uploadFiles({sources.first()}, u"/Internal"_s, false);
    QTRY_COMPARE(results, QVector<int>({Done, Done, Done}));
    for (const QString &source : sources) {
        QVERIFY(contentsOf(onInstrument(QFileInfo(source).fileName())) == contentsOf(source));
    }
    QTRY_VERIFY(mover.thread() == qApp->thread());
}

void TestMoverThread::tellsWhatExists()
{
    writeFile(local(u"folder/file"_s), "mine");
    writeFile(onInstrument(u"file"_s), "its");
    Link link;
    QVERIFY(link.connectTo(m_simulator.port()));
    QvexFileMoverThread mover(link.proxy());
    QCOMPARE(mover.exists(u"/Internal/file"_s, local(u"folder"_s), true), true);
    QCOMPARE(mover.exists(u"/Internal/other"_s, local(u"folder"_s), true), false);
    QCOMPARE(mover.exists(local(u"folder/file"_s), u"/Internal"_s, false), true);
    QCOMPARE(mover.exists(local(u"folder/other"_s), u"/Internal"_s, false), false);
    QCOMPARE(contentsOf(onInstrument(u"file"_s)), "its");
    QCOMPARE(m_simulator.openFiles(), QStringList());
}

void TestMoverThread::probingClosesWhatItOpened()
{
    FakeController controller;
    controller.start();
    Link link;
    QVERIFY(link.connectTo(controller.port()));
    QvexFileMoverThread mover(link.proxy());
    for (const FileSystemResult result : {FS_OK, FS_ERROR, FS_EXISTS, FS_NOMORE}) {
        controller.answer(u"openFile"_s, {{u"result"_s, int(result)}, {u"handle"_s, 42}});
        QCOMPARE(mover.exists(u"/a/b"_s, u"/folder"_s, false), result == FS_EXISTS);
        QCOMPARE(controller.calls(u"openFile"_s).last().arguments,
                 QJsonArray({u"/folder/b"_s, true, false}));
        QCOMPARE(controller.calls(u"closeFile"_s).last().arguments, QJsonArray {42});
    }
    QCOMPARE(controller.calls(u"closeFile"_s).size(), 4);
}

void TestMoverThread::destructionWaitsForTheRun()
{
    const QVector<QString> sources = makeSources(5, 500'000);
    Link link;
    QVERIFY(link.connectTo(m_simulator.port()));
    m_simulator.order("latency 20");
    {
        QvexFileMoverThread mover(link.proxy());
        mover.uploadFiles(sources, u"/Internal"_s, false);
        pollUntil([&] { return !m_simulator.openFiles().isEmpty(); });
    }
    m_simulator.order("latency 0");
    QCOMPARE(m_simulator.openFiles(), QStringList());
    QVERIFY(contentsOf(onInstrument(u"0.bin"_s)) == contentsOf(sources.first()));
    QVERIFY(!QFile::exists(onInstrument(u"4.bin"_s)));
}

QTEST_GUILESS_MAIN(TestMoverThread)
#include "tst_moverthread.moc"

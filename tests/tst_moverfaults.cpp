#include <QTemporaryDir>
#include <QTest>

#include <thread>

#include <files/QvexFileMover.h>

#include "FailingAllocations.h"
#include "GuardedTest.h"
#include "Link.h"
#include "LocalFiles.h"
#include "Pattern.h"
#include "Poll.h"
#include "SimulatorProcess.h"
#include "TcpProxy.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using Action = TcpProxy::Action;
using Direction = TcpProxy::Direction;

namespace {

enum Result { Done = 0, Failed = 1 };

constexpr qint64 Chunk = QvexFileMover::ChunkSize;

QStringList openFilesHere()
{
    QStringList open;
    const QDir descriptors(u"/proc/self/fd"_s);
    for (const QFileInfo &entry : descriptors.entryInfoList(QDir::Files | QDir::System)) {
        open.append(entry.symLinkTarget());
    }
    return open;
}

} // namespace

/** What is left of a transfer whose link or memory fails under it. */
class TestMoverFaults : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_simulator.start(); }
    void init();

    void lostLinkIsNeverSuccess_data();
    void lostLinkIsNeverSuccess();
    void reconnectedLinkDoesNotContinue_data();
    void reconnectedLinkDoesNotContinue();
    void exceptionClosesEverything_data();
    void exceptionClosesEverything();

private:
    QString local(const QString &name) const { return m_directory->filePath(name); }
    QString onInstrument(const QString &name) const { return m_simulator.local(remote(name)); }
    static QString remote(const QString &name) { return u"/Internal/"_s + name; }

    TcpProxy m_proxy;
    SimulatorProcess m_simulator {m_proxy.port()};
    std::optional<QTemporaryDir> m_directory;
};

void TestMoverFaults::init()
{
    GuardedTest::init();
    m_proxy.behave();
    m_proxy.setController(m_simulator.port());
    m_directory.emplace();
    removeFiles(m_simulator.local(u"/Internal"_s));
}

void TestMoverFaults::lostLinkIsNeverSuccess_data()
{
    QTest::addColumn<bool>("upload");
    QTest::addColumn<TcpProxy::Strike>("strike");
    struct Fault
    {
        const char *name;
        Action action;
        Direction direction;
    };
    constexpr Fault faults[] = {
        {"reset before the request", Action::ResetBefore, Direction::ToController},
        {"reset inside the reply", Action::ResetInside, Direction::ToClient},
        {"no reply", Action::Swallow, Direction::ToClient},
    };
    for (const bool upload : {true, false}) {
        const char *chunk = upload ? "pushFileContents" : "pullFileContents";
        const std::pair<const char *, int> calls[] = {
            {"openFile", 0}, {chunk, 0}, {chunk, 1}, {chunk, 2}, {"closeFile", 0}};
        for (const auto &[operation, number] : calls) {
            for (const Fault &fault : faults) {
                QTest::addRow("%s, %s %d: %s", upload ? "upload" : "download", operation,
                              number + 1, fault.name)
                    << upload
                    << TcpProxy::Strike {.action = fault.action,
                                         .direction = fault.direction,
                                         .operation = operation,
                                         .passFirst = number};
            }
        }
    }
    // Their replies are a single result, which is none then.
    for (const char *operation : {"pushFileContents", "closeFile"}) {
        QTest::addRow("upload, %s: no such result", operation)
            << true
            << TcpProxy::Strike {.action = Action::FlipLastByte,
                                 .direction = Direction::ToClient,
                                 .operation = operation};
    }
}

void TestMoverFaults::lostLinkIsNeverSuccess()
{
    QFETCH(bool, upload);
    QFETCH(TcpProxy::Strike, strike);
    const QByteArray contents = patternBytes(3 * Chunk);
    const QString source = upload ? local(u"source"_s) : onInstrument(u"source"_s);
    const QString target = upload ? onInstrument(u"target"_s) : local(u"target"_s);
    writeFile(source, contents);
    Link link(strike.action == Action::Swallow ? 300ms : 20s);
    QVERIFY(link.connectTo(m_proxy.port()));
    QvexFileMover mover(link.proxy());
    const auto carry = [&] {
        return upload ? mover.uploadFile(source, remote(u"target"_s), true)
                      : mover.downloadFile(remote(u"source"_s), target, true);
    };
    m_proxy.strike(strike);

    const int result = carry();

    QCOMPARE(m_proxy.struck(), 1);
    QCOMPARE(link.losses(), 1);
    QCOMPARE(link->isConnected(), false);
    if (upload || strike.operation != "closeFile") {
        QCOMPARE(result, Failed);
    } else if (result == Done) {
        // Everything had arrived before.
        QVERIFY(contentsOf(target) == contents);
    }
    QVERIFY(contentsOf(source) == contents);
    QCOMPARE(carry(), Failed);

    m_proxy.behave();
    QVERIFY(link.connectTo(m_proxy.port()));
    // The controller must not be left with what the lost transfer had open.
    QVERIFY(pollUntil([&] { return m_simulator.openFiles().isEmpty(); }));
    QCOMPARE(carry(), Done);
    QVERIFY(contentsOf(target) == contents);
    QCOMPARE(m_simulator.openFiles(), QStringList());
}

void TestMoverFaults::reconnectedLinkDoesNotContinue_data()
{
    QTest::addColumn<bool>("upload");
    QTest::addColumn<bool>("lost");
    QTest::newRow("upload, link replaced") << true << false;
    QTest::newRow("download, link replaced") << false << false;
    QTest::newRow("upload, link lost") << true << true;
    QTest::newRow("download, link lost") << false << true;
}

void TestMoverFaults::reconnectedLinkDoesNotContinue()
{
    QFETCH(bool, upload);
    QFETCH(bool, lost);
    const QByteArray contents = patternBytes(60 * Chunk);
    writeFile(upload ? local(u"source"_s) : onInstrument(u"source"_s), contents);
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    const quint64 first = link->linkSerial();
    QvexFileMover mover(link.proxy());
    m_simulator.order("latency 20");
    const QByteArray chunk = upload ? "pushFileContents" : "pullFileContents";
    const auto before = m_simulator.calls(chunk).size();
    int result = -1;
    std::thread transfer([&] {
        result = upload ? mover.uploadFile(local(u"source"_s), remote(u"target"_s), false)
                        : mover.downloadFile(remote(u"source"_s), local(u"target"_s), false);
    });
    QVERIFY(pollUntil([&] { return m_simulator.calls(chunk).size() > before + 2; }));
    if (lost) {
        m_proxy.cutConnections(TcpProxy::Ending::Reset);
        QVERIFY(pollUntil([&] { return link.losses() == 1; }));
    }
    const bool connected = link.connectTo(m_proxy.port());
    transfer.join();
    m_simulator.order("latency 0");
    QVERIFY(connected);
    QCOMPARE(link->linkSerial(), first + 1);
    QCOMPARE(result, Failed);
    QCOMPARE_LT(m_simulator.calls(chunk).size() - before, 60);
    QCOMPARE(link.losses(), lost ? 1 : 0);
    QVERIFY(pollUntil([&] { return m_simulator.openFiles().isEmpty(); }, 5s));
}

void TestMoverFaults::exceptionClosesEverything_data()
{
    QTest::addColumn<bool>("upload");
    QTest::newRow("upload") << true;
    QTest::newRow("download") << false;
}

void TestMoverFaults::exceptionClosesEverything()
{
    QFETCH(bool, upload);
    const QByteArray contents = patternBytes(2 * Chunk);
    const QString source = upload ? local(u"source"_s) : onInstrument(u"source"_s);
    const QString target = upload ? onInstrument(u"target"_s) : local(u"target"_s);
    writeFile(source, contents);
    Link link;
    QvexFileMover mover(link.proxy());
    bool failed = true;
    // Each allocation that a transfer makes fails in its turn, until none is left to fail.
    for (int allocations = 0; failed; ++allocations) {
        if (!link->isConnected()) {
            QVERIFY(link.connectTo(m_proxy.port()));
        }
        int result = -1;
        {
            const FailingAllocations shortage(allocations);
            result = upload ? mover.uploadFile(source, remote(u"target"_s), true)
                            : mover.downloadFile(remote(u"source"_s), target, true);
            failed = shortage.hasFailed();
        }
        QVERIFY2(result == Failed || (result == Done && contentsOf(target) == contents),
                 qPrintable(u"allocation %1, result %2"_s.arg(allocations).arg(result)));
        QVERIFY(failed || result == Done);
        QVERIFY2(pollUntil([&] { return m_simulator.openFiles().isEmpty(); }, 5s),
                 qPrintable(u"allocation %1: %2"_s.arg(allocations).arg(link->lastError())));
        QVERIFY(!openFilesHere().contains(source) && !openFilesHere().contains(target));
    }
}

QTEST_GUILESS_MAIN(TestMoverFaults)
#include "tst_moverfaults.moc"

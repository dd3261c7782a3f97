#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <optional>

#include "Fcpctl.h"
#include "GuardedTest.h"
#include "Link.h"
#include "Poll.h"
#include "SimulatorProcess.h"
#include "Sockets.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// More than the kernel keeps for a connection whose peer does not read.
constexpr int Flood = 1'000'000;

void writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()) {
        qFatal("Can not write %s", qPrintable(path));
    }
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

QVector<pid_t> childrenOf(qint64 process)
{
    QVector<pid_t> children;
    const QDir threads(u"/proc/%1/task"_s.arg(process));
    for (const QString &thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QByteArray ids = contentsOf(threads.filePath(thread + u"/children"_s));
        for (const QByteArray &id : ids.simplified().split(' ')) {
            if (!id.isEmpty()) {
                children.append(id.toInt());
            }
        }
    }
    return children;
}

/// The most bytes that wait in a connection of the process that listens on @p port.
int sendQueue(quint16 port)
{
    const QByteArray local = ':' + QByteArray::number(port, 16).toUpper().rightJustified(4, '0');
    int most = 0;
    for (const QByteArray &line : contentsOf(u"/proc/net/tcp"_s).split('\n')) {
        // sl local_address rem_address st tx_queue:rx_queue ...
        const QList<QByteArray> words = line.simplified().split(' ');
        if (words.value(1).endsWith(local)) {
            most = std::max(most, words.value(4).split(':').constFirst().toInt(nullptr, 16));
        }
    }
    return most;
}

/// Sends events until a client that does not read has the sender wait.
bool block(SimulatorProcess &simulator)
{
    simulator.sendEvents("MODULE_STATUS", Flood);
    QElapsedTimer unchanged;
    int before = 0;
    return pollUntil([&] {
        const int queued = sendQueue(simulator.port());
        if (queued == 0 || queued != before) {
            unchanged.start();
        }
        before = queued;
        return unchanged.elapsed() > 300;
    });
}

int clientCount(SimulatorProcess &simulator)
{
    return simulator.command("clients").split(' ').value(2).toInt();
}

} // namespace

/** The simulated controller as a process: its command line, bad company, and its end. */
class TestSim : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_simulator.start(); }
    void init();
    void cleanup();

    void commandLine_data();
    void commandLine();

    void frozenClientStallsNobody();
    void killedClientVanishes();
    void endsOnSigterm_data();
    void endsOnSigterm();

private:
    QTemporaryDir m_directory;
    SimulatorProcess m_simulator;
    std::optional<Link> m_link;
};

void TestSim::init()
{
    GuardedTest::init();
    m_link.emplace();
    QVERIFY(m_link->connectTo(m_simulator.port()));
}

void TestSim::cleanup()
{
    m_link.reset();
    GuardedTest::cleanup();
}

void TestSim::commandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("culprit"); // %1 in an argument: the test's directory
    QTest::newRow("help") << QStringList {u"--help"_s} << 0 << QString();
    QTest::newRow("version") << QStringList {u"--version"_s} << 0 << QString();
    const std::pair<const char *, QStringList> bad[] = {
        {"nonsense", {u"--nonsense"_s}},
        {"stray", {u"stray"_s}},
        {"port", {u"--port"_s}},
        {"12x", {u"--port"_s, u"12x"_s}},
        {"65536", {u"--port"_s, u"65536"_s}},
        {"-5", {u"--latency"_s, u"-5"_s}},
        {"nowhere", {u"--publish"_s, u"nowhere"_s}},
        {"openFile:1", {u"--fault"_s, u"openFile:1"_s}},
        {"opneFile", {u"--fault"_s, u"opneFile:1:close"_s}},
        {"openFile:0:close", {u"--fault"_s, u"openFile:0:close"_s}},
        {"explode", {u"--fault"_s, u"*:*:explode"_s}},
        {"missing.json", {u"--instrument"_s, u"%1/missing.json"_s}},
        {"cut.json", {u"--instrument"_s, u"%1/cut.json"_s}},
        {"empty.json", {u"--instrument"_s, u"%1/empty.json"_s}},
        {"modles", {u"--instrument"_s, u"%1/misspelt.json"_s}},
        {"log", {u"--log"_s, u"%1/missing/log"_s}},
        {"ORBnonsense", {u"-ORBnonsense"_s, u"1"_s}},
    };
    for (const auto &[culprit, arguments] : bad) {
        QTest::addRow("bad %s", culprit) << arguments << 2 << QString::fromLatin1(culprit);
    }
    QTest::newRow("root that is a file")
        << QStringList {u"--root"_s, u"%1/cut.json"_s} << 1 << u"cut.json"_s;
    QTest::newRow("port that is taken") << QStringList {u"--port"_s, u"%2"_s} << 1 << u"%2"_s;
}

void TestSim::commandLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(const int, code);
    QFETCH(QString, culprit);
    writeFile(m_directory.filePath(u"cut.json"_s), R"({ "controller": { "model": "X" )");
    writeFile(m_directory.filePath(u"empty.json"_s), "");
    writeFile(m_directory.filePath(u"misspelt.json"_s),
              R"({ "controller": { "model": "X" }, "modles": [] })");
    const FileDescriptor listening = listenOn(0);
    const QString port = QString::number(localPort(listening));
    arguments.replaceInStrings(u"%1"_s, m_directory.path()).replaceInStrings(u"%2"_s, port);
    culprit.replace(u"%2"_s, port);

    QProcess process;
    process.start(QStringLiteral(VEX_TEST_SIMULATOR), arguments);
    QVERIFY(process.waitForFinished(10'000));
    const QByteArray errors = process.readAllStandardError();
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QVERIFY2(process.exitCode() == code, errors);
    QCOMPARE(errors.count('\n'), code == 0 ? 0 : 1);
    QVERIFY2(errors.contains(culprit.toUtf8()), errors);
    QCOMPARE(process.readAllStandardOutput().isEmpty(), code != 0);
}

void TestSim::frozenClientStallsNobody()
{
    Fcpctl frozen(m_simulator.port(), {u"watch"_s});
    frozen.start();
    QTRY_COMPARE(clientCount(m_simulator), 2);
    m_link.reset();
    QTRY_COMPARE(clientCount(m_simulator), 1);
    frozen.signal(SIGSTOP);
    QVERIFY(block(m_simulator));

    QElapsedTimer timer;
    timer.start();
    m_link.emplace();
    QVERIFY(m_link->connectTo(m_simulator.port()));
    for (int i = 0; i < 20; ++i) {
        m_link->clearEvents();
        m_simulator.sendEvents("RESOURCE_STATUS");
        QVERIFY(pollUntil([&] { return m_link->events().contains(RESOURCE_STATUS); }, 2s));
        QVERIFY(!m_link->proxy()->newDirectory(u"/Internal"_s).isEmpty());
    }
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(clientCount(m_simulator), 2);
    QCOMPARE(m_link->losses(), 0);
    frozen.signal(SIGKILL);
    frozen.wait();
    QTRY_COMPARE(clientCount(m_simulator), 1);
}

void TestSim::killedClientVanishes()
{
    Fcpctl killed(m_simulator.port(), {u"watch"_s});
    killed.start();
    QTRY_COMPARE(clientCount(m_simulator), 2);
    m_link->clearEvents();
    killed.signal(SIGKILL);
    QTRY_COMPARE_WITH_TIMEOUT(clientCount(m_simulator), 1, 2000);
    QTRY_VERIFY(m_link->events().contains(CLIENT_STATUS));
    killed.wait();
}

void TestSim::endsOnSigterm_data()
{
    QTest::addColumn<bool>("withFrozenClient");
    QTest::newRow("clients that listen") << false;
    QTest::newRow("frozen client") << true;
}

void TestSim::endsOnSigterm()
{
    QFETCH(const bool, withFrozenClient);
    SimulatorProcess simulator;
    simulator.start();
    QVERIFY(m_link->connectTo(simulator.port()));
    const long test = m_link->proxy()->launchTest(u"BERT"_s, {});
    QVERIFY(test > 0);
    QTRY_COMPARE(m_link->proxy()->getTestStatus(test), TEST_REGISTERED);
    const QVector<pid_t> tests = childrenOf(simulator.processId());
    QCOMPARE(tests.size(), 1);
    Fcpctl watching(simulator.port(), {u"watch"_s});
    watching.start();
    QTRY_COMPARE(clientCount(simulator), 2);
    if (withFrozenClient) {
        m_link.reset();
        watching.signal(SIGSTOP);
        QVERIFY(block(simulator));
    }

    QElapsedTimer timer;
    timer.start();
    QCOMPARE(simulator.stop(), 0);
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(::kill(tests.constFirst(), 0), -1);
    watching.signal(SIGKILL);
    watching.wait();
}

QTEST_GUILESS_MAIN(TestSim)
#include "tst_sim.moc"

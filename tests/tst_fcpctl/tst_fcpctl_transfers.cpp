#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

#include <FcpInterfaces.hh>

#include "FakeController.h"
#include "Fcpctl.h"
#include "GuardedTest.h"
#include "Pattern.h"
#include "SimulatorProcess.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int PatienceMs = 20'000;
/// So long that a transfer can be stopped in its middle.
constexpr qint64 Long = 192LL * 1024 * 1024;

void writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()) {
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
}

/// A sparse one.
void makeLongFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !file.resize(Long)) {
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("can not be read");
}

} // namespace

/** `fcpctl get` and `fcpctl put`: what is where in the end, however they end. */
class TestFcpctlTransfers : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void carriesEveryByte_data();
    void carriesEveryByte();
    void tellsEachFileThatFailed();
    void replacesOnlyWhenAsked();
    void keepsModeAndLinkOfWhatItReplaces();
    void refusesTargetsThatAreNoFiles_data();
    void refusesTargetsThatAreNoFiles();
    void verifyFindsADifference();
    void shortDeliveryIsAFailure();
    void tellsWhatTheInstrumentDid_data();
    void tellsWhatTheInstrumentDid();
    void drawsABarOnATerminal_data();
    void drawsABarOnATerminal();

    void killedGetLeavesTheOldFile();
    void getDoesNotReplaceWhatHasAppeared();
    void getsSideBySideLeaveEachOtherAlone();
    void putTellsWhenTheFileChanged();
    void interruptedGetLeavesNothing();
    void interruptedPutTellsWhatIsLeft();
    void secondInterruptEndsAtOnce();
    void lostLinkEndsWith3();

private:
    QString here(const QString &name) const { return m_here.filePath(name); }
    QString there(const QString &name) const { return m_simulator.local(u"/Internal/"_s + name); }
    enum class Direction { Get, Put };
    void prepare(Direction direction);
    bool hasPart() const;
    bool isUnderWay() const;
    void stopInTheMiddle(Fcpctl &program);

    QTemporaryDir m_here;
    SimulatorProcess m_simulator;
};

void TestFcpctlTransfers::initTestCase()
{
    m_simulator.start();
}

/// Leaves a long file on one side only, and nothing of an earlier transfer.
void TestFcpctlTransfers::prepare(Direction direction)
{
    for (const QString &path : {here(u"long"_s), there(u"long"_s), there(u"long.part"_s)}) {
        QFile::remove(path);
    }
    makeLongFile(direction == Direction::Get ? there(u"long"_s) : here(u"long"_s));
}

bool TestFcpctlTransfers::hasPart() const
{
    return !QDir(m_here.path())
                .entryList({u".fcpctl-part-*"_s}, QDir::Dirs | QDir::Hidden)
                .isEmpty();
}

/// Starts a long transfer and stops the instrument in the middle of it.
void TestFcpctlTransfers::stopInTheMiddle(Fcpctl &program)
{
    program.start();
    QVERIFY(QTest::qWaitFor([this] { return isUnderWay(); }, PatienceMs)); // polls every 10 ms
    m_simulator.freeze();
    QVERIFY2(program.isRunning(), program.errors().constData());
}

bool TestFcpctlTransfers::isUnderWay() const
{
    const QDir parts(m_here.path());
    for (const QString &part : parts.entryList({u".fcpctl-part-*"_s}, QDir::Dirs | QDir::Hidden)) {
        if (QFileInfo(parts, part + u"/content"_s).size() > 0) {
            return true;
        }
    }
    return QFileInfo(there(u"long.part"_s)).size() > 0;
}

void TestFcpctlTransfers::carriesEveryByte_data()
{
    QTest::addColumn<qsizetype>("size");
    for (const qsizetype size : {0, 1, 131071, 131072, 131073, 1000000}) {
        QTest::addRow("%d bytes", int(size)) << size;
    }
}

void TestFcpctlTransfers::carriesEveryByte()
{
    QFETCH(qsizetype, size);
    const QByteArray contents = patternBytes(size);
    writeFile(here(u"sent"_s), contents);

    Fcpctl put(
        m_simulator.port(),
        {u"put"_s, u"--json"_s, u"--overwrite"_s, u"--verify"_s, here(u"sent"_s), u"/Internal/"_s});
    QVERIFY2(put.run() == 0, put.errors().constData());
    QVERIFY(readFile(there(u"sent"_s)) == contents);
    const QJsonObject told = put.json().array().first().toObject();
    QCOMPARE(told[u"destination"_s].toString(), u"/Internal/sent"_s);
    QCOMPARE(told[u"size"_s].toInteger(), size);
    QCOMPARE(told[u"error"_s], QJsonValue());
    QCOMPARE(told[u"sha256"_s].toString().toLatin1(),
             QCryptographicHash::hash(contents, QCryptographicHash::Sha256).toHex());

    Fcpctl get(m_simulator.port(),
               {u"get"_s, u"--overwrite"_s, u"--verify"_s, u"/Internal/sent"_s, here(u"got"_s)});
    QVERIFY2(get.run() == 0, get.errors().constData());
    QVERIFY(readFile(here(u"got"_s)) == contents);
    QVERIFY(!hasPart());
}

void TestFcpctlTransfers::tellsEachFileThatFailed()
{
    writeFile(here(u"good"_s), "good");
    writeFile(there(u"taken"_s), "taken");
    writeFile(here(u"taken"_s), "other");
    Fcpctl put(m_simulator.port(),
               {u"put"_s, here(u"missing"_s), here(u"taken"_s), m_here.path(), here(u"good"_s),
                here(u"good"_s), u"/Internal"_s});
    QCOMPARE(put.run(), 1);
    QCOMPARE(readFile(there(u"good"_s)), QByteArray("good"));
    QCOMPARE(readFile(there(u"taken"_s)), QByteArray("taken"));
    const QByteArray summary = put.errors().sliced(put.errors().indexOf("4 of 5 files"));
    for (const char *reason : {"missing: No such file", "/Internal/taken: it exists already",
                               ": it is a directory", "/Internal/good: an earlier file"}) {
        QVERIFY2(summary.contains(reason), put.errors().constData());
    }
}

void TestFcpctlTransfers::replacesOnlyWhenAsked()
{
    writeFile(here(u"kept"_s), "here");
    writeFile(there(u"kept"_s), "there");
    const QStringList get {u"get"_s, u"/Internal/kept"_s, here(u"kept"_s)};
    QCOMPARE(Fcpctl(m_simulator.port(), get).run(), 1);
    QCOMPARE(readFile(here(u"kept"_s)), QByteArray("here"));
    QCOMPARE(Fcpctl(m_simulator.port(), get + QStringList {u"--overwrite"_s}).run(), 0);
    QCOMPARE(readFile(here(u"kept"_s)), QByteArray("there"));

    writeFile(here(u"kept"_s), "new");
    const QStringList put {u"put"_s, here(u"kept"_s), u"/Internal/kept"_s};
    QCOMPARE(Fcpctl(m_simulator.port(), put).run(), 1);
    QCOMPARE(readFile(there(u"kept"_s)), QByteArray("there"));
    QCOMPARE(Fcpctl(m_simulator.port(), put + QStringList {u"--overwrite"_s}).run(), 0);
    QCOMPARE(readFile(there(u"kept"_s)), QByteArray("new"));
}

void TestFcpctlTransfers::keepsModeAndLinkOfWhatItReplaces()
{
    writeFile(there(u"source"_s), "new");
    writeFile(here(u"target"_s), "old");
    const auto mode = QFile::ReadOwner | QFile::WriteOwner;
    QVERIFY(QFile::setPermissions(here(u"target"_s), mode));
    QVERIFY(QFile::link(u"target"_s, here(u"link"_s)));
    QCOMPARE(Fcpctl(m_simulator.port(),
                    {u"get"_s, u"--overwrite"_s, u"/Internal/source"_s, here(u"link"_s)})
                 .run(),
             0);
    QVERIFY(QFileInfo(here(u"link"_s)).isSymLink());
    QCOMPARE(readFile(here(u"target"_s)), QByteArray("new"));
    QCOMPARE(QFileInfo(here(u"target"_s)).permissions() & ~(QFile::ReadUser | QFile::WriteUser),
             mode);
}

void TestFcpctlTransfers::refusesTargetsThatAreNoFiles_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("a device") << u"/dev/null"_s << QByteArray("it is no regular file");
    QTest::newRow("no directory") << here(u"none/"_s) << QByteArray("No such file or directory");
    QTest::newRow("in no directory") << here(u"none/x"_s) << QByteArray("No such file");
    writeFile(here(u"file"_s), "file");
    QTest::newRow("in a file") << here(u"file/"_s) << QByteArray("Not a directory");
}

void TestFcpctlTransfers::refusesTargetsThatAreNoFiles()
{
    QFETCH(QString, target);
    QFETCH(QByteArray, reason);
    writeFile(there(u"source"_s), "new");
    Fcpctl get(m_simulator.port(), {u"get"_s, u"--overwrite"_s, u"/Internal/source"_s, target});
    QCOMPARE(get.run(), 1);
    QVERIFY2(get.errors().contains(reason), get.errors().constData());
    QCOMPARE(get.errors().count('\n'), 1);
    QVERIFY(!QFileInfo(u"/dev/null"_s).isFile());
}

void TestFcpctlTransfers::verifyFindsADifference()
{
    FakeController controller;
    controller.start();
    controller.answer(u"getFileSystemItems"_s, {{u"result"_s, true}});
    controller.answer(u"pullFileContents"_s, {{u"result"_s, FS_NOMORE}, {u"bytes"_s, u"dent"_s}});
    writeFile(here(u"sent"_s), "sent");
    Fcpctl put(controller.port(), {u"put"_s, u"--verify"_s, here(u"sent"_s), u"/Internal/sent"_s});
    QCOMPARE(put.run(), 1);
    QVERIFY2(put.errors().contains("differ"), put.errors().constData());
}

void TestFcpctlTransfers::shortDeliveryIsAFailure()
{
    FakeController controller;
    controller.start();
    const QJsonObject entry {{u"name"_s, u"short"_s}, {u"size"_s, 100}};
    controller.answer(u"getFileSystemItems"_s,
                      {{u"result"_s, true}, {u"list"_s, QJsonArray {entry}}});
    controller.answer(u"pullFileContents"_s,
                      {{u"result"_s, FS_NOMORE}, {u"bytes"_s, QJsonObject {{u"size"_s, 50}}}});
    Fcpctl get(controller.port(), {u"get"_s, u"/Internal/short"_s, here(u"short"_s)});
    QCOMPARE(get.run(), 1);
    QVERIFY2(get.errors().contains("50 of 100 bytes"), get.errors().constData());
    QVERIFY(!QFile::exists(here(u"short"_s)));
}

void TestFcpctlTransfers::tellsWhatTheInstrumentDid_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("words");
    const auto row = [](const QString &command, const QByteArray &fault, int code,
                        const QByteArray &words) {
        QTest::newRow(qPrintable(command + u' ' + QString::fromLatin1(fault)))
            << command << fault << code << words;
    };
    row(u"put"_s, "openFile:1:error:result", 1, "refused to open it");
    row(u"put"_s, "pushFileContents:2:error:result", 1,
        "incomplete on the instrument (131072 of 300000 bytes)");
    row(u"put"_s, "closeFile:1:error:result", 1, "could not close");
    row(u"put"_s, "openFile:1:reset", 3, "may be incomplete");
    row(u"put"_s, "pushFileContents:2:mute", 3, "TIMEOUT");
    row(u"put"_s, "closeFile:1:close", 3, "may be incomplete");
    row(u"get"_s, "openFile:1+:error:result", 1, "refused");
    row(u"get"_s, "pullFileContents:2:error:result", 1, "no more after 131072 of 300000 bytes");
    row(u"get"_s, "pullFileContents:2:reset-after", 3, "lost");
    row(u"get"_s, "pullFileContents:3:garbage:length", 3, "TIMEOUT");
}

void TestFcpctlTransfers::tellsWhatTheInstrumentDid()
{
    QFETCH(QString, command);
    QFETCH(QByteArray, fault);
    QFETCH(int, code);
    QFETCH(QByteArray, words);

    const QByteArray contents = patternBytes(300'000);
    writeFile(here(u"sent"_s), contents);
    writeFile(there(u"kept"_s), contents);
    writeFile(here(u"kept"_s), "old");
    m_simulator.order("fault " + fault);
    const QStringList operands = command == u"put"_s
        ? QStringList {here(u"sent"_s), u"/Internal/"_s + QString::fromLatin1(fault)}
        : QStringList {u"/Internal/kept"_s, here(u"kept"_s)};
    Fcpctl program(m_simulator.port(),
                   QStringList {command, u"--overwrite"_s, u"--timeout"_s, u"0.5"_s} + operands);
    const int ended = program.run();
    m_simulator.order("faults clear");
    QVERIFY2(ended == code, program.errors().constData());
    QVERIFY2(program.errors().contains(words), program.errors().constData());
    QCOMPARE(readFile(here(u"kept"_s)), QByteArray("old"));
    QVERIFY(!hasPart());
}

void TestFcpctlTransfers::drawsABarOnATerminal_data()
{
    QTest::addColumn<int>("columns");
    for (const int columns : {200, 80, 60, 40, 20, 6}) {
        QTest::addRow("%d columns", columns) << columns;
    }
}

void TestFcpctlTransfers::drawsABarOnATerminal()
{
    QFETCH(int, columns);
    writeFile(here(u"measured\n\u65e5\u672c"_s), patternBytes(3'000'000));
    Fcpctl put(
        m_simulator.port(),
        {u"put"_s, u"--overwrite"_s, here(u"measured\n\u65e5\u672c"_s), u"/Internal/measured"_s});
    put.startOnTerminal(columns);
    QCOMPARE(put.wait(), 0);
    QVERIFY2(put.output().contains("100%"), put.output().constData());
    QString shown = QString::fromUtf8(put.output());
    shown.remove(u"\x1b[K"_s);
    for (const QString &line : shown.split(u'\r')) {
        const auto wide = line.count(u'\u65e5') + line.count(u'\u672c'); // two cells each
        QVERIFY2(line.trimmed().size() + wide < columns, qPrintable(line));
    }
}

void TestFcpctlTransfers::killedGetLeavesTheOldFile()
{
    prepare(Direction::Get);
    writeFile(here(u"long"_s), "old");
    Fcpctl get(m_simulator.port(),
               {u"get"_s, u"--overwrite"_s, u"/Internal/long"_s, here(u"long"_s)});
    stopInTheMiddle(get);
    get.signal(SIGKILL);
    QCOMPARE(get.wait(), -SIGKILL);
    QCOMPARE(readFile(here(u"long"_s)), QByteArray("old"));
    QVERIFY(hasPart());

    // The next one there clears up.
    m_simulator.thaw();
    writeFile(there(u"source"_s), "new");
    QCOMPARE(Fcpctl(m_simulator.port(), {u"get"_s, u"/Internal/source"_s, here(u"next"_s)}).run(),
             0);
    QVERIFY(!hasPart());
}

void TestFcpctlTransfers::getDoesNotReplaceWhatHasAppeared()
{
    prepare(Direction::Get);
    Fcpctl get(m_simulator.port(), {u"get"_s, u"/Internal/long"_s, m_here.path()});
    stopInTheMiddle(get);
    writeFile(here(u"long"_s), "appeared");
    m_simulator.thaw();
    QCOMPARE(get.wait(), 1);
    QVERIFY2(get.errors().contains("appeared"), get.errors().constData());
    QCOMPARE(readFile(here(u"long"_s)), QByteArray("appeared"));
    QVERIFY(!hasPart());
}

void TestFcpctlTransfers::getsSideBySideLeaveEachOtherAlone()
{
    prepare(Direction::Get);
    QFile::remove(here(u"source"_s));
    writeFile(there(u"source"_s), "new");
    Fcpctl slow(m_simulator.port(), {u"get"_s, u"/Internal/long"_s, m_here.path()});
    stopInTheMiddle(slow);
    m_simulator.thaw();
    QCOMPARE(Fcpctl(m_simulator.port(), {u"get"_s, u"/Internal/source"_s, m_here.path()}).run(), 0);
    QVERIFY2(slow.wait() == 0, slow.errors().constData());
    QCOMPARE(QFileInfo(here(u"long"_s)).size(), Long);
}

void TestFcpctlTransfers::putTellsWhenTheFileChanged()
{
    prepare(Direction::Put);
    Fcpctl put(m_simulator.port(), {u"put"_s, here(u"long"_s), u"/Internal"_s});
    stopInTheMiddle(put);
    QFile file(here(u"long"_s));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QCOMPARE(file.write("changed"), 7);
    file.close();
    m_simulator.thaw();
    QCOMPARE(put.wait(), 1);
    QVERIFY2(put.errors().contains("changed while"), put.errors().constData());
}

void TestFcpctlTransfers::interruptedGetLeavesNothing()
{
    prepare(Direction::Get);
    Fcpctl get(m_simulator.port(), {u"get"_s, u"/Internal/long"_s, m_here.path()});
    stopInTheMiddle(get);
    get.signal(SIGINT);
    m_simulator.thaw();
    QCOMPARE(get.wait(), 128 + SIGINT);
    QVERIFY2(get.errors().contains("interrupted"), get.errors().constData());
    QVERIFY(!QFile::exists(here(u"long"_s)));
    QVERIFY(!hasPart());
}

void TestFcpctlTransfers::interruptedPutTellsWhatIsLeft()
{
    prepare(Direction::Put);
    writeFile(here(u"good"_s), "good");
    Fcpctl put(m_simulator.port(), {u"put"_s, here(u"long"_s), here(u"good"_s), u"/Internal"_s});
    stopInTheMiddle(put);
    put.signal(SIGTERM);
    m_simulator.thaw();
    QCOMPARE(put.wait(), 128 + SIGTERM);
    const qint64 size = QFileInfo(there(u"long"_s)).size();
    QVERIFY(size > 0 && size < Long);
    const QByteArray left = "/Internal/long is incomplete on the instrument ("
        + QByteArray::number(size) + " of " + QByteArray::number(Long) + " bytes)";
    QVERIFY2(put.errors().contains(left), put.errors().constData());
    QVERIFY2(put.errors().contains("good: not tried"), put.errors().constData());
}

void TestFcpctlTransfers::secondInterruptEndsAtOnce()
{
    prepare(Direction::Put);
    Fcpctl put(m_simulator.port(), {u"put"_s, here(u"long"_s), u"/Internal"_s});
    stopInTheMiddle(put);
    // A signal that comes before the one before it was handled is lost.
    const auto interruptAgain = [&put] {
        put.signal(SIGINT);
        put.output();
        return !put.isRunning();
    };
    QTRY_VERIFY_WITH_TIMEOUT(interruptAgain(), PatienceMs);
    QCOMPARE(put.wait(), -SIGINT);
    m_simulator.thaw();
}

void TestFcpctlTransfers::lostLinkEndsWith3()
{
    prepare(Direction::Put);
    writeFile(here(u"good"_s), "good");
    Fcpctl put(m_simulator.port(),
               {u"put"_s, u"--overwrite"_s, here(u"long"_s), here(u"good"_s), u"/Internal"_s});
    stopInTheMiddle(put);
    m_simulator.kill();
    QCOMPARE(put.wait(), 3);
    QVERIFY2(put.errors().contains("/Internal/long may be incomplete"), put.errors().constData());
    QVERIFY2(put.errors().contains("good: not tried"), put.errors().constData());
}

QTEST_GUILESS_MAIN(TestFcpctlTransfers)
#include "tst_fcpctl_transfers.moc"

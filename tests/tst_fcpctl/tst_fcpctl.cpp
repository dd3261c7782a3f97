#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

#include <algorithm>
#include <csignal>

#include "FakeController.h"
#include "Fcpctl.h"
#include "GuardedTest.h"
#include "SimulatorProcess.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int PatienceMs = 20'000;

} // namespace

/** The commands of fcpctl that don't carry file contents. */
class TestFcpctl : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void endsWithCode_data();
    void endsWithCode();
    void linkLostInACallEndsWith3();
    void timeOutEndsWith3();
    void printsJson_data();
    void printsJson();

    void changesFiles();
    void neverOverwritesWhatIsThere_data();
    void neverOverwritesWhatIsThere();
    void refusedNameLeavesNoDirectory();
    void namesTravelUnchanged_data();
    void namesTravelUnchanged();
    void escapesNamesOnATerminal();
    void passesTestArgumentsOn();

    void fullOutputIsAFailure();
    void closedReaderEndsItSilently();

    void watchSurvivesARestart();

private:
    void makeFile(const QString &remotePath, const QByteArray &contents = "x");
    QStringList listing(const QString &remotePath);

    SimulatorProcess m_simulator;
};

void TestFcpctl::initTestCase()
{
    m_simulator.start();
    makeFile(u"/Internal/file"_s, "four");
    QVERIFY(QDir().mkpath(m_simulator.local(u"/Internal/folder"_s)));
}

void TestFcpctl::makeFile(const QString &remotePath, const QByteArray &contents)
{
    QFile file(m_simulator.local(remotePath));
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()) {
        qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
    }
}

QStringList TestFcpctl::listing(const QString &remotePath)
{
    Fcpctl fcpctl(m_simulator.port(), {u"ls"_s, remotePath});
    return fcpctl.run() == 0 ? QString::fromUtf8(fcpctl.output()).split(u'\n', Qt::SkipEmptyParts)
                             : QStringList {u"failed"_s};
}

void TestFcpctl::endsWithCode_data()
{
    QTest::addColumn<QString>("commandLine");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("word"); // on standard error

    const auto row = [](const QString &commandLine, int code, const QByteArray &word = {}) {
        QTest::newRow(qPrintable(commandLine)) << commandLine << code << word;
    };
    row(u"info"_s, 0);
    row(u"modules"_s, 0);
    row(u"ports"_s, 0);
    row(u"resources --status"_s, 0);
    row(u"tests"_s, 0);
    row(u"ls /"_s, 0);
    row(u"ls -l /Internal *.txt"_s, 0);
    row(u"ls /Internal/file"_s, 0);
    row(u"--help"_s, 0);
    row(u"get --help"_s, 0);
    row(u"--version"_s, 0);

    row(u"ls /Internal/none"_s, 1, "/Internal/none");
    row(u"ls /Internal/file/"_s, 1, "it is a file");
    row(u"rm /Internal/none"_s, 1, "/Internal/none");
    row(u"rm /Internal/folder"_s, 1, "-r");
    row(u"mkdir /Internal/folder"_s, 1, "exists");
    row(u"mkdir /Internal/none/new"_s, 1, "/Internal/none");
    row(u"mv /Internal/none /Remote"_s, 1, "/Internal/none");
    row(u"cp /Internal/file /Internal/none/"_s, 1, "no such directory");
    row(u"launch NoSuchTest"_s, 1, "NoSuchTest");
    row(u"terminate 4711"_s, 1, "4711");
    row(u"get /Internal/none /tmp"_s, 1, "/Internal/none");
    row(u"get /Internal/folder /tmp"_s, 1, "directory");
    row(u"put /nowhere/none /Internal"_s, 1, "/nowhere/none: No such file");
    row(u"put / /Internal"_s, 1, "directory");

    row(u""_s, 2, "no command");
    row(u"dance"_s, 2, "dance");
    row(u"ls --dance /"_s, 2, "dance");
    row(u"--dance ls"_s, 2, "dance");
    row(u"ls"_s, 2, "PATH");
    row(u"info twice"_s, 2, "twice");
    row(u"terminate one"_s, 2, "one");
    row(u"--port 65536 info"_s, 2, "65536");
    row(u"--timeout 0 info"_s, 2, "0");
    row(u"info --host"_s, 2, "--host");
    row(u"put file"_s, 2, "DESTINATION");

    row(u"info --port 1"_s, 3, "127.0.0.1:1");
    row(u"--host no.such.host.invalid info"_s, 3, "no.such.host.invalid");
}

void TestFcpctl::endsWithCode()
{
    QFETCH(QString, commandLine);
    QFETCH(int, code);
    QFETCH(QByteArray, word);

    Fcpctl fcpctl(m_simulator.port(), commandLine.split(u' ', Qt::SkipEmptyParts));
    const int ended = fcpctl.run();
    QVERIFY2(ended == code, fcpctl.errors().constData());
    if (code == 0) {
        QCOMPARE(fcpctl.errors(), QByteArray());
        return;
    }
    QCOMPARE(fcpctl.output(), QByteArray());
    QVERIFY2(fcpctl.errors().startsWith("fcpctl: "), fcpctl.errors().constData());
    QVERIFY2(fcpctl.errors().contains(word), fcpctl.errors().constData());
    QCOMPARE(fcpctl.errors().count('\n'), 1);
}

void TestFcpctl::linkLostInACallEndsWith3()
{
    FakeController controller;
    controller.start();
    controller.answer(u"deleteFileDirectory"_s, {{u"raise"_s, u"COMM_FAILURE"_s}});
    controller.answer(
        u"getFileSystemItems"_s,
        {{u"result"_s, true}, {u"list"_s, QJsonArray {QJsonObject {{u"name"_s, u"file"_s}}}}});

    // The zero that the lost call leaves behind would mean success.
    Fcpctl fcpctl(controller.port(), {u"rm"_s, u"/Internal/file"_s});
    QCOMPARE(fcpctl.run(), 3);
    QVERIFY2(fcpctl.errors().contains("lost"), fcpctl.errors().constData());
    QCOMPARE(controller.calls(u"deleteFileDirectory"_s).size(), 1);
}

void TestFcpctl::timeOutEndsWith3()
{
    FakeController controller;
    controller.start();
    controller.answer(u"getController"_s, {{u"delay"_s, 5000}});
    Fcpctl fcpctl(controller.port(), {u"--timeout"_s, u"0.3"_s, u"info"_s});
    QCOMPARE(fcpctl.run(), 3);
    QVERIFY2(fcpctl.errors().contains("TIMEOUT"), fcpctl.errors().constData());
}

void TestFcpctl::printsJson_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<QString>("array"); // where the records are; empty: at the top
    QTest::addColumn<QStringList>("keys");

    const QStringList none;
    QTest::newRow("info") << QStringList {u"info"_s} << u"-"_s
                          << QStringList {u"clientCountOk"_s, u"clientId"_s, u"host"_s,
                                          u"imageBytes"_s,    u"model"_s,    u"port"_s,
                                          u"serial"_s,        u"status"_s};
    QTest::newRow("modules") << QStringList {u"modules"_s} << QString()
                             << QStringList {u"id"_s,      u"imageBytes"_s, u"name"_s,
                                             u"options"_s, u"serial"_s,     u"type"_s};
    QTest::newRow("ports") << QStringList {u"ports"_s} << QString()
                           << QStringList {u"id"_s, u"imageBytes"_s, u"module"_s};
    const QStringList resource {u"id"_s, u"module"_s, u"name"_s, u"port"_s, u"type"_s};
    QTest::newRow("resources") << QStringList {u"resources"_s} << QString() << resource;
    QTest::newRow("resources --status")
        << QStringList {u"resources"_s, u"--status"_s} << QString()
        << QStringList {u"id"_s,     u"module"_s, u"name"_s, u"port"_s,
                        u"server"_s, u"status"_s, u"type"_s};
    QTest::newRow("tests") << QStringList {u"tests"_s} << u"available"_s
                           << QStringList {u"name"_s, u"options"_s, u"runnableState"_s};
    QTest::newRow("ls") << QStringList {u"ls"_s, u"/Internal"_s} << QString()
                        << QStringList {u"date"_s, u"entries"_s, u"name"_s, u"size"_s, u"type"_s};
}

void TestFcpctl::printsJson()
{
    QFETCH(QStringList, command);
    QFETCH(QString, array);
    QFETCH(QStringList, keys);

    Fcpctl fcpctl(m_simulator.port(), command + QStringList {u"--json"_s});
    QCOMPARE(fcpctl.run(), 0);
    const QJsonDocument document = fcpctl.json();
    QJsonArray records = array.isEmpty() ? document.array() : document[array].toArray();
    if (array == u"-"_s) {
        records = {document.object()};
    }
    QVERIFY2(!records.isEmpty(), fcpctl.output().constData());
    for (const QJsonValueRef &record : records) {
        QCOMPARE(record.toObject().keys(), keys);
    }
}

void TestFcpctl::changesFiles()
{
    const auto run = [this](const QStringList &arguments) {
        return Fcpctl(m_simulator.port(), arguments).run();
    };
    QCOMPARE(run({u"mkdir"_s, u"/Internal/area"_s, u"/Internal/area/inner/"_s}), 0);
    makeFile(u"/Internal/area/a"_s, "a");
    makeFile(u"/Internal/area/b"_s, "bb");
    QCOMPARE(run({u"mv"_s, u"/Internal/area/a"_s, u"/Internal/area/renamed"_s}), 0);
    QCOMPARE(run({u"mv"_s, u"/Internal/area/renamed"_s, u"/Internal/area/b"_s,
                  u"/Internal/area/inner"_s}),
             0);
    QCOMPARE(listing(u"/Internal/area"_s), QStringList {u"inner/"_s});
    QCOMPARE(listing(u"/Internal/area/inner"_s), (QStringList {u"b"_s, u"renamed"_s}));
    QCOMPARE(run({u"cp"_s, u"/Internal/area/inner"_s, u"/Remote/copy"_s}), 0);
    QCOMPARE(run({u"cp"_s, u"/Internal/area/inner/b"_s, u"/Remote/"_s}), 0);
    QCOMPARE(listing(u"/Remote"_s), (QStringList {u"b"_s, u"copy/"_s}));
    QCOMPARE(run({u"rm"_s, u"-r"_s, u"/Internal/area"_s, u"/Remote/copy/"_s, u"/Remote/b"_s}), 0);
    QCOMPARE(listing(u"/Remote"_s), QStringList());
}

void TestFcpctl::neverOverwritesWhatIsThere_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("mv in a directory") << u"mv /Internal/file /Internal/other"_s;
    QTest::newRow("mv elsewhere") << u"mv /Internal/file /Remote/other"_s;
    QTest::newRow("mv into") << u"mv /Internal/file /Remote"_s;
    QTest::newRow("cp in a directory") << u"cp /Internal/file /Internal/other"_s;
    QTest::newRow("cp onto itself") << u"cp /Internal/file /Internal/file"_s;
    QTest::newRow("cp into") << u"cp /Internal/file /Remote"_s;
}

void TestFcpctl::neverOverwritesWhatIsThere()
{
    QFETCH(QString, command);
    const QStringList there {u"/Internal/other"_s, u"/Remote/other"_s, u"/Remote/file"_s};
    for (const QString &path : there) {
        makeFile(path, "there");
    }
    Fcpctl fcpctl(m_simulator.port(), command.split(u' '));
    QCOMPARE(fcpctl.run(), 1);
    QVERIFY2(fcpctl.errors().contains("exists already"), fcpctl.errors().constData());
    QVERIFY(QFile::exists(m_simulator.local(u"/Internal/file"_s)));
    for (const QString &path : there) {
        QCOMPARE(QFile(m_simulator.local(path)).size(), 5);
        QVERIFY(QFile::remove(m_simulator.local(path)));
    }
}

void TestFcpctl::refusedNameLeavesNoDirectory()
{
    const QStringList before = listing(u"/Internal"_s);
    Fcpctl fcpctl(m_simulator.port(), {u"mkdir"_s, u"/Internal/"_s + QString(256, u'n')});
    QCOMPARE(fcpctl.run(), 1);
    QCOMPARE(listing(u"/Internal"_s), before);
}

void TestFcpctl::namesTravelUnchanged_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("Unicode") << QByteArray("\u00e4\u20ac\u65e5\u672c\U0001F642");
    QTest::newRow("a newline and a backslash") << QByteArray("two\nlines\\");
    QTest::newRow("no UTF-8") << QByteArray("b\xe4h \xff\xc3");
    QTest::newRow("a dash in front") << QByteArray("-l");
}

void TestFcpctl::namesTravelUnchanged()
{
    QFETCH(QByteArray, name);
    const QByteArray local = QFile::encodeName(m_simulator.local(u"/Remote/"_s)) + name;
    QFile::remove(m_simulator.local(u"/Remote/plain"_s));
    makeFile(u"/Remote/plain"_s);
    QCOMPARE(::rename(QFile::encodeName(m_simulator.local(u"/Remote/plain"_s)), local), 0);

    Fcpctl ls(m_simulator.port(), {u"ls"_s, u"/Remote"_s});
    QCOMPARE(ls.run(), 0);
    QCOMPARE(ls.output(), name + '\n');

    // Qt can't start a program with such a word, a shell can.
    QString octal;
    for (const char byte : name) {
        octal += u"\\%1"_s.arg(static_cast<uchar>(byte), 3, 8, '0'_L1);
    }
    Fcpctl rm(m_simulator.port(), {u"rm"_s, u"/Remote/$(printf '%1')"_s.arg(octal)});
    rm.throughShell();
    QVERIFY2(rm.run() == 0, rm.errors().constData());
    QCOMPARE(listing(u"/Remote"_s), QStringList());
}

void TestFcpctl::escapesNamesOnATerminal()
{
    makeFile(u"/Internal/\x1b[31mred\n\u202Edlrow"_s);
    Fcpctl ls(m_simulator.port(), {u"ls"_s, u"/Internal"_s});
    ls.startOnTerminal(80);
    QCOMPARE(ls.wait(), 0);
    QVERIFY2(ls.output().contains("\\x1b[31mred\\n\\u{202e}dlrow\r\n"), ls.output().constData());
    QVERIFY(!ls.output().contains('\x1b'));

    Fcpctl get(m_simulator.port(), {u"get"_s, u"/Internal/\x1b[31mnone"_s});
    QCOMPARE(get.run(), 1);
    QVERIFY(!get.errors().contains('\x1b'));
    QVERIFY(QFile::remove(m_simulator.local(u"/Internal/\x1b[31mred\n\u202Edlrow"_s)));
}

void TestFcpctl::passesTestArgumentsOn()
{
    FakeController controller;
    controller.start();
    controller.answer(u"launchTest"_s, {{u"result"_s, 7}});
    Fcpctl fcpctl(controller.port(),
                  {u"launch"_s, u"BERT"_s, u"--json"_s, u"-x"_s, u""_s, u"a b"_s});
    QCOMPARE(fcpctl.run(), 0);
    QCOMPARE(fcpctl.output(), QByteArray("7\n"));
    const auto calls = controller.calls(u"launchTest"_s);
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls.first().arguments,
             (QJsonArray {u"BERT"_s, QJsonArray {u"--json"_s, u"-x"_s, u""_s, u"a b"_s}}));
}

void TestFcpctl::fullOutputIsAFailure()
{
    Fcpctl fcpctl(m_simulator.port(), {u"ls"_s, u"/"_s});
    fcpctl.writeTo(u"/dev/full"_s);
    QCOMPARE(fcpctl.run(), 1);
    QVERIFY2(fcpctl.errors().contains("No space left"), fcpctl.errors().constData());
}

void TestFcpctl::closedReaderEndsItSilently()
{
    Fcpctl fcpctl(m_simulator.port(), {u"ls"_s, u"/"_s});
    fcpctl.writeToNobody();
    QCOMPARE(fcpctl.run(), -SIGPIPE);
    QCOMPARE(fcpctl.errors(), QByteArray());
}

void TestFcpctl::watchSurvivesARestart()
{
    SimulatorProcess simulator;
    simulator.start();
    simulator.stop();
    simulator.start(); // on a given port now, which can be taken again as soon as it is free
    Fcpctl watch(simulator.port(), {u"watch"_s, u"--json"_s, u"--interval"_s, u"0.5"_s});
    watch.start();
    const auto count = [&watch](const QByteArray &word) {
        const QList<QByteArray> lines = watch.output().split('\n');
        return std::count_if(lines.begin(), lines.end(), [&word](const QByteArray &line) {
            const QJsonObject object = QJsonDocument::fromJson(line).object();
            return object[u"kind"_s].toString().toUtf8() == word
                || object[u"event"_s].toString().toUtf8() == word
                || object[u"state"_s].toString().toUtf8() == word;
        });
    };
    QTRY_COMPARE_WITH_TIMEOUT(count("Connected"), 1, PatienceMs);
    simulator.sendEvents("MODULE_STATUS");
    QTRY_COMPARE_WITH_TIMEOUT(count("MODULE_STATUS"), 1, PatienceMs);

    simulator.kill();
    QTRY_VERIFY_WITH_TIMEOUT(count("Lost") > 0, PatienceMs);
    simulator.start();
    QTRY_COMPARE_WITH_TIMEOUT(count("restored"), 1, PatienceMs);
    simulator.sendEvents("MODULE_STATUS");
    QTRY_COMPARE_WITH_TIMEOUT(count("MODULE_STATUS"), 2, PatienceMs);
    simulator.order("shutdown 1");
    QTRY_COMPARE_WITH_TIMEOUT(count("shutdown"), 1, PatienceMs);

    watch.signal(SIGINT);
    QCOMPARE(watch.wait(), 0);
    QCOMPARE(watch.errors(), QByteArray());
}

QTEST_GUILESS_MAIN(TestFcpctl)
#include "tst_fcpctl.moc"

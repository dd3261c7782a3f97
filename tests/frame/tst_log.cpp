#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLoggingCategory>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <csignal>
#include <functional>
#include <numeric>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <frame/FwLog.h>

#include "GuardedTest.h"
#include "Poll.h"

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(lcOne, "test.one")
Q_LOGGING_CATEGORY(lcTwo, "test.two")

constexpr int childLines = 1000;

FwLog &fwlog()
{
    return FwLog::instance();
}

FwLog::Options quietly(const QString &path)
{
    FwLog::Options options;
    options.standardError = false;
    options.filePath = path;
    options.journalDirectory = qEnvironmentVariable("LOG_JOURNALS");
    return options;
}

QStringList linesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly)
        ? QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
        : QStringList();
}

/// The numbers at the ends of the lines of the children.
QVector<int> numbersIn(const QStringList &lines)
{
    QVector<int> numbers;
    for (const QString &line : lines) {
        const qsizetype at = line.indexOf(": line "_L1);
        if (at >= 0) {
            numbers.append(line.mid(at + 7).toInt());
        }
    }
    return numbers;
}

QVector<int> counting(int from, int to)
{
    QVector<int> numbers(to - from);
    std::iota(numbers.begin(), numbers.end(), from);
    return numbers;
}

/// Logs, then ends in the way that is called @p end.
int child(const QString &path, const QString &end)
{
    fwlog().start(quietly(path));
    for (int i = 0; i < childLines; ++i) {
        qCWarning(lcOne) << "line" << i;
    }
    if (end == "wait"_L1) {
        fwlog().flush();
        puts(qPrintable(fwlog().filePath()));
        fflush(stdout);
        pause();
    } else if (end == "kill"_L1) {
        raise(SIGKILL);
    } else if (end == "abort"_L1) {
        abort();
    } else if (end == "fatal"_L1) {
        qFatal("line %d", childLines);
    } else if (end == "fork"_L1) {
        if (fork() == 0) {
            qCWarning(lcOne) << "line" << -1;
            exit(0);
        }
        wait(nullptr);
        raise(SIGKILL);
    } else if (end == "exit"_L1) {
        static const auto destroyed = qScopeGuard([] { qCWarning(lcOne) << "line" << childLines; });
    }
    return 0;
}

class Child : public QProcess
{
public:
    Child(const QString &path, const QString &end)
    {
        setProcessChannelMode(QProcess::SeparateChannels);
        start(QCoreApplication::applicationFilePath(), {u"--child"_s, path, end});
    }
    ~Child() override
    {
        kill();
        waitForFinished();
    }
};

/// A small file system of its own, until it is full.
class SmallDisk
{
public:
    explicit SmallDisk(const QString &path)
        : m_path(QFile::encodeName(path))
        , m_mounted(::mount("none", m_path.constData(), "tmpfs", 0, "size=256k") == 0)
    {
    }
    ~SmallDisk()
    {
        if (m_mounted) {
            ::umount2(m_path.constData(), MNT_DETACH);
        }
    }
    bool isMounted() const { return m_mounted; }

private:
    const QByteArray m_path;
    const bool m_mounted;
};

} // namespace

class tst_log : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void writesTimeLevelCategoryThreadAndText();
    void oneMessageIsOneLine();
    void afterACrashNothingIsMissing_data();
    void afterACrashNothingIsMissing();
    void aDamagedJournalDoesNoHarm();
    void processesDoNotShareAFile();
    void rotatesByRenaming();
    void keepsOnWithoutAFile_data();
    void keepsOnWithoutAFile();
    void resumesWhenThereIsRoomAgain();
    void countsWhatItDrops();
    void keepsTheOrderOfEachThread();
    void setsLevelsOfCategories();
    void givesTheMessageHandlerBack();
    void costOfACall();

private:
    QString path() const { return m_directory->filePath(u"logs/app.log"_s); }

    std::optional<QTemporaryDir> m_directory;
};

void tst_log::init()
{
    GuardedTest::init();
    m_directory.emplace();
}

void tst_log::cleanup()
{
    fwlog().stop();
    fwlog().setRules({});
    GuardedTest::cleanup();
}

void tst_log::writesTimeLevelCategoryThreadAndText()
{
    fwlog().start(quietly(path()));
    qCCritical(lcTwo) << "broken";
    fwlog().stop();
    const QStringList lines = linesOf(path());
    const QRegularExpression form(
        u"^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\\.\\d{3}Z critical test\\.two main: broken$"_s);
    QVERIFY2(lines.size() == 1 && form.match(lines.value(0)).hasMatch(),
             qPrintable(lines.join(u'|')));
    QCOMPARE(QDir(m_directory->filePath(u"logs"_s)).entryList(QDir::Files), {u"app.log"_s});
}

void tst_log::oneMessageIsOneLine()
{
    fwlog().start(quietly(path()));
    qCWarning(lcOne).noquote() << u"a\n2026-01-01T00:00:00.000Z info x y: forged\r\x1b[2J\u2028b"_s;
    qCWarning(lcOne).noquote() << QString(1'000'000, u'z');
    fwlog().stop();
    const QStringList lines = linesOf(path());
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines.at(0).endsWith(
        u": a\\n2026-01-01T00:00:00.000Z info x y: forged\\r\\x1b[2J\\u2028b"_s));
    QVERIFY(lines.at(1).endsWith(u"zz ... (1000000 characters)"_s) && lines.at(1).size() < 10000);
}

void tst_log::afterACrashNothingIsMissing_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<int>("expected");
    QTest::addColumn<QByteArray>("journals");
    for (const char *end : {"kill", "abort", "fork"}) {
        QTest::newRow(end) << QString::fromLatin1(end) << childLines << QByteArray();
    }
    for (const char *end : {"fatal", "exit"}) {
        QTest::newRow(end) << QString::fromLatin1(end) << childLines + 1 << QByteArray();
    }
    QTest::newRow("journal in memory") << u"kill"_s << childLines << QByteArray("/dev/shm");
}

void tst_log::afterACrashNothingIsMissing()
{
    QFETCH(QString, end);
    QFETCH(int, expected);
    QFETCH(QByteArray, journals);
    const auto guard = qScopeGuard([] { qunsetenv("LOG_JOURNALS"); });
    qputenv("LOG_JOURNALS", journals);
    Child process(path(), end);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus() == QProcess::NormalExit, end == "exit"_L1);
    fwlog().start(quietly(path()));
    fwlog().stop();
    QCOMPARE(numbersIn(linesOf(path())), counting(0, expected));
    const bool remarked = linesOf(path()).constLast().contains("ended without closing"_L1);
    QCOMPARE(remarked, end != "exit"_L1);
}

void tst_log::aDamagedJournalDoesNoHarm()
{
    QDir().mkpath(m_directory->filePath(u"logs"_s));
    {
        Child process(path(), u"kill"_s);
        QVERIFY(process.waitForFinished());
    }
    QFile journal(path() + u".journal"_s);
    QVERIFY(journal.open(QIODevice::ReadWrite) && journal.seek(24));
    journal.write(QByteArray(3000, '\x7f'));
    journal.close();
    fwlog().start(quietly(path()));
    qCWarning(lcOne) << "line" << 5000;
    fwlog().stop();
    QCOMPARE(numbersIn(linesOf(path())).constLast(), 5000);
}

void tst_log::processesDoNotShareAFile()
{
    Child first(path(), u"wait"_s);
    QVERIFY(first.waitForReadyRead());
    Child second(path(), u"wait"_s);
    QVERIFY(second.waitForReadyRead());
    const QString other = m_directory->filePath(u"logs/app.2.log"_s);
    QCOMPARE(QString::fromUtf8(first.readAll()).trimmed(), path());
    QCOMPARE(QString::fromUtf8(second.readAll()).trimmed(), other);
    second.kill();
    QVERIFY(second.waitForFinished());
    first.kill();
    QVERIFY(first.waitForFinished());
    fwlog().start(quietly(path()));
    fwlog().stop();
    for (const QString &file : {path(), other}) {
        QCOMPARE(numbersIn(linesOf(file)), counting(0, childLines));
        QVERIFY(!QFile::exists(file + u".journal"_s));
    }
}

void tst_log::rotatesByRenaming()
{
    FwLog::Options options = quietly(path());
    options.maxFileSize = 64 * 1024;
    options.fileCount = 3;
    fwlog().start(options);
    constexpr int count = 4000;
    for (int i = 0; i < count; ++i) {
        qCWarning(lcOne) << "line" << i;
        if (i % 100 == 0) {
            fwlog().flush();
        }
    }
    fwlog().stop();
    const QStringList files {path() + u".2"_s, path() + u".1"_s, path()};
    QVector<int> numbers;
    for (const QString &file : files) {
        QVERIFY2(QFileInfo(file).size() <= options.maxFileSize, qPrintable(file));
        numbers += numbersIn(linesOf(file));
    }
    QVERIFY(!QFile::exists(path() + u".3"_s));
    QCOMPARE(numbers, counting(numbers.constFirst(), count));
}

void tst_log::keepsOnWithoutAFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no directory can be there") << u"/dev/null/logs/app.log"_s;
    QTest::newRow("a read-only file system") << u"/proc/app.log"_s;
    QTest::newRow("always full") << u"/dev/full"_s;
}

void tst_log::keepsOnWithoutAFile()
{
    QFETCH(QString, path);
    const auto guard = qScopeGuard([] { QFile::remove(u"/dev/full.journal"_s); });
    fwlog().start(quietly(path));
    QStringList texts;
    for (int i = 0; i < 3; ++i) {
        qCWarning(lcOne) << "line" << i;
        QVERIFY(fwlog().flush());
    }
    fwlog().stop();
    for (const FwLogLine &line : fwlog().lines()) {
        texts += line.toText();
    }
    QVERIFY(numbersIn(texts).endsWith(2));
    QCOMPARE(texts.filter(u"Can't write the log file "_s + path).size(), 1);
}

void tst_log::resumesWhenThereIsRoomAgain()
{
    const SmallDisk disk(m_directory->path());
    if (!disk.isMounted()) {
        QSKIP("Only root can mount a small disk");
    }
    QFile ballast(m_directory->filePath(u"ballast"_s));
    FwLog::Options options = quietly(m_directory->filePath(u"app.log"_s));
    options.ringSize = 64 * 1024;
    fwlog().start(options);
    QVERIFY(ballast.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (ballast.write(QByteArray(4096, 'x')) > 0) { }
    for (int i = 0; i < 100; ++i) {
        qCWarning(lcOne) << "line" << i;
    }
    QVERIFY(fwlog().flush());
    ballast.remove();
    int next = 100;
    QVERIFY(pollUntil([&] {
        qCWarning(lcOne) << "line" << next++;
        return fwlog().flush()
            && !linesOf(options.filePath).filter(u"is written again"_s).isEmpty();
    }));
    fwlog().stop();
    QCOMPARE(numbersIn(linesOf(options.filePath)).constLast(), next - 1);
}

void tst_log::countsWhatItDrops()
{
    FwLog::Options options = quietly(path());
    options.ringSize = 64 * 1024;
    fwlog().start(options);
    constexpr int count = 20000;
    const QString load(500, u'.');
    for (int i = 0; i < count; ++i) {
        qCWarning(lcOne).noquote() << load;
    }
    qCWarning(lcOne) << "line" << 1;
    fwlog().stop();
    const QStringList lines =
        linesOf(path()) + linesOf(path() + u".1"_s) + linesOf(path() + u".2"_s);
    const QStringList remarks = lines.filter(u"messages were dropped"_s);
    quint64 named = 0;
    for (const QString &remark : remarks) {
        named += remark.section(u": "_s, 1).section(u' ', 0, 0).toULongLong();
    }
    QCOMPARE(numbersIn(linesOf(path())), {1});
    QVERIFY(fwlog().droppedLines() > 0);
    QCOMPARE(named, fwlog().droppedLines());
    QCOMPARE(quint64(lines.size() - remarks.size()) + named, quint64(count + 1));
}

void tst_log::keepsTheOrderOfEachThread()
{
    fwlog().start(quietly(path()));
    constexpr int threadCount = 4;
    constexpr int count = 500;
    std::vector<std::unique_ptr<QThread>> threads;
    for (int t = 0; t < threadCount; ++t) {
        threads.emplace_back(QThread::create([] {
            for (int i = 0; i < count; ++i) {
                qCWarning(lcOne) << "line" << i;
            }
        }));
        threads.back()->setObjectName(u"worker%1"_s.arg(t));
        threads.back()->start();
    }
    for (const auto &thread : threads) {
        thread->wait();
    }
    fwlog().stop();
    for (int t = 0; t < threadCount; ++t) {
        QCOMPARE(numbersIn(linesOf(path()).filter(u" worker%1:"_s.arg(t))), counting(0, count));
    }
}

void tst_log::setsLevelsOfCategories()
{
    fwlog().start(quietly(path()));
    fwlog().setLevel(u"test.*"_s, QtCriticalMsg);
    fwlog().setLevel(u"test.one"_s, QtInfoMsg);
    qCDebug(lcOne) << "no";
    qCInfo(lcOne) << "line" << 1;
    qCWarning(lcTwo) << "no";
    qCCritical(lcTwo) << "line" << 2;
    fwlog().setLevel(u"test.*"_s, QtDebugMsg);
    fwlog().stop();
    QCOMPARE(linesOf(path()).size(), 2);
    QCOMPARE(numbersIn(linesOf(path())), (QVector<int> {1, 2}));
}

void tst_log::givesTheMessageHandlerBack()
{
    static QStringList heard;
    heard.clear();
    const auto listen = [](QtMsgType, const QMessageLogContext &, const QString &text) {
        heard.append(text);
    };
    const QtMessageHandler before = qInstallMessageHandler(listen);
    FwLog::Options options = quietly({});
    options.callPreviousHandler = true;
    QVERIFY(fwlog().start(options) && !fwlog().start(options));
    qCWarning(lcOne) << "both";
    fwlog().stop();
    options.callPreviousHandler = false;
    fwlog().start(options);
    qCWarning(lcOne) << "log only";
    fwlog().stop();
    qCWarning(lcOne) << "listener only";
    qInstallMessageHandler(before);
    QCOMPARE(heard, (QStringList {u"both"_s, u"listener only"_s}));
}

/// Beside what a line on the standard error output costs who waits for it.
void tst_log::costOfACall()
{
    constexpr int count = 20000;
    const auto nanoseconds = [](const std::function<void()> &call) {
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < count; ++i) {
            call();
        }
        return timer.nsecsElapsed() / count;
    };
    QFile plain(m_directory->filePath(u"plain"_s));
    QVERIFY(plain.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const int saved = ::dup(STDERR_FILENO);
    ::dup2(plain.handle(), STDERR_FILENO);
    const QtMessageHandler before = qInstallMessageHandler(nullptr);
    const auto call = [] { qCWarning(lcOne, "a message of ordinary length, %d", 17); };
    const qint64 direct = nanoseconds(call);
    FwLog::Options options = quietly(path());
    options.ringSize = 16 * 1024 * 1024;
    fwlog().start(options);
    const qint64 logged = nanoseconds(call);
    fwlog().stop();
    qInstallMessageHandler(before);
    ::dup2(saved, STDERR_FILENO);
    ::close(saved);
    qInfo("a call takes %lld ns, plain standard error to a file %lld ns", logged, direct);
    QCOMPARE(fwlog().droppedLines(), quint64(0));
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.value(1) == "--child"_L1) {
        return child(words.value(2), words.value(3));
    }
    tst_log test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_log.moc"

#include <QElapsedTimer>
#include <QProcess>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include "Pattern.h"
#include "TransferTest.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qint64 Chunk = 131072;

/// A small file system of its own, for as long as it lives.
class SmallDisk
{
public:
    explicit SmallDisk(const QString &folder)
        : m_folder(folder.toUtf8())
        , m_isMounted(::mount("none", m_folder.constData(), "tmpfs", 0, "size=2m") == 0)
    {
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;
    ~SmallDisk()
    {
        if (m_isMounted) {
            ::umount2(m_folder.constData(), MNT_DETACH);
        }
    }

    bool isMounted() const { return m_isMounted; }
    void fill() const
    {
        QFile file(QString::fromUtf8(m_folder) + u"/filler"_s);
        const QByteArray block(4096, 'f');
        if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
            while (file.write(block) == block.size()) { }
        }
    }
    void makeReadOnly() const
    {
        ::mount("none", m_folder.constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, "size=2m");
    }

private:
    const QByteArray m_folder;
    const bool m_isMounted;
};

/// This program as one that only carries a file, to be killed while it does.
int carryAndExit(const QStringList &arguments)
{
    Link link;
    if (!link.connectTo(static_cast<quint16>(arguments[2].toInt()))) {
        return 1;
    }
    ScriptedAnswers answers;
    answers.choice = ConflictChoice::Overwrite;
    TransferProbe probe(link.proxy(), static_cast<FileTransfer::Kind>(arguments[3].toInt()),
                        {arguments[4]}, arguments[5], &answers);
    return probe.run().outcome == TransferSummary::Outcome::Done ? 0 : 1;
}

} // namespace

/** Whatever fails: the old file or the new one, no rest of a transfer, and the truth is told. */
class TestTransferFaults : public TransferTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_simulator.start(); }
    void init() { prepare(); }
    void cleanup() { check(); }

    void lostLink_data();
    void lostLink();
    void targetThatTakesNothing_data();
    void targetThatTakesNothing();
    void sourceChanges_data();
    void sourceChanges();
    void targetAppears_data();
    void targetAppears();
    void cancelledAtAnyFile_data();
    void cancelledAtAnyFile();
    void killedProcess_data();
    void killedProcess();
    void namesOfAFaultyController();
    void cancelWhileNothingAnswers();

private:
    /// Runs it, and does something once the file of that number is under way.
    TransferSummary runAndInterfere(int fileNumber, const std::function<void()> &interfere);
};

TransferSummary TestTransferFaults::runAndInterfere(int fileNumber,
                                                    const std::function<void()> &interfere)
{
    m_simulator.order("latency 10");
    bool done = false;
    qint64 before = -1;
    QObject context;
    QObject::connect(&m_probe->transfer, &FileTransfer::progressChanged, &context,
                     [&](const TransferProgress &progress) {
                         if (progress.fileNumber != fileNumber) {
                             return;
                         }
                         before = before < 0 ? progress.bytesDone : before;
                         if (progress.bytesDone > before && !std::exchange(done, true)) {
                             interfere();
                         }
                     });
    const TransferSummary summary = m_probe->run();
    m_simulator.order("latency 0");
    return done ? summary : TransferSummary(); // which fails every one of them
}

void TestTransferFaults::lostLink_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<int>("number");
    QTest::addColumn<TcpProxy::Action>("action");
    struct Place
    {
        Kind kind;
        const char *operation;
        int number = 0;
    };
    const Place places[] = {
        {Kind::Upload, "getFileSystemItems"},
        {Kind::Upload, "openFile"},
        {Kind::Upload, "pushFileContents"},
        {Kind::Upload, "pushFileContents", 2},
        {Kind::Upload, "closeFile"},
        {Kind::Upload, "renameFileDirectory"},
        {Kind::Upload, "renameFileDirectory", 1},
        {Kind::Upload, "deleteFileDirectory"},
        {Kind::Download, "getFileSystemItems"},
        {Kind::Download, "openFile"},
        {Kind::Download, "pullFileContents", 1},
    };
    for (const Place &place : places) {
        for (const auto &[action, name] : {std::pair(TcpProxy::Action::ResetBefore, "before"),
                                           std::pair(TcpProxy::Action::ResetAfter, "after")}) {
            QTest::addRow("%s, %s %d, %s", place.kind == Kind::Upload ? "upload" : "download",
                          place.operation, place.number + 1, name)
                << place.kind << QByteArray(place.operation) << place.number << action;
        }
    }
}

void TestTransferFaults::lostLink()
{
    QFETCH(QByteArray, operation);
    QFETCH(int, number);
    QFETCH(TcpProxy::Action, action);
    QFETCH(Kind, kind);
    m_kind = kind;
    const QByteArray fresh = patternBytes(3 * Chunk);
    const QByteArray old = patternBytes(Chunk, 7);
    writeTree(localSource(), {{u"a"_s, fresh}, {u"b"_s, fresh}});
    writeTree(localTarget(), {{u"a"_s, old}});
    TransferProbe &probe = begin({u"a"_s, u"b"_s});
    m_proxy.strike({.action = action, .operation = operation, .passFirst = number});

    const TransferSummary summary = probe.run();

    QCOMPARE(summary.outcome, Outcome::Failed);
    QVERIFY2(summary.reason.contains(u"link to"_s), qPrintable(summary.reason));
    QVERIFY(summary.notTried >= 1 || operation == "getFileSystemItems");
    const Tree tree = treeOf(localTarget());
    const bool oldIsWhole = tree.values().contains(old);
    const bool newIsThere = tree.value(u"a"_s) == fresh;
    QVERIFY(oldIsWhole || newIsThere);
    QVERIFY(tree.value(u"a"_s) == old || newIsThere || !tree.contains(u"a"_s));
    QVERIFY(tree.contains(u"a"_s) || operation == "renameFileDirectory");
    QVERIFY(newIsThere || summary.carried == 0);

    m_proxy.behave();
    QVERIFY(m_link->connectTo(m_proxy.port()));
    QVERIFY(pollUntil([&] { return m_simulator.openFiles().isEmpty(); }, 5s));
    QCOMPARE(begin({u"a"_s, u"b"_s}).run().outcome, Outcome::Done);
    QVERIFY(treeOf(localTarget()) == Tree({{u"a"_s, fresh}, {u"b"_s, fresh}}));
}

void TestTransferFaults::targetThatTakesNothing_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<bool>("isFull");
    QTest::newRow("download, full") << Kind::Download << true;
    QTest::newRow("local copy, full") << Kind::LocalCopy << true;
    QTest::newRow("download, read only") << Kind::Download << false;
    QTest::newRow("local copy, read only") << Kind::LocalCopy << false;
}

void TestTransferFaults::targetThatTakesNothing()
{
    QFETCH(bool, isFull);
    QFETCH(Kind, kind);
    m_kind = kind;
    const SmallDisk disk(localTarget());
    if (!disk.isMounted()) {
        QSKIP("no file system can be mounted here");
    }
    const QByteArray fresh = patternBytes(3 * Chunk);
    writeTree(localSource(), {{u"a"_s, fresh}, {u"b"_s, fresh}, {u"c"_s, fresh}});
    writeTree(localTarget(), {{u"b"_s, "old"}});
    // The question comes after the room was looked for.
    m_answers.onAsked = [&] { isFull ? disk.fill() : disk.makeReadOnly(); };

    const TransferSummary summary = begin({u"a"_s, u"b"_s, u"c"_s}).run();

    QCOMPARE(summary.outcome, Outcome::Failed);
    QCOMPARE(summary.carried, 1);
    QCOMPARE(summary.notTried, isFull ? 1 : 0);
    QCOMPARE(summary.failures.size(), isFull ? 1 : 2);
    QCOMPARE(!summary.reason.isEmpty(), isFull);
    Tree tree = treeOf(localTarget());
    tree.remove(u"filler"_s);
    QVERIFY(tree == Tree({{u"a"_s, fresh}, {u"b"_s, "old"}}));
}

void TestTransferFaults::sourceChanges_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<bool>("whileRead");
    QTest::addColumn<int>("newSize"); ///< -1: it goes
    QTest::addColumn<bool>("fails");
    for (const auto &[name, kind] :
         {std::pair("upload", Kind::Upload), std::pair("download", Kind::Download),
          std::pair("local copy", Kind::LocalCopy)}) {
        QTest::addRow("%s, vanishes", name) << kind << false << -1 << true;
        QTest::addRow("%s, shrinks", name) << kind << false << 5 << false;
        QTest::addRow("%s, grows", name) << kind << false << int(5 * Chunk) << false;
    }
    QTest::newRow("upload, written to while read")
        << Kind::Upload << true << int(20 * Chunk) << true;
    QTest::newRow("upload, cut while read") << Kind::Upload << true << 5 << true;
    QTest::newRow("download, cut while read") << Kind::Download << true << 5 << true;
}

void TestTransferFaults::sourceChanges()
{
    QFETCH(bool, whileRead);
    QFETCH(int, newSize);
    QFETCH(bool, fails);
    QFETCH(Kind, kind);
    m_kind = kind;
    const QByteArray other = patternBytes(std::max(newSize, 0), 9);
    writeTree(localSource(),
              {{u"a"_s, "x"}, {u"b"_s, patternBytes((whileRead ? 20 : 3) * Chunk)}, {u"c"_s, "x"}});
    writeTree(localTarget(), {{u"a"_s, "old"}, {u"b"_s, "old"}});
    const QString changing = localSource() + u"/b"_s;
    const auto change = [&] {
        newSize < 0 ? void(QFile::remove(changing)) : writeFile(changing, other);
    };
    TransferProbe &probe = begin({u"a"_s, u"b"_s, u"c"_s});
    m_answers.onAsked = [&] { whileRead || m_answers.asked.size() > 1 ? void() : change(); };

    const TransferSummary summary = whileRead ? runAndInterfere(2, change) : probe.run();

    QCOMPARE(summary.outcome, fails ? Outcome::Failed : Outcome::Done);
    QCOMPARE(summary.failures.size(), fails ? 1 : 0);
    QCOMPARE(summary.carried, fails ? 2 : 3);
    QVERIFY(treeOf(localTarget())
            == Tree({{u"a"_s, "x"}, {u"b"_s, fails ? QByteArray("old") : other}, {u"c"_s, "x"}}));
}

void TestTransferFaults::targetAppears_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<ConflictChoice>("choice");
    QTest::addColumn<Tree>("expected");
    const QByteArray fresh = patternBytes(20 * Chunk);
    for (const auto &[name, kind] :
         {std::pair("upload", Kind::Upload), std::pair("download", Kind::Download)}) {
        QTest::addRow("%s, overwrite", name)
            << kind << ConflictChoice::Overwrite << Tree {{u"a"_s, fresh}};
        QTest::addRow("%s, skip", name)
            << kind << ConflictChoice::Skip << Tree {{u"a"_s, "theirs"}};
        QTest::addRow("%s, keep both", name)
            << kind << ConflictChoice::KeepBoth << Tree {{u"a"_s, "theirs"}, {u"a (2)"_s, fresh}};
        QTest::addRow("%s, cancel", name)
            << kind << ConflictChoice::Cancel << Tree {{u"a"_s, "theirs"}};
    }
}

void TestTransferFaults::targetAppears()
{
    QFETCH(ConflictChoice, choice);
    QFETCH(Kind, kind);
    m_kind = kind;
    writeTree(localSource(), {{u"a"_s, patternBytes(20 * Chunk)}});
    m_answers.choice = choice;
    begin({u"a"_s});

    const TransferSummary summary =
        runAndInterfere(1, [&] { writeFile(localTarget() + u"/a"_s, "theirs"); });

    QCOMPARE(summary.outcome,
             choice == ConflictChoice::Cancel ? Outcome::Cancelled : Outcome::Done);
    QCOMPARE(m_answers.asked.size(), 1);
    QTEST(treeOf(localTarget()), "expected");
}

void TestTransferFaults::cancelledAtAnyFile_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<int>("fileNumber");
    for (int number = 1; number <= 3; ++number) {
        QTest::addRow("upload, file %d", number) << Kind::Upload << number;
        QTest::addRow("download, file %d", number) << Kind::Download << number;
    }
}

void TestTransferFaults::cancelledAtAnyFile()
{
    QFETCH(int, fileNumber);
    QFETCH(Kind, kind);
    m_kind = kind;
    const QByteArray fresh = patternBytes(30 * Chunk);
    Tree expected;
    QStringList names;
    for (int number = 1; number <= 3; ++number) {
        names.append(QString::number(number));
        writeFile(localSource() + u'/' + names.last(), fresh);
        writeFile(localTarget() + u'/' + names.last(), "old");
        expected.insert(names.last(), number < fileNumber ? fresh : QByteArray("old"));
    }
    begin(names);
    QElapsedTimer sinceCancel;

    const TransferSummary summary = runAndInterfere(fileNumber, [&] {
        sinceCancel.start();
        m_probe->transfer.cancel();
        m_probe->transfer.cancel();
    });

    QCOMPARE(summary.outcome, Outcome::Cancelled);
    QVERIFY(sinceCancel.elapsed() < 1000);
    QCOMPARE(summary.carried, fileNumber - 1);
    QCOMPARE(summary.notTried, 4 - fileNumber);
    QVERIFY(treeOf(localTarget()) == expected);
}

void TestTransferFaults::killedProcess_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::newRow("upload") << Kind::Upload;
    QTest::newRow("download") << Kind::Download;
}

void TestTransferFaults::killedProcess()
{
    QFETCH(Kind, kind);
    m_kind = kind;
    const QByteArray fresh = patternBytes(40 * Chunk);
    writeTree(localSource(), {{u"a"_s, fresh}});
    writeTree(localTarget(), {{u"a"_s, "old"}});
    const auto partIsWritten = [&] {
        const QFileInfoList parts =
            QDir(localTarget()).entryInfoList({u".a.*.vexpart*"_s}, QDir::Files | QDir::Hidden);
        return !parts.isEmpty() && parts.first().size() > 2 * Chunk;
    };
    m_simulator.order("latency 20");
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(),
                {u"--carry"_s, QString::number(m_proxy.port()), QString::number(int(m_kind)),
                 source() + u"/a"_s, target()});
    QVERIFY(pollUntil(partIsWritten));
    child.kill();
    QVERIFY(child.waitForFinished());
    m_simulator.order("latency 0");
    QCOMPARE(child.exitStatus(), QProcess::CrashExit);

    QCOMPARE(contentsOf(localTarget() + u"/a"_s), "old");
    QVERIFY(pollUntil([&] { return m_simulator.openFiles().isEmpty(); }, 5s));
    QVERIFY(partIsWritten());
    QCOMPARE(begin({u"a"_s}).run().outcome, Outcome::Done);
    QVERIFY(treeOf(localTarget()) == Tree({{u"a"_s, fresh}}));
}

/// Names that no entry of a folder can have don't lead out of the target, and bytes that the local
/// disk can't spell don't become others.
void TestTransferFaults::namesOfAFaultyController()
{
    m_kind = Kind::Download;
    writeTree(localSource(), {{u"folder/good"_s, "x"}});
    const QByteArray path = QFile::encodeName(localSource()) + "/folder/\xff";
    FILE *file = std::fopen(path.constData(), "w");
    QVERIFY(file && std::fclose(file) == 0);
    TransferProbe &probe = begin({u"folder"_s, u"folder/good"_s});
    probe.transfer.setTargetName(source() + u"/folder/good"_s, u"../outside"_s);
    const TransferSummary summary = probe.run();
    ::unlink(path.constData()); // no class of Qt could
    QCOMPARE(summary.outcome, Outcome::Failed);
    QCOMPARE(summary.failures.size(), 2);
    QCOMPARE(summary.carried, 1);
    QVERIFY(!QFile::exists(m_directory->filePath(u"outside"_s)));
}

/// A call can't be interrupted, but giving the link up ends it.
void TestTransferFaults::cancelWhileNothingAnswers()
{
    m_kind = Kind::Download;
    const QByteArray contents = patternBytes(30 * Chunk);
    writeTree(localSource(), {{u"a"_s, contents}});
    begin({u"a"_s});
    const TransferSummary summary = runAndInterfere(1, [&] {
        m_proxy.setHole(true);
        m_probe->transfer.cancel();
        m_link->proxy()->communicationError();
    });
    m_proxy.behave();
    QCOMPARE(summary.notTried + summary.failures.size(), 1);
    QVERIFY(treeOf(localTarget()).isEmpty());
}

int main(int argc, char *argv[])
{
    // File systems that are mounted here are seen nowhere else.
    if (::unshare(CLONE_NEWNS) == 0) {
        ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
    }
    const QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() > 5 && arguments[1] == "--carry"_L1) {
        return carryAndExit(arguments);
    }
    TestTransferFaults test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_transferfaults.moc"

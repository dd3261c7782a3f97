#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

#include <csignal>
#include <sys/resource.h>

#include <files/QvexFileMover.h>

#include "FakeController.h"
#include "GuardedTest.h"
#include "Link.h"
#include "LocalFiles.h"
#include "Pattern.h"
#include "Poll.h"
#include "SimulatorProcess.h"
#include "TcpProxy.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

enum Result { Done = 0, Failed = 1, Exists = 2, Aborted = 3 };

constexpr qint64 Chunk = QvexFileMover::ChunkSize;

/// No file of this process may grow beyond a size while it lives: a disk that is full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t size)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {size, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before = {};
};

/// The progress signals of a mover, checked for what must hold for all of them.
class ProgressWatch
{
public:
    ProgressWatch(const QvexFileMover &mover, const QString &file)
    {
        m_timer.start();
        QObject::connect(
            &mover, &QvexFileMover::progress, &m_context,
            [this, file](const QString &which, qint64 done, qint64 total) {
                ++m_count;
                m_isWrong = m_isWrong || which != file || done < m_done;
                m_done = done;
                m_total = total;
            },
            Qt::DirectConnection);
    }

    int count() const { return m_count; }
    qint64 done() const { return m_done; }
    qint64 total() const { return m_total; }
    /// Another file's name, or less carried than before.
    bool isWrong() const { return m_isWrong; }
    /// One at the end, and no more than 20 in a second.
    bool isTooOften() const { return m_count > 2 + m_timer.elapsed() / 50; }

private:
    QObject m_context;
    QElapsedTimer m_timer;
    int m_count = 0;
    qint64 m_done = -1;
    qint64 m_total = -2;
    bool m_isWrong = false;
};

} // namespace

/** Carries single files both ways, with real files at both ends and with what goes wrong. */
class TestMover : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void carriesUnchanged_data();
    void carriesUnchanged();
    void uploadsMoreThan4GiB();
    void knowsTheSizeBeyond4GiB();
    void keepsExistingFilesUnlessToldOtherwise();
    void makesMissingFolders();
    void failsOnLocalTrouble_data();
    void failsOnLocalTrouble();
    void failsOnRemoteTrouble();
    void fullLocalDiskFails();
    void shrinkingSourceFails();
    void oddAnswers_data();
    void oddAnswers();
    void closeThatFailsIsNoSuccess();
    void abortEndsAtTheNextChunk_data();
    void abortEndsAtTheNextChunk();
    void abortWithoutTransferDoesNothing();
    void progressIsMonotonicAndSparing();
    void slotsUseWhatIsStored();

private:
    QString local(const QString &name) const { return m_directory->filePath(name); }
    QString onInstrument(const QString &name) const { return m_simulator.local(remote(name)); }
    static QString remote(const QString &name) { return u"/Internal/"_s + name; }

    TcpProxy m_proxy;
    SimulatorProcess m_simulator {m_proxy.port()};
    FakeController m_fake {m_proxy.port()};
    std::optional<QTemporaryDir> m_directory;
};

void TestMover::initTestCase()
{
    m_simulator.start();
    m_fake.start();
}

void TestMover::init()
{
    GuardedTest::init();
    m_proxy.behave();
    m_proxy.setController(m_simulator.port());
    m_directory.emplace();
}

void TestMover::cleanup()
{
    m_directory.reset();
    removeFiles(m_simulator.local(u"/Internal"_s));
    GuardedTest::cleanup();
}

void TestMover::carriesUnchanged_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<QString>("name");
    for (const qint64 size : {qint64(0), qint64(1), Chunk - 1, Chunk, Chunk + 1, 3 * Chunk}) {
        QTest::addRow("%lld bytes", size) << size << u"file.bin"_s;
    }
    QTest::newRow("name beyond ASCII") << Chunk << u"Prüfung € 日本 🙂.bin"_s;
    QTest::newRow("name with blanks and signs") << qint64(1) << u" -a 'b' \"c\" %20 *?.x "_s;
}

void TestMover::carriesUnchanged()
{
    QFETCH(qint64, size);
    QFETCH(QString, name);
    const QByteArray contents = patternBytes(size);
    writeFile(local(u"source"_s), contents);
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QvexFileMover mover(link.proxy());
    const auto pushesBefore = m_simulator.calls("pushFileContents").size();

    {
        const ProgressWatch progress(mover, local(u"source"_s));
        QCOMPARE(mover.uploadFile(local(u"source"_s), remote(name), false), Done);
        QCOMPARE(progress.done(), size);
        QCOMPARE(progress.total(), size);
    }
    QVERIFY(contentsOf(onInstrument(name)) == contents);
    QCOMPARE(m_simulator.calls("pushFileContents").size() - pushesBefore,
             (size + Chunk - 1) / Chunk);

    {
        const ProgressWatch progress(mover, remote(name));
        QCOMPARE(mover.downloadFile(remote(name), local(name), false), Done);
        QCOMPARE(progress.done(), size);
    }
    QVERIFY(contentsOf(local(name)) == contents);
    QCOMPARE(m_simulator.openFiles(), QStringList());
    QCOMPARE(link.losses(), 0);
}

void TestMover::uploadsMoreThan4GiB()
{
    constexpr qint64 size = (Q_INT64_C(1) << 32) + 1;
    // Holes read there cost no memory, while those of a file on a disk fill its cache.
    const QTemporaryDir memory(u"/dev/shm/tst_mover-XXXXXX"_s);
    QFile sparse(memory.isValid() ? memory.filePath(u"sparse"_s) : local(u"sparse"_s));
    QVERIFY(sparse.open(QIODevice::WriteOnly) && sparse.resize(size));
    FakeController controller;
    controller.start();
    controller.answer(u"pushFileContents"_s, {{u"quiet"_s, true}});
    Link link;
    QVERIFY(link.connectTo(controller.port()));
    QvexFileMover mover(link.proxy());
    const ProgressWatch progress(mover, sparse.fileName());

    QCOMPARE(mover.uploadFile(sparse.fileName(), u"/x"_s, false), Done);

    QCOMPARE(progress.done(), size);
    QCOMPARE(progress.total(), size);
    QVERIFY(!progress.isWrong());
    QCOMPARE(controller.command("pushed"), "ok, " + QByteArray::number(size) + " bytes");
}

void TestMover::knowsTheSizeBeyond4GiB()
{
    constexpr qint64 size = (Q_INT64_C(1) << 32) + 1;
    QFile sparse(onInstrument(u"sparse"_s));
    QVERIFY(sparse.open(QIODevice::WriteOnly) && sparse.resize(size));
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QVector<FileSystemItem> items;
    QVERIFY(link->getFileSystemItems(u"/Internal"_s, {u"sparse"_s}, QDir::Files, items));
    QCOMPARE(items.size(), 1);
    QCOMPARE(items.first().size, size);
}

void TestMover::keepsExistingFilesUnlessToldOtherwise()
{
    writeFile(local(u"here"_s), "mine");
    writeFile(onInstrument(u"there"_s), "its");
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QvexFileMover mover(link.proxy());

    QCOMPARE(mover.uploadFile(local(u"here"_s), remote(u"there"_s), false), Exists);
    QCOMPARE(mover.downloadFile(remote(u"there"_s), local(u"here"_s), false), Exists);
    QCOMPARE(contentsOf(local(u"here"_s)), "mine");
    QCOMPARE(contentsOf(onInstrument(u"there"_s)), "its");

    QCOMPARE(mover.uploadFile(local(u"here"_s), remote(u"there"_s), true), Done);
    QCOMPARE(contentsOf(onInstrument(u"there"_s)), "mine");
    writeFile(onInstrument(u"there"_s), "new");
    QCOMPARE(mover.downloadFile(remote(u"there"_s), local(u"here"_s), true), Done);
    QCOMPARE(contentsOf(local(u"here"_s)), "new");
    QCOMPARE(m_simulator.openFiles(), QStringList());
}

void TestMover::makesMissingFolders()
{
    writeFile(onInstrument(u"file"_s), "x");
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QvexFileMover mover(link.proxy());
    QCOMPARE(mover.downloadFile(remote(u"file"_s), local(u"a/b/c/file"_s), false), Done);
    QCOMPARE(contentsOf(local(u"a/b/c/file"_s)), "x");
}

void TestMover::failsOnLocalTrouble_data()
{
    QTest::addColumn<bool>("upload");
    QTest::addColumn<QString>("path");
    QTest::newRow("source missing") << true << u"missing"_s;
    QTest::newRow("source is a folder") << true << u"folder"_s;
    QTest::newRow("destination is a folder") << false << u"folder"_s;
    QTest::newRow("destination's folder is a file") << false << u"file/x"_s;
    QTest::newRow("destination's folder can not be made") << false << u"/proc/x/y"_s;
}

void TestMover::failsOnLocalTrouble()
{
    QFETCH(bool, upload);
    QFETCH(QString, path);
    QVERIFY(QDir().mkpath(local(u"folder"_s)));
    writeFile(local(u"file"_s), "kept");
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QvexFileMover mover(link.proxy());
    const auto opensBefore = m_simulator.calls("openFile").size();
    const QString localPath = path.startsWith(u'/') ? path : local(path);
    QCOMPARE(upload ? mover.uploadFile(localPath, remote(u"x"_s), true)
                    : mover.downloadFile(remote(u"x"_s), localPath, true),
             Failed);
    QCOMPARE(m_simulator.calls("openFile").size(), opensBefore);
    QCOMPARE(contentsOf(local(u"file"_s)), "kept");
    QCOMPARE(link.losses(), 0);
}

void TestMover::failsOnRemoteTrouble()
{
    writeFile(local(u"file"_s), "x");
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QvexFileMover mover(link.proxy());
    QCOMPARE(mover.uploadFile(local(u"file"_s), remote(u"missing/file"_s), true), Failed);
    QCOMPARE(mover.uploadFile(local(u"file"_s), u"a\0b"_s, true), Failed);
    QCOMPARE(mover.downloadFile(remote(u"missing"_s), local(u"new"_s), true), Failed);
    QCOMPARE(contentsOf(local(u"file"_s)), "x");
    QCOMPARE(link.losses(), 0);
}

void TestMover::fullLocalDiskFails()
{
    constexpr int room = 200'000;
    writeFile(onInstrument(u"large"_s), patternBytes(4 * Chunk));
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QvexFileMover mover(link.proxy());
    const FullDisk disk(room);
    QCOMPARE(mover.downloadFile(remote(u"large"_s), local(u"large"_s), false), Failed);
    // What there is stays.
    QCOMPARE_LE(QFileInfo(local(u"large"_s)).size(), room);
    QCOMPARE_GE(QFileInfo(local(u"large"_s)).size(), Chunk);
    QCOMPARE(m_simulator.openFiles(), QStringList());
    QCOMPARE(link.losses(), 0);
}

void TestMover::shrinkingSourceFails()
{
    QFile source(local(u"source"_s));
    writeFile(source.fileName(), patternBytes(10 * Chunk));
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QvexFileMover mover(link.proxy());
    m_simulator.order("latency 30");
    connect(&mover, &QvexFileMover::progress, this,
            [&] { QFile::resize(source.fileName(), Chunk); });
    const int result = mover.uploadFile(source.fileName(), remote(u"x"_s), false);
    m_simulator.order("latency 0");
    QCOMPARE(result, Failed);
    QCOMPARE(m_simulator.openFiles(), QStringList());
}

using Answers = QMap<QString, QVector<QJsonObject>>;
Q_DECLARE_METATYPE(Answers)

void TestMover::oddAnswers_data()
{
    QTest::addColumn<bool>("upload");
    QTest::addColumn<Answers>("answers");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("closes");
    QTest::addColumn<qint64>("carried");
    const auto result = [](int value) { return QJsonObject {{u"result"_s, value}}; };
    const auto bytes = [](int value, int size) {
        return QJsonObject {{u"result"_s, value},
                            {u"bytes"_s, QJsonObject {{u"size"_s, size}, {u"seed"_s, 1}}}};
    };
    const QJsonObject raised {{u"raise"_s, u"NO_PERMISSION"_s}};
    const QString open = u"openFile"_s;
    const QString push = u"pushFileContents"_s;
    const QString pull = u"pullFileContents"_s;
    const auto row = [](const char *name) -> QTestData & { return QTest::newRow(name); };

    row("upload: open is an error")
        << true << Answers {{open, {result(FS_ERROR)}}} << int(Failed) << 0 << qint64(0);
    row("upload: open finds a file")
        << true << Answers {{open, {result(FS_EXISTS)}}} << int(Exists) << 0 << qint64(0);
    row("upload: open has no more")
        << true << Answers {{open, {result(FS_NOMORE)}}} << int(Failed) << 0 << qint64(0);
    row("upload: push is an error")
        << true << Answers {{push, {result(FS_OK), result(FS_ERROR)}}} << int(Failed) << 1 << Chunk;
    row("upload: push finds a file")
        << true << Answers {{push, {result(FS_EXISTS)}}} << int(Failed) << 1 << qint64(0);
    row("upload: push has no more")
        << true << Answers {{push, {result(FS_NOMORE)}}} << int(Failed) << 1 << qint64(0);

    row("download: open is an error")
        << false << Answers {{open, {result(FS_ERROR)}}} << int(Failed) << 0 << qint64(0);
    row("download: open finds a file")
        << false << Answers {{open, {result(FS_EXISTS)}}} << int(Failed) << 0 << qint64(0);
    row("download: nothing more at once")
        << false << Answers {{pull, {result(FS_NOMORE)}}} << int(Done) << 1 << qint64(0);
    row("download: the last bytes with the end")
        << false << Answers {{pull, {bytes(FS_OK, 100), bytes(FS_NOMORE, 7)}}} << int(Done) << 1
        << qint64(107);
    row("download: the end by itself")
        << false << Answers {{pull, {bytes(FS_OK, 100), bytes(FS_NOMORE, 0)}}} << int(Done) << 1
        << qint64(100);
    row("download: an answer without bytes between")
        << false
        << Answers {{pull, {bytes(FS_OK, 1), bytes(FS_OK, 0), bytes(FS_OK, 2), result(FS_NOMORE)}}}
        << int(Done) << 1 << qint64(3);
    row("download: pull is an error")
        << false << Answers {{pull, {bytes(FS_OK, 100), bytes(FS_ERROR, 7)}}} << int(Failed) << 1
        << qint64(107);
    row("download: pull finds a file")
        << false << Answers {{pull, {bytes(FS_OK, 100), bytes(FS_EXISTS, 7)}}} << int(Failed) << 1
        << qint64(107);
    row("download: more than was wanted")
        << false << Answers {{pull, {bytes(FS_OK, 100), bytes(FS_OK, int(Chunk) + 1)}}}
        << int(Failed) << 1 << qint64(100);
    row("download: never a byte and never an end")
        << false << Answers {{pull, {bytes(FS_OK, 0)}}} << int(Failed) << 1 << qint64(0);
    row("download: close is an error")
        << false << Answers {{pull, {bytes(FS_NOMORE, 9)}}, {u"closeFile"_s, {result(FS_ERROR)}}}
        << int(Done) << 1 << qint64(9);
    row("upload: open raises") << true << Answers {{open, {raised}}} << -1 << 0 << qint64(0);
    row("download: pull raises") << false << Answers {{pull, {bytes(FS_OK, 100), raised}}} << -1
                                 << 0 << qint64(100);
}

void TestMover::oddAnswers()
{
    QFETCH(bool, upload);
    QFETCH(Answers, answers);
    QFETCH(int, result);
    QFETCH(int, closes);
    QFETCH(qint64, carried);
    messages().allow(u"the controller sent"_s);
    constexpr int handle = -4711;
    answers.insert(
        {{u"openFile"_s,
          answers.value(u"openFile"_s, {{{u"result"_s, int(FS_OK)}, {u"handle"_s, handle}}})}});
    for (const QString &operation : {u"pushFileContents"_s, u"closeFile"_s}) {
        answers.insert(operation, answers.value(operation, {{{u"result"_s, int(FS_OK)}}}));
    }
    for (auto answer = answers.cbegin(); answer != answers.cend(); ++answer) {
        m_fake.answerInTurn(answer.key(), answer.value());
    }
    writeFile(local(u"source"_s), patternBytes(3 * Chunk));
    m_proxy.setController(m_fake.port());
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QvexFileMover mover(link.proxy());
    const ProgressWatch progress(mover, upload ? local(u"source"_s) : remote(u"source"_s));
    const auto closesBefore = m_fake.calls(u"closeFile"_s).size();

    const int outcome = upload ? mover.uploadFile(local(u"source"_s), remote(u"target"_s), true)
                               : mover.downloadFile(remote(u"source"_s), local(u"target"_s), true);

    const bool linkIsLost = result < 0;
    QCOMPARE(outcome, linkIsLost ? int(Failed) : result);
    QCOMPARE(link.losses(), linkIsLost ? 1 : 0);
    const auto closeCalls = m_fake.calls(u"closeFile"_s).sliced(closesBefore);
    QCOMPARE(closeCalls.size(), closes);
    for (const FakeController::Call &call : closeCalls) {
        QCOMPARE(call.arguments, QJsonArray {handle});
    }
    if (upload && outcome == Failed) {
        QCOMPARE(progress.done(), carried);
    }
    if (!upload) {
        QCOMPARE(QFileInfo(local(u"target"_s)).size(), carried);
    }
}

void TestMover::closeThatFailsIsNoSuccess()
{
    writeFile(local(u"source"_s), "x");
    m_fake.answer(u"openFile"_s, {});
    m_fake.answer(u"pushFileContents"_s, {});
    m_fake.answer(u"closeFile"_s, {{u"result"_s, int(FS_ERROR)}});
    m_proxy.setController(m_fake.port());
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QvexFileMover mover(link.proxy());
    QCOMPARE(mover.uploadFile(local(u"source"_s), remote(u"target"_s), true), Failed);
}

void TestMover::abortEndsAtTheNextChunk_data()
{
    QTest::addColumn<bool>("upload");
    QTest::newRow("upload") << true;
    QTest::newRow("download") << false;
}

void TestMover::abortEndsAtTheNextChunk()
{
    QFETCH(bool, upload);
    constexpr qint64 size = 200 * Chunk;
    const QString source = upload ? local(u"source"_s) : onInstrument(u"source"_s);
    QFile sparse(source);
    QVERIFY(sparse.open(QIODevice::WriteOnly) && sparse.resize(size));
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QvexFileMover mover(link.proxy());
    std::atomic<bool> begun = false;
    connect(
        &mover, &QvexFileMover::progress, this, [&] { begun = true; }, Qt::DirectConnection);
    m_simulator.order("latency 20");
    const auto carry = [&] {
        return upload ? mover.uploadFile(source, remote(u"target"_s), true)
                      : mover.downloadFile(remote(u"source"_s), local(u"target"_s), true);
    };
    int result = -1;
    std::thread transfer([&] { result = carry(); });
    QVERIFY(pollUntil([&] { return begun.load(); }));
    QElapsedTimer timer;
    timer.start();
    mover.abort();
    transfer.join();
    QCOMPARE_LT(timer.elapsed(), 1000);
    m_simulator.order("latency 0");
    QCOMPARE(result, Aborted);
    QCOMPARE(m_simulator.openFiles(), QStringList());
    if (!upload) {
        QCOMPARE_GT(QFileInfo(local(u"target"_s)).size(), 0);
        QCOMPARE_LT(QFileInfo(local(u"target"_s)).size(), size);
    }
    QCOMPARE(link.losses(), 0);

    QVERIFY(sparse.resize(Chunk + 1));
    QCOMPARE(carry(), Done);
}

void TestMover::abortWithoutTransferDoesNothing()
{
    writeFile(local(u"source"_s), "x");
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QvexFileMover mover(link.proxy());
    mover.abort();
    QCOMPARE(mover.uploadFile(local(u"source"_s), remote(u"target"_s), false), Done);
}

void TestMover::progressIsMonotonicAndSparing()
{
    constexpr qint64 size = 40 * Chunk;
    writeFile(local(u"source"_s), patternBytes(size));
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QvexFileMover mover(link.proxy());
    m_simulator.order("latency 10");
    const ProgressWatch progress(mover, local(u"source"_s));
    QCOMPARE(mover.uploadFile(local(u"source"_s), remote(u"target"_s), false), Done);
    m_simulator.order("latency 0");
    QVERIFY(!progress.isWrong());
    QVERIFY(!progress.isTooOften());
    QCOMPARE_GE(progress.count(), 4);
    QCOMPARE(progress.done(), size);
}

void TestMover::slotsUseWhatIsStored()
{
    writeFile(local(u"source"_s), "x");
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QVector<int> results;
    QvexFileMover mover(link.proxy(), local(u"source"_s), remote(u"target"_s), true);
    connect(&mover, &QvexFileMover::complete, this, [&](int result) { results.append(result); });
    QCOMPARE(mover.getSrc(), local(u"source"_s));
    QCOMPARE(mover.getDst(), remote(u"target"_s));
    QCOMPARE(mover.getOverwrite(), true);
    mover.runUpload();
    mover.setOverwrite(false);
    mover.runUpload();
    QCOMPARE(results, QVector<int>({Done, Exists}));

    QvexFileMover back(link.proxy(), remote(u"target"_s), local(u"back"_s));
    QCOMPARE(back.getOverwrite(), false);
    connect(&back, &QvexFileMover::complete, this, [&](int result) { results.append(result); });
    back.runDownload();
    back.runDownload();
    back.setDst(local(u"again"_s));
    back.runDownload();
    QCOMPARE(results, QVector<int>({Done, Exists, Done, Exists, Done}));
    QCOMPARE(contentsOf(local(u"again"_s)), "x");
}

QTEST_GUILESS_MAIN(TestMover)
#include "tst_mover.moc"

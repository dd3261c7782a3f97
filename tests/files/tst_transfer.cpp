#include <QElapsedTimer>
#include <QTimer>

#include <sys/stat.h>

#include "Pattern.h"
#include "TransferTest.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qint64 Chunk = 131072;

} // namespace

/** Files and folders get to the other side as they were, and conflicts are settled as answered. */
class TestTransfer : public TransferTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_simulator.start(); }
    void init() { prepare(); }
    void cleanup() { check(); }

    void carriesTrees_data() { addKinds(); }
    void carriesTrees();
    void whatIsNoFileIsSkipped();
    void copyKeepsTimeAndPermissionsUnderAnotherName();
    void conflicts_data();
    void conflicts();
    void answerForAllIsAskedForOnce();
    void questionLetGoIsACancel();
    void folderAndFileDoNotReplaceEachOther_data() { addKinds(); }
    void folderAndFileDoNotReplaceEachOther();
    void refusesBeforeAnythingIsWritten_data();
    void refusesBeforeAnythingIsWritten();
    void endsOnceWhateverHappens_data();
    void endsOnceWhateverHappens();
    void noSignalAfterDestruction();
    void progressTellsRateAndEnd();
};

void TestTransfer::carriesTrees()
{
    QFETCH(Kind, kind);
    const Tree tree {{u"empty"_s, {}},
                     {u"one chunk"_s, patternBytes(Chunk)},
                     {u"folder/"_s, {}},
                     {u"folder/.hidden"_s, patternBytes(Chunk + 1)},
                     {u"folder/nothing in it/"_s, {}},
                     {u"folder/deep/"_s, {}},
                     {u"folder/deep/Grüße %1\n.txt"_s, patternBytes(3 * Chunk, 2)},
                     {QString(255, u'x'), "a long name"}};
    m_kind = kind;
    TransferProbe &probe = begin({u"empty"_s, u"one chunk"_s, u"folder/"_s, QString(255, u'x')});
    writeTree(localSource(), tree);

    const TransferSummary summary = probe.run();

    QCOMPARE(summary.reason, QString());
    QCOMPARE(summary.outcome, Outcome::Done);
    QCOMPARE(summary.carried, 5);
    QCOMPARE(summary.bytes, 5 * Chunk + 1 + 11);
    QVERIFY(treeOf(localTarget()) == tree);
    QVERIFY(treeOf(localSource()) == tree);
    QVERIFY(!probe.isProgressWrong());
    QCOMPARE(probe.last().bytesDone, summary.bytes);
    QCOMPARE(probe.last().bytesTotal, summary.bytes);
}

void TestTransfer::whatIsNoFileIsSkipped()
{
    m_kind = Kind::Upload;
    TransferProbe &probe = begin({u"folder"_s, u"link"_s});
    writeTree(localSource(), {{u"folder/file"_s, "x"}});
    QVERIFY(QFile::link(u"folder"_s, localSource() + u"/link"_s));
    QVERIFY(QFile::link(u".."_s, localSource() + u"/folder/loop"_s));
    QCOMPARE(::mkfifo(qPrintable(localSource() + u"/folder/pipe"_s), 0600), 0);

    const TransferSummary summary = probe.run();

    QCOMPARE(summary.outcome, Outcome::Done);
    QCOMPARE(summary.carried, 1);
    QCOMPARE(summary.skipped, 3);
    QCOMPARE(treeOf(localTarget()).keys(), QStringList({u"folder/"_s, u"folder/file"_s}));
}

void TestTransfer::copyKeepsTimeAndPermissionsUnderAnotherName()
{
    m_kind = Kind::LocalCopy;
    TransferProbe &probe = begin({u"file"_s});
    writeTree(localSource(), {{u"file"_s, "x"}});
    const QDateTime time(QDate(2001, 2, 3), QTime(4, 5, 6));
    QFile file(localSource() + u"/file"_s);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    const QFile::Permissions permissions = file.permissions();
    file.close();
    probe.transfer.setTargetName(source() + u"/file"_s, u"saved as"_s);

    QCOMPARE(probe.run().outcome, Outcome::Done);

    const QFileInfo copy(localTarget() + u"/saved as"_s);
    QCOMPARE(copy.lastModified(), time);
    QCOMPARE(copy.permissions(), permissions);
}

void TestTransfer::conflicts_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<std::optional<ConflictChoice>>("choice");
    QTest::addColumn<Tree>("expected");
    QTest::addColumn<Outcome>("outcome");
    const QByteArray fresh = "new";
    const QByteArray old = "old one";
    struct Case
    {
        const char *name;
        std::optional<ConflictChoice> choice;
        Tree expected;
        Outcome outcome = Outcome::Done;
    };
    const Case cases[] = {
        {"overwrite", ConflictChoice::Overwrite, {{u"a.b.txt"_s, fresh}, {u"z"_s, fresh}}},
        {"skip", ConflictChoice::Skip, {{u"a.b.txt"_s, old}, {u"z"_s, fresh}}},
        {"nobody to ask", std::nullopt, {{u"a.b.txt"_s, old}, {u"z"_s, fresh}}},
        {"keep both",
         ConflictChoice::KeepBoth,
         {{u"a.b.txt"_s, old}, {u"a.b (2).txt"_s, fresh}, {u"z"_s, fresh}}},
        {"cancel", ConflictChoice::Cancel, {{u"a.b.txt"_s, old}}, Outcome::Cancelled},
    };
    for (const auto &[kindName, kind] : kinds()) {
        for (const Case &item : cases) {
            QTest::addRow("%s, %s", kindName, item.name)
                << kind << item.choice << item.expected << item.outcome;
        }
    }
}

void TestTransfer::conflicts()
{
    QFETCH(Kind, kind);
    QFETCH(std::optional<ConflictChoice>, choice);
    m_answers.choice = choice;
    m_kind = kind;
    TransferProbe &probe = begin({u"a.b.txt"_s, u"z"_s});
    writeTree(localSource(), {{u"a.b.txt"_s, "new"}, {u"z"_s, "new"}});
    if (!choice) {
        probe.transfer.setQuestions(nullptr);
    }
    writeTree(localTarget(), {{u"a.b.txt"_s, "old one"}});

    const TransferSummary summary = probe.run();

    QTEST(summary.outcome, "outcome");
    QTEST(treeOf(localTarget()), "expected");
    QCOMPARE(summary.carried + summary.skipped + summary.notTried, 2);
    if (choice) {
        QCOMPARE(m_answers.asked.size(), 1);
        QCOMPARE(m_answers.asked.first().target, target() + u"/a.b.txt"_s);
        QCOMPARE(m_answers.asked.first().sourceSize, 3);
        QCOMPARE(m_answers.asked.first().targetSize, 7);
    }
}

/// Sources of one name are in each other's way too.
void TestTransfer::answerForAllIsAskedForOnce()
{
    m_kind = Kind::Upload;
    m_answers.choice = ConflictChoice::KeepBoth;
    m_answers.forAll = true;
    TransferProbe &probe = begin({u"x/same"_s, u"y/same"_s, u"z/same"_s});
    writeTree(localSource(), {{u"x/same"_s, "1"}, {u"y/same"_s, "2"}, {u"z/same"_s, "3"}});

    QCOMPARE(probe.run().carried, 3);

    QCOMPARE(m_answers.asked.size(), 1);
    QVERIFY(treeOf(localTarget())
            == Tree({{u"same"_s, "1"}, {u"same (2)"_s, "2"}, {u"same (3)"_s, "3"}}));
}

void TestTransfer::questionLetGoIsACancel()
{
    m_kind = Kind::LocalCopy;
    m_answers.choice.reset();
    m_answers.onAsked = [&] { QTimer::singleShot(0, [&] { m_answers.unanswered = nullptr; }); };
    writeTree(localSource(), {{u"a"_s, "new"}});
    writeTree(localTarget(), {{u"a"_s, "old"}});
    QCOMPARE(begin({u"a"_s}).run().outcome, Outcome::Cancelled);
}

void TestTransfer::folderAndFileDoNotReplaceEachOther()
{
    QFETCH(Kind, kind);
    m_answers.choice = ConflictChoice::Overwrite;
    m_kind = kind;
    TransferProbe &probe = begin({u"file"_s, u"folder"_s, u"other"_s});
    writeTree(localSource(), {{u"file"_s, "x"}, {u"folder/inside"_s, "x"}, {u"other"_s, "x"}});
    const Tree there {{u"file/"_s, {}}, {u"folder"_s, "old"}};
    writeTree(localTarget(), there);

    const TransferSummary summary = probe.run();

    QCOMPARE(summary.outcome, Outcome::Failed);
    QCOMPARE(summary.failures.size(), 2);
    QCOMPARE(summary.carried, 1);
    QCOMPARE(summary.notTried, 1);
    Tree expected = there;
    expected.insert(u"other"_s, "x");
    QVERIFY(treeOf(localTarget()) == expected);
}

void TestTransfer::refusesBeforeAnythingIsWritten_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("targetFolder");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no room") << Kind::LocalCopy << u"huge"_s << QString()
                             << u"7.999 TB are needed"_s;
    QTest::newRow("no local folder")
        << Kind::Download << u"file"_s << u"/nowhere/at/all"_s << u"is not there"_s;
    QTest::newRow("no folder on the instrument")
        << Kind::Upload << u"file"_s << u"/Internal/none"_s << u"cannot list"_s;
    QTest::newRow("into itself") << Kind::LocalCopy << u"folder"_s << u"."_s << QString();
}

void TestTransfer::refusesBeforeAnythingIsWritten()
{
    QFETCH(Kind, kind);
    QFETCH(QString, name);
    QFETCH(QString, targetFolder);
    QFETCH(QString, reason);
    m_kind = kind;
    writeTree(localSource(), {{u"file"_s, "x"}, {u"folder/inside"_s, "x"}});
    QFile huge(localSource() + u"/huge"_s);
    QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize((8LL << 40) - (1LL << 30)));
    const QString into = targetFolder == "."_L1 ? localSource() + u"/folder"_s
        : targetFolder.isEmpty()                ? target()
                                                : targetFolder;
    m_probe.emplace(m_link->proxy(), kind, QStringList {source() + u'/' + name}, into, nullptr);

    const TransferSummary summary = m_probe->run();

    QCOMPARE(summary.outcome, Outcome::Failed);
    QVERIFY2(summary.reason.contains(reason), qPrintable(summary.reason));
    QCOMPARE(summary.carried, 0);
    QVERIFY(treeOf(localTarget()).isEmpty());
    QCOMPARE(QDir(localSource() + u"/folder"_s).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList({u"inside"_s}));
}

void TestTransfer::endsOnceWhateverHappens_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<bool>("cancelBefore");
    QTest::addColumn<bool>("cancelAfter");
    QTest::addColumn<Outcome>("outcome");
    QTest::newRow("nothing to carry") << QStringList() << false << false << Outcome::Done;
    QTest::newRow("cancelled before")
        << QStringList {u"a"_s} << true << false << Outcome::Cancelled;
    QTest::newRow("cancelled after") << QStringList {u"a"_s} << false << true << Outcome::Done;
    QTest::newRow("source vanished") << QStringList {u"b"_s} << false << false << Outcome::Failed;
}

void TestTransfer::endsOnceWhateverHappens()
{
    QFETCH(bool, cancelBefore);
    QFETCH(bool, cancelAfter);
    QFETCH(QStringList, names);
    m_kind = Kind::Upload;
    TransferProbe &probe = begin(names);
    writeTree(localSource(), {{u"a"_s, "x"}});
    if (cancelBefore) {
        probe.transfer.cancel();
    }
    probe.transfer.start();
    QVERIFY(probe.transfer.isRunning());
    QCOMPARE(probe.finishedCount(), 0);
    QTEST(probe.wait().outcome, "outcome");
    if (cancelAfter) {
        probe.transfer.cancel();
    }
    probe.transfer.start();
    QTest::qWait(100);
    QCOMPARE(probe.finishedCount(), 1);
    QVERIFY(!probe.transfer.isRunning());
}

void TestTransfer::noSignalAfterDestruction()
{
    m_kind = Kind::Upload;
    m_answers.choice.reset();
    writeTree(localSource(), {{u"a"_s, "new"}});
    writeTree(localTarget(), {{u"a"_s, "old"}});
    auto transfer = std::make_unique<FileTransfer>(m_link->proxy(), m_kind,
                                                   QStringList {source() + u"/a"_s}, target());
    transfer->setQuestions(&m_answers);
    const QSignalSpy finished(transfer.get(), &FileTransfer::finished);
    transfer->start();
    QVERIFY(pollUntil([&] { return !m_answers.asked.isEmpty(); }));
    transfer.reset();
    QTest::qWait(50);
    QCOMPARE(finished.size(), 0);
    QCOMPARE(contentsOf(localTarget() + u"/a"_s), "old");
}

void TestTransfer::progressTellsRateAndEnd()
{
    m_kind = Kind::Upload;
    TransferProbe &probe = begin({u"a"_s, u"b"_s});
    writeTree(localSource(),
              {{u"a"_s, patternBytes(20 * Chunk)}, {u"b"_s, patternBytes(20 * Chunk)}});
    m_simulator.order("latency 30");
    QElapsedTimer timer;
    timer.start();
    const TransferSummary summary = probe.run();
    m_simulator.order("latency 0");
    QCOMPARE(summary.outcome, Outcome::Done);
    QVERIFY(!probe.isProgressWrong());
    QVERIFY(probe.progressCount() <= 2 + timer.elapsed() / 50);
    const double expected = double(summary.bytes) / double(timer.elapsed()) * 1000;
    QVERIFY2(probe.last().bytesPerSecond > expected / 2
                 && probe.last().bytesPerSecond < expected * 3,
             qPrintable(u"%1, expected %2"_s.arg(probe.last().bytesPerSecond).arg(expected)));
    QCOMPARE(probe.last().remaining, 0s);
    QCOMPARE(probe.last().fileNumber, 2);
}

QTEST_GUILESS_MAIN(TestTransfer)
#include "tst_transfer.moc"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <files/FileTransfer.h>
#include <files/QvexLocalFileModel.h>
#include <files/QvexRemoteFileModel.h>

#include "FileTree.h"
#include "GuardedTest.h"
#include "Link.h"
#include "Pattern.h"
#include "SimulatorProcess.h"

using namespace Qt::StringLiterals;

/** Models and transfers share one link, and each gets what is its own. */
class TestFilesAtOnce : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void allGetWhatIsTheirs_data();
    void allGetWhatIsTheirs();
};

void TestFilesAtOnce::allGetWhatIsTheirs_data()
{
    QTest::addColumn<bool>("cancels");
    QTest::newRow("to the end") << false;
    QTest::newRow("uploads cancelled") << true;
}

void TestFilesAtOnce::allGetWhatIsTheirs()
{
    QFETCH(bool, cancels);
    Tree tree;
    for (int i = 0; i < 40; ++i) {
        tree.insert(u"tree/file %1"_s.arg(i), patternBytes(1 + i * 20'000));
    }
    tree.insert(u"tree/"_s, {});
    const QTemporaryDir disk;
    SimulatorProcess simulator;
    for (const char *folder : {"/up/", "/copies/"}) {
        QVERIFY(QDir().mkpath(simulator.local(u"/Internal"_s + QLatin1String(folder))));
    }
    QVERIFY(QDir(disk.path()).mkdir(u"copies"_s) && QDir(disk.path()).mkdir(u"down"_s));
    writeTree(simulator.local(u"/Internal"_s), tree);
    writeTree(disk.path(), tree);
    simulator.start();
    Link link;
    QVERIFY(link.connectTo(simulator.port()));

    QvexRemoteFileModel remote(link.proxy());
    remote.setAsynchronous(true);
    QvexLocalFileModel local(nullptr);
    FileTransfer up(link.proxy(), FileTransfer::Kind::Upload, {disk.filePath(u"tree"_s)},
                    u"/Internal/up"_s);
    FileTransfer down(link.proxy(), FileTransfer::Kind::Download, {u"/Internal/tree"_s},
                      disk.filePath(u"down"_s));
    const QSignalSpy ends[] {QSignalSpy(&up, &FileTransfer::finished),
                             QSignalSpy(&down, &FileTransfer::finished),
                             QSignalSpy(&remote, &QvexFileModel::copyComplete),
                             QSignalSpy(&local, &QvexFileModel::copyComplete)};
    remote.setRootPath(u"/Internal/tree"_s);
    local.setRootPath(disk.path());
    QTimer refresh;
    connect(&refresh, &QTimer::timeout, &remote, [&] {
        for (const QString &path : {u"/Internal/tree"_s, u"/Internal/up"_s}) {
            remote.refreshDirectory(remote.fileIndex(path));
        }
        local.refreshDirectory(local.fileIndex(disk.path()));
    });
    refresh.start(3);
    up.start();
    down.start();
    QCOMPARE(remote.copyFileDirectory({u"/Internal/tree"_s}, u"/Internal/copies"_s), 0L);
    QCOMPARE(local.copyFileDirectory({disk.filePath(u"tree"_s)}, disk.filePath(u"copies"_s)), 0L);
    if (cancels) {
        QTimer::singleShot(40, &up, &FileTransfer::cancel);
    }
    for (const QSignalSpy &end : ends) {
        QTRY_COMPARE_WITH_TIMEOUT(end.size(), 1, 60'000);
    }
    refresh.stop();

    QVERIFY(treeOf(disk.filePath(u"down"_s)) == tree);
    QVERIFY(treeOf(disk.filePath(u"copies"_s)) == tree);
    QVERIFY(treeOf(simulator.local(u"/Internal/copies"_s)) == tree);
    const Tree uploaded = treeOf(simulator.local(u"/Internal/up"_s));
    for (auto file = uploaded.cbegin(); file != uploaded.cend(); ++file) {
        QVERIFY2(tree.contains(file.key()), qPrintable(file.key()));
        QVERIFY2(tree.value(file.key()) == file.value(), qPrintable(file.key()));
    }
    QVERIFY(cancels || uploaded == tree);
    remote.refreshDirectory(remote.fileIndex(u"/Internal/tree"_s));
    QTRY_VERIFY(!remote.isLoading(remote.fileIndex(u"/Internal/tree"_s)));
    QCOMPARE(remote.rowCount(remote.fileIndex(u"/Internal/tree"_s)), 40);
}

QTEST_MAIN(TestFilesAtOnce)
#include "tst_filesatonce.moc"

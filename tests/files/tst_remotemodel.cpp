#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QTest>
#include <QTreeView>

#include <files/QvexRemoteFileModel.h>

#include "FakeController.h"
#include "GuardedTest.h"
#include "Link.h"
#include "LocalFiles.h"
#include "SimulatorProcess.h"

using namespace Qt::StringLiterals;

namespace {

using Fatal = QAbstractItemModelTester;

/** A model with all that may look at it: a view, a sorting proxy with a view, and testers. */
struct Shown
{
    /** Without a link the testers' first round, which fetches all that it can, fetches nothing. */
    Shown(Link &link, quint16 port, bool threaded = false)
        : model(link.proxy())
        , loaded(&model, &QvexFileModel::directoryLoaded)
    {
        model.setAsynchronous(threaded);
        tester.setUseFetchMore(false);
        sorted.setSourceModel(&model);
        sorted.sort(0, Qt::DescendingOrder);
        sortedTester.setUseFetchMore(false);
        view.setModel(&model);
        view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        sortedView.setModel(&sorted);
        view.show();
        sortedView.show();
        if (!link.connectTo(port)) {
            qFatal("No link");
        }
    }

    /** Makes it the root of the views and waits until it is listed. */
    QModelIndex open(const QString &path)
    {
        const QModelIndex index = model.setRootPath(path);
        view.setRootIndex(index);
        sortedView.setRootIndex(sorted.mapFromSource(index));
        waitUntilListed(index);
        return index;
    }
    void waitUntilListed(const QModelIndex &index) const
    {
        QTRY_VERIFY(model.isListed(index) && !model.isLoading(index));
    }
    void expand(const QString &path)
    {
        view.expand(at(path));
        waitUntilListed(at(path));
    }
    void refresh(const QModelIndex &index)
    {
        model.refreshDirectory(index);
        QTRY_VERIFY(!model.isLoading(index));
    }
    QModelIndex at(const QString &path) const { return model.fileIndex(path); }
    QStringList names(const QModelIndex &directory) const
    {
        QStringList names;
        for (int row = 0; row < model.rowCount(directory); ++row) {
            names += model.index(row, 0, directory).data(QvexFileModel::FileNameRole).toString();
        }
        return names;
    }

    QvexRemoteFileModel model;
    Fatal tester {&model, Fatal::FailureReportingMode::Fatal};
    QSortFilterProxyModel sorted;
    Fatal sortedTester {&sorted, Fatal::FailureReportingMode::Fatal};
    QTreeView view;
    QTreeView sortedView;
    QSignalSpy loaded;
};

/** "name" is a file, "name/" a directory of one entry. */
QJsonObject entry(const QString &name)
{
    const bool isDir = name.endsWith(u'/');
    return {{u"name"_s, wireText(isDir ? name.chopped(1) : name)},
            {u"isdir"_s, isDir},
            {u"dircount"_s, 1},
            {u"size"_s, 1}};
}

QJsonObject listing(const QStringList &names)
{
    QJsonArray entries;
    for (const QString &name : names) {
        entries.append(entry(name));
    }
    return {{u"result"_s, true}, {u"list"_s, entries}};
}

QStringList numbered(int first, int step, int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names += u"n%1"_s.arg(first + i * step, 4, 10, QChar(u'0'));
    }
    return names;
}

QStringList bare(QStringList names)
{
    return names.replaceInStrings(u"/"_s, QString());
}

QStringList paths(const QVector<SimulatorProcess::Call> &calls)
{
    QStringList result;
    for (const SimulatorProcess::Call &call : calls) {
        result += QString::fromUtf8(call.arguments.split('"').value(1));
    }
    return result;
}

} // namespace

/** The instrument's files as views see them. */
class TestRemoteModel : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void showsWhatTheControllerTells();
    void oddNamesAreShownButNotActedOn();
    void listsOnlyWhatIsOpenedAndOnce();
    void refreshKeepsWhatStays_data();
    void refreshKeepsWhatStays();
    void filterListsAgainBelowTheRoot();
    void renameKeepsTheRow();
    void newFolderAppears();
    void operationEndsOnce_data();
    void operationEndsOnce();
    void secondOperationIsRefused();
    void lostLinkKeepsRowsUntilRefreshed();
    void threadedListingLeavesTheCallerAlone();
    void threadedListingOfWhatHasGoneIsDropped();

private:
    QStringList listed() const { return paths(m_simulator.calls("getFileSystemItems")); }

    FakeController m_fake;
    SimulatorProcess m_simulator;
};

void TestRemoteModel::initTestCase()
{
    m_fake.start();
    m_simulator.start();
}

void TestRemoteModel::init()
{
    GuardedTest::init();
    m_simulator.order("faults clear");
    const QDir storage(m_simulator.local(u"/Internal"_s));
    removeFiles(storage.path());
    for (const QString &folder : storage.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QVERIFY(QDir(storage.filePath(folder)).removeRecursively());
    }
    for (const char *file : {"a/b/deep.txt", "a/x.txt", "one", "two", "three"}) {
        writeFile(m_simulator.local(u"/Internal/"_s + QLatin1String(file)), "1");
    }
    QVERIFY(QDir().mkpath(m_simulator.local(u"/Internal/empty"_s)));
}

void TestRemoteModel::showsWhatTheControllerTells()
{
    QJsonObject file = entry(u"movie.xml"_s);
    file.insert(u"size"_s, qint64(1) << 40);
    file.insert(u"date"_s, u"2026-01-31 23:59:58"_s);
    QJsonArray entries {file, entry(u"plain"_s), entry(u"Remote/"_s), entry(u"folder/"_s)};
    m_fake.answer(u"getFileSystemItems"_s, {{u"result"_s, true}, {u"list"_s, entries}});
    Link link;
    Shown shown(link, m_fake.port());
    const QModelIndex root = shown.open({});
    QCOMPARE(root.data(), u"Instrument (127.0.0.1)"_s);
    const auto text = [&](int row, int column) {
        return shown.model.index(row, column, root).data().toString();
    };
    QCOMPARE(text(0, QvexFileModel::SizeColumn), u"1.000 TB"_s);
    QCOMPARE(text(0, QvexFileModel::TypeColumn), u"xml File"_s);
    QCOMPARE(text(0, QvexFileModel::DateColumn), u"2026-01-31 23:59:58"_s);
    QCOMPARE(shown.at(u"/movie.xml"_s).data(QvexFileModel::FileTimeRole).toDateTime(),
             QDateTime({2026, 1, 31}, {23, 59, 58}));
    QCOMPARE(text(1, QvexFileModel::DateColumn), QString());
    QCOMPARE(text(3, QvexFileModel::SizeColumn), QString());
    const auto icon = [&](const char *path) {
        return shown.at(QLatin1String(path)).data(Qt::DecorationRole).value<QIcon>().cacheKey();
    };
    QVERIFY(icon("/Remote") != icon("/folder"));
    QVERIFY(icon("/plain") != icon("/folder"));
    QCOMPARE(icon("/plain"), icon("/movie.xml"));
}

void TestRemoteModel::oddNamesAreShownButNotActedOn()
{
    const QString invalid = u"Pr\u00fcf"_s + QChar(0xdcfc);
    QJsonArray entries;
    for (const QString &name : {u"a/b"_s, QString(), u".."_s, u"."_s}) {
        entries.append(QJsonObject {{u"name"_s, name}, {u"isdir"_s, true}, {u"dircount"_s, 3}});
    }
    const QStringList good {u"back\\slash"_s, u"new\nline"_s, QString(255, u'x'), u"twin"_s,
                            u"twin"_s};
    for (const QString &name : good) {
        entries.append(entry(name));
    }
    entries.append(QJsonObject {{u"name"_s, wireText(u"Pr\u00fcf"_s) + QChar(0xfc)}});
    m_fake.answer(u"getFileSystemItems"_s, {{u"result"_s, true}, {u"list"_s, entries}});
    Link link;
    Shown shown(link, m_fake.port());
    const QModelIndex root = shown.open(u"/"_s);
    for (int row = 0; row < 4; ++row) {
        const QModelIndex index = shown.model.index(row, 0, root);
        QCOMPARE(shown.model.filePath(index), QString());
        QVERIFY(!(index.flags() & (Qt::ItemIsEnabled | Qt::ItemIsEditable)));
        QVERIFY(!shown.model.hasChildren(index) && !shown.model.canFetchMore(index));
        QVERIFY(!shown.model.setData(index, u"other"_s));
    }
    QVERIFY(!shown.at(u"/a/b"_s).isValid());
    QCOMPARE(shown.names(root).mid(4), QStringList(good) << invalid);
    QCOMPARE(shown.at(u"/new\nline"_s).data(), u"new\u240aline"_s);
    QCOMPARE(shown.at(u"/twin"_s).row(), 7);
    QCOMPARE(shown.at(u'/' + invalid).data(), u"Pr\u00fcf\ufffdFC"_s);
    QVERIFY(m_fake.calls(u"renameFileDirectory"_s).isEmpty());
}

void TestRemoteModel::listsOnlyWhatIsOpenedAndOnce()
{
    Link link;
    const auto before = listed().size();
    const auto since = [&] { return listed().mid(before); };
    Shown shown(link, m_simulator.port());
    const QPersistentModelIndex deep = shown.open(u"/Internal/a"_s);
    QVERIFY(!shown.at(u"/Internal/a/b/deep.txt"_s).isValid());
    QCOMPARE(since(), QStringList {u"/Internal/a"_s});
    QVERIFY(shown.model.hasChildren(shown.at(u"/Internal/a/b"_s)));
    shown.view.expand(shown.at(u"/Internal/a/b"_s));
    shown.view.expandAll();
    QVERIFY(QTest::qWaitForWindowExposed(&shown.view));
    QCOMPARE(since(), QStringList({u"/Internal/a"_s, u"/Internal/a/b"_s}));
    const QModelIndex above = shown.open(u"/Internal"_s);
    QCOMPARE(QModelIndex(deep), shown.at(u"/Internal/a"_s));
    QCOMPARE(shown.names(above), QStringList({u"a"_s, u"empty"_s, u"one"_s, u"three"_s, u"two"_s}));
    QVERIFY(shown.model.isListed(shown.at(u"/Internal/a/b"_s)));
    QVERIFY(!shown.model.hasChildren(shown.at(u"/Internal/empty"_s)));
    QVERIFY(!shown.model.setRootPath(u"/Internal/one"_s).isValid());
    QCOMPARE(since().size(), 3);
}

void TestRemoteModel::refreshKeepsWhatStays_data()
{
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QStringList>("after");
    QTest::addColumn<bool>("threaded");
    QStringList odd = numbered(0, 2, 200);
    QStringList reversed = odd;
    std::reverse(reversed.begin(), reversed.end());
    QStringList mixed = reversed.mid(20) + numbered(1001, 3, 300);
    const auto row = [](const char *name, const QStringList &before, const QStringList &after) {
        QTest::addRow("%s", name) << before << after << false;
        QTest::addRow("%s, threaded", name) << before << after << true;
    };
    row("the same", {u"d/"_s, u"a"_s}, {u"d/"_s, u"a"_s});
    row("first comes and last goes", {u"d/"_s, u"a"_s, u"z"_s}, {u"A"_s, u"d/"_s, u"a"_s});
    row("file becomes directory", {u"a"_s, u"d/"_s}, {u"a/"_s, u"d/"_s});
    row("one of two twins goes", {u"t"_s, u"d/"_s, u"t"_s, u"u"_s}, {u"d/"_s, u"t"_s, u"u"_s});
    row("all go", {u"d/"_s, u"a"_s}, {});
    row("every other comes", QStringList(u"d/"_s) + odd,
        QStringList(u"d/"_s) + numbered(0, 1, 400));
    row("every other goes", QStringList(u"d/"_s) + numbered(0, 1, 400), QStringList(u"d/"_s) + odd);
    row("another order", QStringList(u"d/"_s) + odd, reversed + QStringList(u"d/"_s));
    row("all at once", QStringList(u"d/"_s) + odd, mixed + QStringList(u"d/"_s));
}

void TestRemoteModel::refreshKeepsWhatStays()
{
    QFETCH(QStringList, before);
    QFETCH(QStringList, after);
    QFETCH(bool, threaded);
    m_fake.answerInTurn(u"getFileSystemItems"_s,
                        {listing(before), listing({u"inner"_s}), listing(after)});
    Link link;
    Shown shown(link, m_fake.port(), threaded);
    const QModelIndex root = shown.open(u"/Internal"_s);
    shown.expand(u"/Internal/d"_s);
    const QPersistentModelIndex inner = shown.at(u"/Internal/d/inner"_s);
    QHash<QString, QPersistentModelIndex> known;
    for (const QString &name : std::as_const(before)) {
        known.insert(name, shown.at(u"/Internal/"_s + bare({name}).first()));
        shown.view.selectionModel()->select(known.value(name), QItemSelectionModel::Select);
    }
    shown.refresh(root);
    QCOMPARE(shown.names(root), bare(after));
    int staying = 0;
    for (auto index = known.cbegin(); index != known.cend(); ++index) {
        const bool stays = after.contains(index.key());
        QCOMPARE(index.value().isValid(), stays);
        staying += stays;
        if (stays) {
            QCOMPARE(index.value().data(), bare({index.key()}).first());
        }
    }
    QCOMPARE(shown.view.selectionModel()->selectedIndexes().size(), staying);
    QCOMPARE(inner.isValid(), after.contains(u"d/"_s));
    QCOMPARE(shown.view.isExpanded(shown.at(u"/Internal/d"_s)), inner.isValid());
    QCOMPARE(shown.sorted.rowCount(shown.sorted.mapFromSource(root)), after.size());
}

void TestRemoteModel::filterListsAgainBelowTheRoot()
{
    Link link;
    Shown shown(link, m_simulator.port());
    shown.open(u"/"_s);
    const QModelIndex root = shown.open(u"/Internal"_s);
    const auto before = listed().size();
    shown.model.setNameFilters({u"t*"_s});
    QCOMPARE(listed().mid(before), QStringList {u"/Internal"_s});
    QCOMPARE(shown.names(root), QStringList({u"a"_s, u"empty"_s, u"three"_s, u"two"_s}));
    shown.model.setVexFilters({u"t*"_s}, {u"xml"_s});
    QCOMPARE(listed().size(), before + 1);
}

void TestRemoteModel::renameKeepsTheRow()
{
    Link link;
    Shown shown(link, m_simulator.port());
    shown.open(u"/Internal"_s);
    shown.expand(u"/Internal/a"_s);
    const QPersistentModelIndex inner = shown.at(u"/Internal/a/x.txt"_s);
    const QModelIndex folder = shown.at(u"/Internal/a"_s);
    QSignalSpy renamed(&shown.model, &QvexFileModel::fileRenamed);
    for (const QString &name : {QString(), u"one"_s, u"b/c"_s, u".."_s, u"nul\0"_s}) {
        QVERIFY(!shown.model.setData(folder, name));
    }
    QVERIFY(renamed.isEmpty());
    QVERIFY(shown.model.setData(folder, u"new"_s));
    QCOMPARE(renamed, QList<QVariantList>({{u"/Internal"_s, u"a"_s, u"new"_s}}));
    QCOMPARE(shown.model.filePath(inner), u"/Internal/new/x.txt"_s);
    QCOMPARE(contentsOf(m_simulator.local(u"/Internal/new/x.txt"_s)), "1");
    QVERIFY(shown.view.isExpanded(shown.at(u"/Internal/new"_s)));
    m_simulator.order("fault renameFileDirectory:1:reset");
    QVERIFY(!shown.model.setData(shown.at(u"/Internal/one"_s), u"lost"_s));
    QVERIFY(shown.at(u"/Internal/one"_s).isValid());
}

void TestRemoteModel::newFolderAppears()
{
    Link link;
    Shown shown(link, m_simulator.port());
    const QModelIndex root = shown.open(u"/Internal"_s);
    QCOMPARE(shown.model.newDirectory(root), u"New Folder"_s);
    QVERIFY(shown.model.isDir(shown.at(u"/Internal/New Folder"_s)));
    QCOMPARE(shown.model.newDirectory(shown.at(u"/Internal/one"_s)), QString());
    m_simulator.order("fault newDirectory:1:error:result");
    QCOMPARE(shown.model.newDirectory(root), QString());
}

void TestRemoteModel::operationEndsOnce_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("cancelAt");
    QTest::addColumn<long>("result");
    QTest::addColumn<QString>("more");
    QTest::addColumn<int>("calls");
    QTest::addColumn<QStringList>("copied");
    const QStringList three {u"one"_s, u"two"_s, u"three"_s};
    const auto row = [&](const char *name) -> QTestData & { return QTest::newRow(name); };
    row("nothing") << QByteArray() << QStringList() << -1 << 0L << QString() << 0 << QStringList();
    row("three") << QByteArray() << three << -1 << 0L << QString() << 3
                 << QStringList({u"one"_s, u"three"_s, u"two"_s});
    row("cancelled during the first") << QByteArray("copyFileDirectory:1:delay:800") << three << 1
                                      << -5L << QString() << 1 << QStringList(u"one"_s);
    row("cancelled during the last")
        << QByteArray("copyFileDirectory:3:delay:800") << three << 3 << 0L << QString() << 3
        << QStringList({u"one"_s, u"three"_s, u"two"_s});
    row("second fails") << QByteArray("copyFileDirectory:2:error:result") << three << -1 << 5L
                        << u"/Internal/two"_s << 2 << QStringList(u"one"_s);
    row("link lost at the second")
        << QByteArray("copyFileDirectory:2:reset") << three << -1
        << long(QvexRemoteFileModel::LinkLost) << u"/Internal/two"_s << 1 << QStringList(u"one"_s);
    row("no path") << QByteArray() << QStringList({u"one"_s, u"nul\0"_s, u"two"_s}) << -1
                   << long(QvexRemoteFileModel::NoPath) << u"/Internal/nul\0"_s << 1
                   << QStringList(u"one"_s);
}

void TestRemoteModel::operationEndsOnce()
{
    QFETCH(QByteArray, fault);
    QFETCH(QStringList, names);
    QFETCH(int, cancelAt);
    QFETCH(QStringList, copied);
    if (!fault.isEmpty()) {
        m_simulator.order("fault " + fault);
    }
    const auto before = m_simulator.calls("copyFileDirectory").size();
    const auto calls = [&] { return int(m_simulator.calls("copyFileDirectory").size() - before); };
    Link link;
    Shown shown(link, m_simulator.port());
    shown.open(u"/Internal"_s);
    QSignalSpy ended(&shown.model, &QvexFileModel::copyComplete);
    QVector<QString> sources;
    for (const QString &name : std::as_const(names)) {
        sources += u"/Internal/"_s + name;
    }
    QCOMPARE(shown.model.copyFileDirectory(sources, u"/Internal/empty"_s), 0L);
    if (cancelAt > 0) {
        QTRY_COMPARE(calls(), cancelAt);
        shown.model.cancelThread();
    }
    QTRY_COMPARE(ended.size(), 1);
    QTEST(ended.first().first().value<long>(), "result");
    QTEST(ended.first().last().toString(), "more");
    QCOMPARE(shown.model.resultText(ended.first().first().value<long>()).isEmpty(),
             ended.first().first().value<long>() == 0);
    QTEST(calls(), "calls");
    QCOMPARE(QDir(m_simulator.local(u"/Internal/empty"_s)).entryList(QDir::Files), copied);
    QVERIFY(!shown.model.isListed(shown.at(u"/Internal/empty"_s)));
    QCOMPARE(shown.model.hasChildren(shown.at(u"/Internal/empty"_s)), !copied.isEmpty());
    QTest::qWait(1);
    QCOMPARE(ended.size(), 1);
}

void TestRemoteModel::secondOperationIsRefused()
{
    m_simulator.order("fault moveFileDirectory:1:delay:300");
    Link link;
    Shown shown(link, m_simulator.port());
    const QModelIndex root = shown.open(u"/Internal"_s);
    const QPersistentModelIndex empty = shown.at(u"/Internal/empty"_s);
    shown.refresh(empty);
    QSignalSpy moved(&shown.model, &QvexFileModel::moveComplete);
    QSignalSpy deleted(&shown.model, &QvexFileModel::deleteComplete);
    QCOMPARE(shown.model.moveFileDirectory({u"/Internal/one"_s}, u"/Internal/empty"_s), 0L);
    QCOMPARE(shown.model.deleteFileDirectory({u"/Internal/two"_s}), long(QvexFileModel::Busy));
    QTRY_COMPARE(moved.size(), 1);
    QVERIFY(deleted.isEmpty());
    QCOMPARE(shown.names(empty), QStringList {u"one"_s});
    shown.model.cancelThread(); // of nothing
    QCOMPARE(shown.model.deleteFileDirectory({u"/Internal/two"_s}), 0L);
    QTRY_COMPARE(deleted.size(), 1);
    QCOMPARE(shown.names(root), QStringList({u"a"_s, u"empty"_s, u"three"_s}));
}

void TestRemoteModel::lostLinkKeepsRowsUntilRefreshed()
{
    Link link;
    Shown shown(link, m_simulator.port());
    const QPersistentModelIndex root = shown.open(u"/Internal"_s);
    shown.expand(u"/Internal/a"_s);
    link->communicationError();
    shown.view.expandAll();
    QVERIFY(shown.at(u"/Internal/a/x.txt"_s).isValid());
    QSignalSpy failed(&shown.model, &QvexRemoteFileModel::listingFailed);
    shown.loaded.clear();
    shown.refresh(root);
    QVERIFY(root.isValid() && !shown.model.isListed(root));
    QCOMPARE(shown.model.rowCount(root), 0);
    QCOMPARE(failed.size(), 1);
    QVERIFY(shown.loaded.isEmpty());
    QVERIFY(link.connectTo(m_simulator.port()));
    QTRY_VERIFY(shown.model.canFetchMore(root));
    shown.model.fetchMore(root);
    QCOMPARE(shown.loaded.size(), 1);
    QCOMPARE(shown.model.rowCount(root), 5);
}

void TestRemoteModel::threadedListingLeavesTheCallerAlone()
{
    constexpr int delayMs = 400;
    Link link;
    Shown shown(link, m_simulator.port(), true);
    QSignalSpy loading(&shown.model, &QvexRemoteFileModel::loadingChanged);
    m_simulator.order("fault getFileSystemItems:*:delay:400");
    const auto before = listed().size();
    QElapsedTimer timer;
    timer.start();
    const QModelIndex root = shown.model.setRootPath(u"/Internal"_s);
    QVERIFY(shown.model.isLoading(root) && !shown.model.canFetchMore(root));
    QTRY_COMPARE(listed().size(), before + 1);
    shown.model.refreshDirectory(root); // twice wanted while one is under way: once more
    shown.model.refreshDirectory(root);
    QCOMPARE_LT(timer.elapsed(), delayMs);
    QTRY_COMPARE(shown.loaded.size(), 2);
    QCOMPARE(loading.size(), 4);
    QCOMPARE(shown.model.rowCount(root), 5);
    QCOMPARE(listed().size(), before + 2);
    shown.model.refreshDirectory(root); // and is destroyed meanwhile
}

void TestRemoteModel::threadedListingOfWhatHasGoneIsDropped()
{
    Link link;
    Shown shown(link, m_simulator.port(), true);
    const QModelIndex root = shown.open(u"/Internal"_s);
    m_simulator.order("fault getFileSystemItems:1:delay:300");
    const auto before = listed().size();
    shown.model.fetchMore(shown.at(u"/Internal/a"_s));
    QTRY_COMPARE(listed().size(), before + 1);
    QVERIFY(QDir(m_simulator.local(u"/Internal/a"_s)).removeRecursively());
    shown.model.setAsynchronous(false);
    shown.refresh(root);
    QVERIFY(!shown.at(u"/Internal/a"_s).isValid());
    shown.model.setAsynchronous(true);
    m_simulator.order("faults clear");
    shown.loaded.clear();
    shown.refresh(root); // behind the one that was dropped
    QTRY_COMPARE(shown.loaded.size(), 1);
    QCOMPARE(shown.loaded.first().first(), u"/Internal"_s);
}

QTEST_MAIN(TestRemoteModel)
#include "tst_remotemodel.moc"

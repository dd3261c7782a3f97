#include <QAbstractItemModelTester>
#include <QFile>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <sys/stat.h>

#include <cerrno>
#include <optional>

#include "GuardedTest.h"
#include "LocalFiles.h"
#include "files/QvexLocalFileModel.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray head(const char *type, const char *technology)
{
    return QByteArray("<?xml version=\"1.0\"?>\n<!DOCTYPE VEX>\n<r><AppType>") + type
        + "</AppType>\n<AppTech>" + technology + "</AppTech></r>\n";
}

QVariantList completion(long result, const QString &more = QString())
{
    return {QVariant::fromValue(result), more};
}

/// The tester of models fetches all that there is to fetch: only what is below one folder, here.
class FencedModel : public QvexLocalFileModel
{
public:
    FencedModel(const QString &fence, bool readOnly)
        : QvexLocalFileModel(nullptr, readOnly)
        , m_fence(fence)
    {
    }
    bool canFetchMore(const QModelIndex &index) const override
    {
        return filePath(index).startsWith(m_fence) && QvexLocalFileModel::canFetchMore(index);
    }
    void fetchMore(const QModelIndex &index) override
    {
        if (canFetchMore(index)) {
            QvexLocalFileModel::fetchMore(index);
        }
    }

private:
    const QString m_fence;
};

/// A model with what the load/save dialog puts on top of it, under constant scrutiny.
struct Browser
{
    explicit Browser(const QString &root, bool readOnly = false)
        : model(root, readOnly)
    {
        proxy.setSourceModel(&model);
        proxy.sort(0);
        view.setModel(&proxy);
        model.setRootPath(root);
        view.setRootIndex(proxy.mapFromSource(model.fileIndex(root)));
    }
    QModelIndex root() const { return model.fileIndex(model.rootPath()); }
    bool isListed() const { return model.isListed(root()); }
    QStringList names() const
    {
        QStringList found;
        for (int row = 0; row < model.rowCount(root()); ++row) {
            found.append(model.index(row, 0, root()).data().toString());
        }
        found.sort();
        return found;
    }

    FencedModel model;
    QAbstractItemModelTester modelTester {&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal};
    QSortFilterProxyModel proxy;
    QAbstractItemModelTester proxyTester {&proxy,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal};
    QTreeView view;
};

} // namespace

class LocalModelTest : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void listedAreThoseThatPassEachFilter_data();
    void listedAreThoseThatPassEachFilter();
    void textsAndRoles();
    void headIsReadAgainWhenTheFileChanges();
    void renamedFileKeepsItsHead();
    void folderIsLoadedWhenItsRowsAreKnownAndSorted();
    void followsTheDisk();
    void refreshTellsOfAFileThatGrew();
    void newFoldersAreNamedWithoutNumbers();
    void renaming();
    void sortsByValue();
    void rootInsideASpecialFolderIsSeen();
    void rootThatVanishesGivesWayToTheFolderAbove();
    void operationsEndInOneCompletion();
    void readOnlyRefusesEveryChange();

private:
    QString path(const QString &name) const { return m_folder->path() + u'/' + name; }

    std::optional<QTemporaryDir> m_folder;
};

void LocalModelTest::init()
{
    GuardedTest::init();
    m_folder.emplace();
    for (const auto *name : {"a.txt", "b.TXT", "plain", ".hidden", "Logs/l", "logs/l",
                             "Properties/p", "sub/below.txt"}) {
        writeFile(path(QString::fromLatin1(name)), "x");
    }
    writeFile(path(u"bert.xml"_s), head("Bert", "PAM4"));
    writeFile(path(u"scope.xml"_s), head("Scope", "PAM4"));
    writeFile(path(u"other.xml"_s), "<?xml version=\"1.0\"?>\n<r/>");
    ::mkfifo(QFile::encodeName(path(u"pipe.xml"_s)).constData(), 0600);
}

void LocalModelTest::listedAreThoseThatPassEachFilter_data()
{
    QTest::addColumn<int>("filter");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("types");
    QTest::addColumn<QStringList>("head");
    QTest::addColumn<bool>("special");
    QTest::addColumn<QString>("listed");

    const int all = QDir::AllEntries | QDir::System | QDir::AllDirs;
    const int usual = all | QDir::NoDotAndDotDot;
    const QStringList no;
    const QStringList any {u""_s, u""_s};
    const QStringList text {u"*.txt"_s};
    const QStringList xml {u"xml"_s};
    QTest::newRow("all") << usual << no << no << any << false
                         << u"a.txt b.TXT bert.xml logs other.xml pipe.xml plain scope.xml sub"_s;
    QTest::newRow("dots") << (all | QDir::NoDot) << text << no << any << false
                          << u".. a.txt b.TXT logs sub"_s;
    QTest::newRow("special folders")
        << usual << text << no << any << true << u"Logs Properties a.txt b.TXT logs sub"_s;
    QTest::newRow("letters") << (usual | QDir::CaseSensitive) << text << no << any << false
                             << u"a.txt logs sub"_s;
    QTest::newRow("valid head") << usual << no << xml << any << false
                                << u"a.txt b.TXT bert.xml logs plain scope.xml sub"_s;
    QTest::newRow("type") << usual << QStringList(u"*.xml"_s) << xml
                          << QStringList {u"Bert"_s, u""_s} << false << u"bert.xml logs sub"_s;
    QTest::newRow("type and technology")
        << usual << QStringList(u"*.xml"_s) << xml << QStringList {u"Bert"_s, u"pam4"_s} << false
        << u"logs sub"_s;
}

void LocalModelTest::listedAreThoseThatPassEachFilter()
{
    QFETCH(int, filter);
    QFETCH(QStringList, names);
    QFETCH(QStringList, types);
    QFETCH(QStringList, head);
    QFETCH(bool, special);
    QFETCH(QString, listed);
    const auto setUp = [&](Browser &browser) {
        browser.model.setFilter(QDir::Filters(filter));
        browser.model.setVexFilters(names, types);
        browser.model.setHeadFilter(head.at(0), head.at(1));
        browser.model.showSpecialFolders(special);
    };
    Browser before(path(u"sub"_s));
    setUp(before);
    before.model.setRootPath(m_folder->path());
    Browser after(m_folder->path());
    QTRY_VERIFY(after.isListed());
    setUp(after);

    QTRY_COMPARE(before.names().join(u' '), listed);
    QTRY_COMPARE(after.names().join(u' '), listed);
}

void LocalModelTest::textsAndRoles()
{
    Browser browser(m_folder->path());
    QTRY_VERIFY(browser.isListed());
    const QvexLocalFileModel &model = browser.model;
    const QModelIndex file = model.fileIndex(path(u"a.txt"_s));
    const QModelIndex folder = model.fileIndex(path(u"sub"_s));
    const QDateTime time = QFileInfo(path(u"a.txt"_s)).lastModified();

    QCOMPARE(model.headerData(3, Qt::Horizontal).toString(), u"Date Modified"_s);
    QCOMPARE(file.siblingAtColumn(1).data().toString(), u"1 bytes"_s);
    QCOMPARE(file.siblingAtColumn(2).data().toString(), u"txt File"_s);
    QCOMPARE(file.siblingAtColumn(3).data(), QLocale().toString(time, QLocale::ShortFormat));
    QCOMPARE(folder.siblingAtColumn(1).data().toString(), QString());
    QCOMPARE(folder.siblingAtColumn(2).data().toString(), u"File Folder"_s);
    QCOMPARE(file.data(QvexFileModel::FilePathRole), path(u"a.txt"_s));
    QCOMPARE(file.data(QvexFileModel::FileNameRole), u"a.txt"_s);
    QCOMPARE(file.data(QvexFileModel::FileSizeRole), 1);
    QCOMPARE(file.data(QvexFileModel::FileTimeRole), time);
    QVERIFY(!file.data(QvexFileModel::IsDirRole).toBool() && model.isDir(folder));
    QVERIFY(!folder.data(Qt::DecorationRole).value<QIcon>().isNull());
    QVERIFY(!model.fileIndex(path(u"none"_s)).isValid());
}

void LocalModelTest::headIsReadAgainWhenTheFileChanges()
{
    Browser browser(m_folder->path());
    browser.model.setVexFilters({}, {u"xml"_s});
    browser.model.setHeadFilter(u"Bert"_s, QString());
    QTRY_VERIFY(browser.names().contains(u"bert.xml"_s));
    QVERIFY(!browser.names().contains(u"other.xml"_s));

    writeFile(path(u"other.xml"_s), head("Bert", "NRZ"));
    browser.model.refreshDirectory(browser.root());
    QTRY_VERIFY(browser.names().contains(u"other.xml"_s));
}

void LocalModelTest::renamedFileKeepsItsHead()
{
    Browser browser(m_folder->path());
    browser.model.setVexFilters({}, {u"xml"_s});
    QTRY_VERIFY(browser.names().contains(u"bert.xml"_s));
    const QPersistentModelIndex file = browser.model.fileIndex(path(u"bert.xml"_s));
    QVERIFY(browser.model.setData(file, u"ernie.xml"_s));
    QVERIFY(file.isValid());
    QCOMPARE(file.data().toString(), u"ernie.xml"_s);
}

void LocalModelTest::folderIsLoadedWhenItsRowsAreKnownAndSorted()
{
    QStringList expected;
    for (int i = 499; i >= 0; --i) {
        const QString name = u"%1.xml"_s.arg(i, 3, 10, QLatin1Char('0'));
        writeFile(path(u"many/"_s + name), head(i % 2 == 0 ? "Bert" : "Scope", "PAM4"));
        if (i % 2 == 0) {
            expected.append(name);
        }
    }
    QvexLocalFileModel model;
    model.setVexFilters({}, {u"xml"_s});
    model.setHeadFilter(u"Bert"_s, QString());
    QStringList found;
    connect(&model, &QvexFileModel::directoryLoaded, this, [&](const QString &folder) {
        const QModelIndex root = model.fileIndex(folder);
        for (int row = 0; row < model.rowCount(root); ++row) {
            found.append(model.index(row, 0, root).data().toString());
        }
    });
    model.setRootPath(path(u"many"_s));
    model.sort(0, Qt::DescendingOrder);
    QTRY_VERIFY(!found.isEmpty());
    QCOMPARE(found, expected);

    QvexLocalFileModel goneWhileItReads;
    goneWhileItReads.setVexFilters({}, {u"xml"_s});
    goneWhileItReads.setRootPath(path(u"many"_s));
}

void LocalModelTest::followsTheDisk()
{
    Browser browser(m_folder->path());
    QTRY_VERIFY(browser.isListed());
    const QPersistentModelIndex kept = browser.model.fileIndex(path(u"sub"_s));
    browser.view.expand(browser.proxy.mapFromSource(kept));
    QTRY_VERIFY(browser.model.isListed(kept));

    writeFile(path(u"0 first"_s), "x");
    QVERIFY(QFile::remove(path(u"a.txt"_s)));
    QTRY_VERIFY(browser.names().contains(u"0 first"_s) && !browser.names().contains(u"a.txt"_s));
    QCOMPARE(browser.model.filePath(kept), path(u"sub"_s));
    QVERIFY(browser.view.isExpanded(browser.proxy.mapFromSource(kept)));
}

void LocalModelTest::refreshTellsOfAFileThatGrew()
{
    Browser browser(m_folder->path());
    QTRY_VERIFY(browser.isListed());
    const QPersistentModelIndex file = browser.model.fileIndex(path(u"a.txt"_s));
    QFile grown(path(u"a.txt"_s));
    QVERIFY(grown.open(QIODevice::Append) && grown.write("more") == 4);
    grown.close();

    QSignalSpy loaded(&browser.model, &QvexFileModel::directoryLoaded);
    browser.model.refreshDirectory(browser.root());
    QTRY_COMPARE(file.data(QvexFileModel::FileSizeRole).toInt(), 5);
    QTRY_VERIFY(loaded.contains(QVariantList {m_folder->path()}));
    QCOMPARE(browser.model.rootPath(), m_folder->path());
}

void LocalModelTest::newFoldersAreNamedWithoutNumbers()
{
    Browser browser(m_folder->path());
    for (const QString &name : {u"Untitled"_s, u"Untitled_"_s, u"Untitled__"_s}) {
        QCOMPARE(browser.model.newDirectory(browser.root()), name);
        QVERIFY(browser.model.fileIndex(path(name)).isValid());
    }
    QCOMPARE(browser.model.newDirectory(browser.model.fileIndex(path(u"a.txt"_s))), QString());
}

void LocalModelTest::renaming()
{
    Browser browser(m_folder->path());
    QTRY_VERIFY(browser.isListed());
    QSignalSpy renamed(&browser.model, &QvexFileModel::fileRenamed);
    const QModelIndex file = browser.model.fileIndex(path(u"a.txt"_s));
    for (const QString &name : {u""_s, u"plain"_s, u"x/y"_s, u".."_s, QString(300, u'x')}) {
        QVERIFY2(!browser.model.setData(file, name), qPrintable(name));
    }
    QVERIFY(renamed.isEmpty());

    QVERIFY(browser.model.setData(file, u"z.txt"_s));
    QCOMPARE(renamed.value(0), QVariantList({m_folder->path(), u"a.txt"_s, u"z.txt"_s}));
    QTRY_VERIFY(browser.names().contains(u"z.txt"_s) && !browser.names().contains(u"a.txt"_s));
    QCOMPARE(contentsOf(path(u"z.txt"_s)), "x");
}

void LocalModelTest::sortsByValue()
{
    writeFile(path(u"sizes/9"_s), QByteArray(9, 'x'));
    writeFile(path(u"sizes/10000"_s), QByteArray(10'000, 'x'));
    writeFile(path(u"sizes/200"_s), QByteArray(200, 'x'));
    Browser browser(path(u"sizes"_s));
    QTRY_VERIFY(browser.isListed());
    const QPersistentModelIndex largest = browser.model.fileIndex(path(u"sizes/10000"_s));

    browser.model.sort(QvexFileModel::SizeColumn, Qt::DescendingOrder);
    QCOMPARE(largest.row(), 0);
    browser.model.sort(QvexFileModel::SizeColumn);
    QCOMPARE(largest.row(), 2);
    QCOMPARE(largest.data().toString(), u"10000"_s);
}

void LocalModelTest::rootInsideASpecialFolderIsSeen()
{
    Browser browser(path(u"Logs"_s));
    QTRY_COMPARE(browser.names(), QStringList(u"l"_s));
    browser.model.setRootPath(m_folder->path());
    QTRY_VERIFY(browser.names().contains(u"plain"_s));
    QVERIFY(!browser.names().contains(u"Logs"_s));
}

void LocalModelTest::rootThatVanishesGivesWayToTheFolderAbove()
{
    Browser browser(path(u"sub"_s));
    QTRY_VERIFY(browser.isListed());
    QSignalSpy changed(&browser.model, &QvexFileModel::rootPathChanged);
    QCOMPARE(browser.model.setRootPath(path(u"none"_s)), browser.root());
    QVERIFY(changed.isEmpty());

    QVERIFY(QDir(path(u"sub"_s)).removeRecursively());
    QTRY_COMPARE(changed.value(0), QVariantList {m_folder->path()});
    QVERIFY(browser.root().isValid());
    QvexLocalFileModel fresh;
    fresh.setRootPath(path(u"none/below"_s));
    QCOMPARE(fresh.rootPath(), m_folder->path());
}

void LocalModelTest::operationsEndInOneCompletion()
{
    Browser browser(m_folder->path());
    QTRY_VERIFY(browser.isListed());
    QSignalSpy copied(&browser.model, &QvexFileModel::copyComplete);
    QSignalSpy deleted(&browser.model, &QvexFileModel::deleteComplete);
    QCOMPARE(browser.model.copyFileDirectory({path(u"a.txt"_s)}, path(u"sub"_s)), 0);
    QCOMPARE(browser.model.deleteFileDirectory({path(u"plain"_s)}), QvexFileModel::Busy);
    QTRY_COMPARE(copied.value(0), completion(0));

    QCOMPARE(browser.model.deleteFileDirectory({path(u"plain"_s)}), 0);
    QTRY_COMPARE(deleted.value(0), completion(0));
    QTRY_VERIFY(!browser.names().contains(u"plain"_s));
    QCOMPARE(copied.size(), 1);
}

void LocalModelTest::readOnlyRefusesEveryChange()
{
    Browser browser(m_folder->path(), true);
    QTRY_VERIFY(browser.isListed());
    QSignalSpy moved(&browser.model, &QvexFileModel::moveComplete);
    QVERIFY(!browser.model.setData(browser.model.fileIndex(path(u"plain"_s)), u"p"_s));
    QCOMPARE(browser.model.newDirectory(browser.root()), QString());
    QCOMPARE(browser.model.moveFileDirectory({path(u"plain"_s)}, path(u"sub"_s)), 0);
    QTRY_COMPARE(moved.value(0), completion(EROFS, path(u"plain"_s)));
    QVERIFY(QFile::exists(path(u"plain"_s)));
}

QTEST_MAIN(LocalModelTest)

#include "tst_localmodel.moc"

#include <QDirIterator>
#include <QMap>
#include <QTest>

#include <filesystem>
#include <functional>
#include <optional>

#include "GuardedTest.h"
#include "Link.h"
#include "Pattern.h"
#include "SimulatorProcess.h"

using namespace Qt::StringLiterals;

namespace {

constexpr char Secret[] = "nobody may see this";

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

/// Everything below a directory with its contents; links are not followed.
QMap<QString, QByteArray> snapshot(const QString &directory)
{
    QMap<QString, QByteArray> found;
    QDirIterator entries(directory,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QFileInfo entry(entries.next());
        found[entry.filePath()] = entry.isFile() ? contentsOf(entry.filePath()) : QByteArray();
    }
    return found;
}

QStringList sortedNames(const QVector<FileSystemItem> &items)
{
    QStringList names;
    for (const FileSystemItem &item : items) {
        names.append(item.name);
    }
    names.sort();
    return names;
}

/// What a file on the instrument holds; nothing when it can't be opened.
std::optional<QByteArray> remoteContents(const Link &link, const QString &path)
{
    long handle = 0;
    if (link->openFile(path, false, false, handle) != FS_OK) {
        return std::nullopt;
    }
    QByteArray buffer(4096, '\0');
    long got = 0;
    link->pullFileContents(handle, buffer.size(), got, buffer.data());
    link->closeFile(handle);
    return buffer.first(got);
}

void upload(const Link &link, const QString &path)
{
    long handle = 0;
    if (link->openFile(path, true, true, handle) == FS_OK) {
        link->pushFileContents(handle, "harm", 4);
        link->closeFile(handle);
    }
}

} // namespace

/** What the simulated controller lets clients do to its files, and what it does not. */
class TestSimFiles : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_simulator.start(); }
    void init();
    void cleanup();

    void neverLeavesTheRoot_data();
    void neverLeavesTheRoot();
    void renamesWithinTheDirectoryOnly_data();
    void renamesWithinTheDirectoryOnly();
    void followsLinksInside();
    void deletesLinkNotItsTarget();

    void listsLikeQDir_data();
    void listsLikeQDir();
    void tells64BitSize();
    void carriesNameThatIsNoUtf8();

    void brokenUploadLeavesOldFile();
    void closingGivesFinalName_data();
    void closingGivesFinalName();

private:
    QString outside() const { return m_simulator.root() + u"/../outside"_s; }
    QString internal(const QString &name) const
    {
        return m_simulator.local(u"/Internal/"_s + name);
    }

    SimulatorProcess m_simulator;
    std::optional<Link> m_link;
};

void TestSimFiles::init()
{
    GuardedTest::init();
    for (const QString &directory : {outside(), internal(u"files"_s)}) {
        QVERIFY(QDir().mkpath(directory));
    }
    QVERIFY(QDir().mkpath(outside() + u"/inner"_s));
    writeFile(outside() + u"/secret"_s, Secret);
    writeFile(outside() + u"/inner/secret"_s, Secret);
    m_link.emplace();
    QVERIFY(m_link->connectTo(m_simulator.port()));
}

void TestSimFiles::cleanup()
{
    m_link.reset();
    for (const QString &directory : {outside(), internal(u"files"_s)}) {
        std::filesystem::remove_all(directory.toStdString()); // QDir leaves names that are no UTF-8
    }
    GuardedTest::cleanup();
}

void TestSimFiles::neverLeavesTheRoot_data()
{
    using Operation = std::function<void(const Link &, const QString &)>;
    static const QVector<std::pair<const char *, Operation>> operations = {
        {"list",
         [](const Link &link, const QString &path) {
             QVector<FileSystemItem> items;
             link->getFileSystemItems(path, {}, QDir::AllEntries | QDir::NoDotAndDotDot, items);
             QVERIFY2(items.isEmpty(), qPrintable(sortedNames(items).join(u' ')));
         }},
        {"read",
         [](const Link &link, const QString &path) {
             QCOMPARE(remoteContents(link, path), std::nullopt);
         }},
        {"write", upload},
        {"write below",
         [](const Link &link, const QString &path) { upload(link, path + u"/new"_s); }},
        {"newDirectory",
         [](const Link &link, const QString &path) {
             QCOMPARE(link->newDirectory(path), QString());
         }},
        {"rename",
         [](const Link &link, const QString &path) {
             QVERIFY(link->renameFileDirectory(path, u"secret"_s, u"stolen"_s) != 0);
         }},
        {"move out of",
         [](const Link &link, const QString &path) {
             link->moveFileDirectory(path, u"/Internal/files/taken"_s);
             QCOMPARE(remoteContents(link, u"/Internal/files/taken"_s), std::nullopt);
         }},
        {"copy out of",
         [](const Link &link, const QString &path) {
             link->copyFileDirectory(path, u"/Internal/files/taken"_s);
             QCOMPARE(remoteContents(link, u"/Internal/files/taken"_s), std::nullopt);
             QCOMPARE(remoteContents(link, u"/Internal/files/taken/secret"_s), std::nullopt);
         }},
        {"move into",
         [](const Link &link, const QString &path) {
             QVERIFY(link->moveFileDirectory(u"/Internal/files/own"_s, path) != 0);
         }},
        {"copy into",
         [](const Link &link, const QString &path) {
             QVERIFY(link->copyFileDirectory(u"/Internal/files/own"_s, path) != 0);
         }},
        {"delete", [](const Link &link, const QString &path) { link->deleteFileDirectory(path); }},
    };
    static const QVector<QString> paths = {
        u"/.."_s,
        u"/../outside"_s,
        u"../outside/secret"_s,
        u"/Internal/../../outside"_s,
        u"/Internal/files/../../../outside/secret"_s,
        u"/Internal/files/./..//../Remote/../../outside"_s,
        u"%1"_s, // the absolute path of what is outside
        u"%1/secret"_s,
        u"/etc"_s,
        u"/Internal/files/toDirectory"_s,
        u"/Internal/files/toDirectory/inner"_s,
        u"/Internal/files/toDirectory/secret"_s,
        u"/Internal/files/toFile"_s,
        u"/Internal/files/upwards"_s,
        u"/Internal/files/upwards/secret"_s,
        u"/Internal/files/dangling"_s,
        u"/Internal/files/loop"_s,
        u"/Internal/files/loop/inner"_s,
    };
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QString>("path");
    for (const auto &[name, operation] : operations) {
        for (const QString &path : paths) {
            QTest::addRow("%s %s", name, qPrintable(path)) << operation << path;
        }
    }
}

void TestSimFiles::neverLeavesTheRoot()
{
    QFETCH(const std::function<void(const Link &, const QString &)>, operation);
    QFETCH(QString, path);
    const QString absolute = QDir::cleanPath(outside());
    path.replace(u"%1"_s, absolute);
    writeFile(internal(u"files/own"_s), "own");
    QVERIFY(QFile::link(absolute, internal(u"files/toDirectory"_s)));
    QVERIFY(QFile::link(absolute + u"/secret"_s, internal(u"files/toFile"_s)));
    QVERIFY(QFile::link(u"../../../outside"_s, internal(u"files/upwards"_s)));
    QVERIFY(QFile::link(absolute + u"/missing"_s, internal(u"files/dangling"_s)));
    QVERIFY(QFile::link(u"loop"_s, internal(u"files/loop"_s)));
    const QMap<QString, QByteArray> before = snapshot(outside());
    QCOMPARE(before.size(), 3);

    operation(*m_link, path);

    QCOMPARE(snapshot(outside()), before);
    QCOMPARE(m_link->losses(), 0);
}

void TestSimFiles::renamesWithinTheDirectoryOnly_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::newRow("up") << u"own"_s << u"../own"_s;
    QTest::newRow("out") << u"own"_s << u"../../../outside/own"_s;
    QTest::newRow("down") << u"own"_s << u"inner/own"_s;
    QTest::newRow("from below") << u"inner/other"_s << u"new"_s;
    QTest::newRow("the directory") << u"."_s << u"new"_s;
    QTest::newRow("its parent") << u".."_s << u"new"_s;
    QTest::newRow("to nothing") << u"own"_s << QString();
    QTest::newRow("onto another") << u"own"_s << u"taken"_s;
    QTest::newRow("what is not there") << u"missing"_s << u"new"_s;
}

void TestSimFiles::renamesWithinTheDirectoryOnly()
{
    QFETCH(const QString, from);
    QFETCH(const QString, to);
    QVERIFY(QDir().mkpath(internal(u"files/inner"_s)));
    for (const char *name : {"own", "taken", "inner/other"}) {
        writeFile(internal(u"files/"_s + QLatin1String(name)), name);
    }
    const QString all = m_simulator.root() + u"/.."_s;
    const QStringList before = snapshot(all).keys();
    QVERIFY(m_link->proxy()->renameFileDirectory(u"/Internal/files"_s, from, to) != 0);
    QCOMPARE(snapshot(all).keys(), before);
    QCOMPARE(contentsOf(internal(u"files/taken"_s)), "taken");
}

void TestSimFiles::followsLinksInside()
{
    QVERIFY(QDir().mkpath(internal(u"files/inner"_s)));
    writeFile(internal(u"files/inner/own"_s), "own");
    QVERIFY(QFile::link(u"inner"_s, internal(u"files/link"_s)));
    QCOMPARE(remoteContents(*m_link, u"/Internal/files/link/own"_s), QByteArray("own"));
    QVector<FileSystemItem> items;
    QVERIFY(m_link->proxy()->getFileSystemItems(u"/Internal/files/link"_s, {}, QDir::Files, items));
    QCOMPARE(sortedNames(items), QStringList {u"own"_s});
}

void TestSimFiles::deletesLinkNotItsTarget()
{
    QVERIFY(QDir().mkpath(internal(u"files/inner/tree"_s)));
    writeFile(internal(u"files/inner/tree/own"_s), "own");
    QVERIFY(QFile::link(u"inner/tree"_s, internal(u"files/link"_s)));
    QVERIFY(QFile::link(QDir::cleanPath(outside()), internal(u"files/inner/out"_s)));
    QCOMPARE(m_link->proxy()->deleteFileDirectory(u"/Internal/files/link"_s), 0L);
    QVERIFY(!QFileInfo(internal(u"files/link"_s)).isSymLink());
    QCOMPARE(contentsOf(internal(u"files/inner/tree/own"_s)), "own");

    // Nor what a link in a deleted directory points to.
    QCOMPARE(m_link->proxy()->deleteFileDirectory(u"/Internal/files/inner"_s), 0L);
    QVERIFY(!QFileInfo::exists(internal(u"files/inner"_s)));
    QCOMPARE(contentsOf(outside() + u"/secret"_s), Secret);
}

void TestSimFiles::listsLikeQDir_data()
{
    QTest::addColumn<QDir::Filters>("filters");
    QTest::addColumn<QStringList>("patterns");
    const std::pair<const char *, QDir::Filters> filters[] = {
        {"default", QDir::NoFilter},
        {"files", QDir::Files},
        {"directories", QDir::Dirs},
        {"hidden files", QDir::Files | QDir::Hidden},
        {"hidden", QDir::AllEntries | QDir::Hidden},
        {"no dots", QDir::AllEntries | QDir::NoDotAndDotDot},
        {"no dot-dot", QDir::Dirs | QDir::Hidden | QDir::NoDotDot},
        {"all directories", QDir::AllDirs | QDir::NoDotAndDotDot},
        {"all directories and files", QDir::AllDirs | QDir::Files},
        {"no links", QDir::AllEntries | QDir::NoSymLinks},
        {"system", QDir::AllEntries | QDir::System},
        {"system without links", QDir::AllEntries | QDir::System | QDir::NoSymLinks},
        {"case-sensitive", QDir::AllEntries | QDir::CaseSensitive},
        {"executable", QDir::Files | QDir::Executable},
        {"hidden only", QDir::Hidden},
    };
    const QStringList patterns[] = {{},           {u"*.txt"_s}, {u"a?"_s}, {u"*.txt"_s, u"a?"_s},
                                    {u"[!a]*"_s}, {u".*"_s},    {u"*"_s}};
    for (const auto &[name, filter] : filters) {
        for (const QStringList &pattern : patterns) {
            QTest::addRow("%s %s", name, qPrintable(pattern.join(u' '))) << filter << pattern;
        }
    }
}

void TestSimFiles::listsLikeQDir()
{
    QFETCH(const QDir::Filters, filters);
    QFETCH(const QStringList, patterns);
    for (const QString &name : {u"a.txt"_s, u"B.TXT"_s, u"ab"_s, u"AB"_s, u"abc"_s,
                                u".hidden.txt"_s, u"ä.txt"_s, u"aä"_s, u"line\nbreak.txt"_s}) {
        writeFile(internal(u"files/"_s + name), "some");
    }
    QFile::setPermissions(internal(u"files/abc"_s), QFile::ReadOwner | QFile::ExeOwner);
    for (const QString &name : {u"ad"_s, u"dir.txt"_s, u"other"_s, u".hidden"_s}) {
        QVERIFY(QDir().mkpath(internal(u"files/"_s + name)));
    }
    QVERIFY(QFile::link(u"abc"_s, internal(u"files/link.txt"_s)));
    QVERIFY(QFile::link(u"other"_s, internal(u"files/al"_s)));
    QVERIFY(QFile::link(u"missing"_s, internal(u"files/dangling.txt"_s)));

    QVector<FileSystemItem> items;
    QVERIFY(m_link->proxy()->getFileSystemItems(u"/Internal/files"_s, patterns, filters, items));
    QStringList expected = QDir(internal(u"files"_s)).entryList(patterns, filters, QDir::Unsorted);
    expected.sort();
    QCOMPARE(sortedNames(items), expected);
    for (const FileSystemItem &item : items) {
        QCOMPARE(item.isdir, QFileInfo(internal(u"files/"_s + item.name)).isDir());
    }
}

void TestSimFiles::tells64BitSize()
{
    constexpr qint64 size = (qint64(5) << 30) + 7;
    QFile file(internal(u"files/sparse"_s));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(size));
    QVector<FileSystemItem> items;
    QVERIFY(m_link->proxy()->getFileSystemItems(u"/Internal/files"_s, {}, QDir::Files, items));
    QCOMPARE(items.size(), 1);
    QCOMPARE(items.constFirst().size, size);
}

void TestSimFiles::carriesNameThatIsNoUtf8()
{
    // Latin-1, a lone continuation byte, a surrogate in UTF-8, bytes that never occur.
    const QByteArray directory = QFile::encodeName(internal(u"files/"_s));
    const QByteArray name = "gr\xFC\xDF \x80 \xED\xA0\x80 \xFE\xFF";
    writeFile(internal(u"files/plain"_s), "contents");
    QCOMPARE(::rename(directory + "plain", directory + name), 0);

    QVector<FileSystemItem> items;
    QVERIFY(m_link->proxy()->getFileSystemItems(u"/Internal/files"_s, {}, QDir::Files, items));
    QCOMPARE(items.size(), 1);
    const QString listed = items.constFirst().name;
    QCOMPARE(remoteContents(*m_link, u"/Internal/files/"_s + listed), QByteArray("contents"));
    QCOMPARE(m_link->proxy()->renameFileDirectory(u"/Internal/files"_s, listed, listed + u'2'), 0L);
    QCOMPARE(::access(directory + name + "2", F_OK), 0);
}

void TestSimFiles::brokenUploadLeavesOldFile()
{
    const QByteArray half = patternBytes(100'000);
    writeFile(internal(u"files/data"_s), "old");
    long handle = 0;
    QCOMPARE(m_link->proxy()->openFile(u"/Internal/files/data"_s, true, true, handle), FS_OK);
    QCOMPARE(m_link->proxy()->pushFileContents(handle, half.constData(), half.size()), FS_OK);
    m_link.reset();
    QTRY_COMPARE(m_simulator.openFiles(), QStringList());
    QCOMPARE(contentsOf(internal(u"files/data"_s)), "old");
    QCOMPARE(contentsOf(internal(u"files/data.part"_s)), half);
}

void TestSimFiles::closingGivesFinalName_data()
{
    QTest::addColumn<bool>("overwrite");
    QTest::addColumn<bool>("isThereBefore");
    QTest::addColumn<bool>("comesMeanwhile");
    QTest::newRow("new") << false << false << false;
    QTest::newRow("overwritten") << true << true << false;
    QTest::newRow("overwritten, came meanwhile") << true << false << true;
    QTest::newRow("kept") << false << true << false;
    QTest::newRow("kept, came meanwhile") << false << false << true;
}

void TestSimFiles::closingGivesFinalName()
{
    QFETCH(const bool, overwrite);
    QFETCH(const bool, isThereBefore);
    QFETCH(const bool, comesMeanwhile);
    const QString path = u"/Internal/files/data"_s;
    const QString local = m_simulator.local(path);
    if (isThereBefore) {
        writeFile(local, "old");
    }
    long handle = 0;
    FileSystemResult result = m_link->proxy()->openFile(path, true, overwrite, handle);
    if (result == FS_OK) {
        QCOMPARE(m_link->proxy()->pushFileContents(handle, "new", 3), FS_OK);
        QCOMPARE(QFileInfo::exists(local), isThereBefore);
        if (comesMeanwhile) {
            writeFile(local, "old");
        }
        result = m_link->proxy()->closeFile(handle);
    }
    const bool isKept = !overwrite && (isThereBefore || comesMeanwhile);
    QCOMPARE(result, isKept ? FS_EXISTS : FS_OK);
    QCOMPARE(contentsOf(local), isKept ? "old" : "new");
    QCOMPARE(QDir(internal(u"files"_s)).entryList(QDir::Files), QStringList {u"data"_s});
}

QTEST_GUILESS_MAIN(TestSimFiles)
#include "tst_simfiles.moc"

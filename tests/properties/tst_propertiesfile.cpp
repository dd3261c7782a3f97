#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <dlfcn.h>
#include <sys/types.h>

#include <cerrno>
#include <functional>
#include <optional>

#include "GuardedTest.h"
#include "properties/PropertiesManager.h"

using namespace Qt::StringLiterals;
using DamagedFile = PropertiesManager::DamagedFile;

namespace {

/// Asked before each of the calls below, also those of libraries; what they then fail with, or 0.
std::function<int(const char *name)> s_guard;

template<typename Result, typename... Arguments>
Result guarded(const char *name, Arguments... arguments)
{
    if (s_guard) {
        const auto guard = std::exchange(s_guard, nullptr); // what it does itself goes unseen
        errno = guard(name);
        s_guard = guard;
        if (errno != 0) {
            return -1;
        }
    }
    return reinterpret_cast<Result (*)(Arguments...)>(::dlsym(RTLD_NEXT, name))(arguments...);
}

/// A store of its own for a test, with the setup properties 1 and -2 and the status property 3.
struct Store : PropertiesManager
{
    Store()
    {
        registerSetupProperty(1, u"First"_s, u"default"_s, 7);
        registerSetupProperty(-2, u"<Second>"_s, u"default"_s, 7);
        registerStatusProperty(3, u"Third"_s, u"default"_s, 7);
    }

    QVector<QString> values() const { return getProperties({1, -2, 3}); }
};

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

QByteArray savedFile(const QByteArray &first)
{
    return "\xEF\xBB\xBF<properties>\n"
           " <vex key=\"-2\" tag=\"&lt;Second&gt;\" val=\"default\"/>\n"
           " <vex key=\"1\" tag=\"First\" val=\""
        + first + "\"/>\n</properties>\n";
}

QByteArray element(const QByteArray &attributes)
{
    return "<properties><vex " + attributes + "/></properties>";
}

} // namespace

#define GUARD extern "C" __attribute__((visibility("default")))
GUARD ssize_t write(int file, const void *bytes, size_t size)
{
    return guarded<ssize_t>("write", file, bytes, size);
}
GUARD int fsync(int file)
{
    return guarded<int>("fsync", file);
}
GUARD int link(const char *from, const char *to) noexcept
{
    return guarded<int>("link", from, to);
}
GUARD int rename(const char *from, const char *to) noexcept
{
    return guarded<int>("rename", from, to);
}

class TestPropertiesFile : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void setupPropertiesAreWritten();
    void textsSurvive_data();
    void textsSurvive();
    void filesAreReadOrRefused_data();
    void filesAreReadOrRefused();
    void damagedFilesAreKept();
    void aSymbolicLinkStaysOne();
    void noFailureLosesAFile_data();
    void noFailureLosesAFile();

private:
    QString path(const QString &name) const { return m_directory->filePath(name); }
    QStringList names() const { return QDir(m_directory->path()).entryList(QDir::Files); }

    std::optional<QTemporaryDir> m_directory;
};

void TestPropertiesFile::init()
{
    GuardedTest::init();
    m_directory.emplace();
}

void TestPropertiesFile::setupPropertiesAreWritten()
{
    struct : PropertiesManager
    {
    } empty;
    empty.registerStatusProperty(3, u"Third"_s, u"default"_s, 7);
    QVERIFY(empty.saveProperties(path(u"f"_s)));
    QCOMPARE(contentsOf(path(u"f"_s)), "\xEF\xBB\xBF<properties/>\n");
    Store store;
    store.setProperty(1, u"set"_s, false);
    QVERIFY(store.saveProperties(path(u"f"_s)));
    QCOMPARE(contentsOf(path(u"f"_s)), savedFile("set"));
    QCOMPARE(contentsOf(path(u"f.bak"_s)), "\xEF\xBB\xBF<properties/>\n");
}

void TestPropertiesFile::textsSurvive_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("markup") << u"<vex a='b'> & \"c\" ]]> <!-- --> &amp; &#10;"_s;
    QTest::newRow("white space") << u" a\tb\r\nc\rd\n "_s;
    QTest::newRow("beyond 16 bits, and the highest") << u"\U0001F600 \U0010FFFF \uFFFD"_s;
    QTest::newRow("further line breaks") << u"\u0085\u2028\x7F"_s;
    QTest::newRow("NUL and controls") << u"a\0\x01\x1F\\u0041\\"_s;
    QTest::newRow("no characters") << u"\uFFFE\uFFFF"_s;
    QTest::newRow("halves of pairs") << u"a"_s + QChar(0xDC00) + QChar(0xD800);
    QTest::newRow("backslashes") << u"C:\\u0041\\new"_s;
    QTest::newRow("long") << QString(1 << 20, u'"');
}

void TestPropertiesFile::textsSurvive()
{
    QFETCH(const QString, text);
    Store saved;
    saved.registerSetupProperty(4, text, text, 7);
    QVERIFY(saved.saveProperties(path(u"f"_s)));
    Store loaded;
    loaded.registerSetupProperty(4, u"Fourth"_s, u"default"_s, 7);
    QVERIFY(loaded.loadProperties(path(u"f"_s)));
    QCOMPARE(loaded.getProperty(4), text);
}

void TestPropertiesFile::filesAreReadOrRefused_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("value"); // of property 1; null when the file is to be refused
    const QDir corpus(QStringLiteral(VEX_TEST_CORPUS));
    for (const QFileInfo &file : corpus.entryInfoList(QDir::Files)) {
        QTest::newRow(qPrintable(file.fileName()))
            << contentsOf(file.filePath())
            << (file.fileName().startsWith("good"_L1) ? u"loaded"_s : QString());
    }
    QByteArray attributes = R"(key="1" val="no")";
    for (int i = 0; i < 100000; ++i) {
        attributes += " a" + QByteArray::number(i) + "=''";
    }
    QTest::newRow("100,000 attributes") << element(attributes) << QString();
    QTest::newRow("64 attributes of many signs") << element(
        "key='1' val='loaded' x='" + QByteArray(99, '"') + "' y=\">" + QByteArray(99, '\'') + '"')
                                                 << u"loaded"_s;
    const QByteArray nested = QByteArray("<a>").repeated(64) + QByteArray("</a>").repeated(64);
    QTest::newRow("nested") << "<properties>" + nested + "</properties>" << QString();
    QTest::newRow("largest") << element("key='1' val='loaded'").leftJustified(16 << 20)
                             << u"loaded"_s;
    QTest::newRow("too large") << element("key='1' val='no'").leftJustified((16 << 20) + 1)
                               << QString();
}

void TestPropertiesFile::filesAreReadOrRefused()
{
    QFETCH(const QByteArray, contents);
    QFETCH(const QString, value);
    writeFile(path(u"f"_s), contents);
    messages().allow(u"properties were not loaded"_s);
    Store store;
    QCOMPARE(store.loadProperties(path(u"f"_s)), !value.isNull());
    const QString expected = value.isNull() ? u"default"_s : value;
    QCOMPARE(store.values(), (QVector<QString> {expected, u"default"_s, u"default"_s}));
    QVERIFY(!store.loadProperties(path(u"none"_s)) && !store.loadProperties(m_directory->path()));
    QCOMPARE(names(), QStringList {u"f"_s});
}

void TestPropertiesFile::damagedFilesAreKept()
{
    messages().allow(u"moved to .*corrupt-"_s);
    Store store;
    QVERIFY(store.saveProperties(path(u"f"_s)) && store.saveProperties(path(u"f"_s)));
    const QByteArray whole = contentsOf(path(u"f"_s));
    QByteArrayList damaged;
    for (const char *contents : {"1", "2", "", "3"}) {
        damaged.append(contents);
        writeFile(path(u"f"_s), contents);
        if (damaged.size() < 3) {
            QVERIFY(!store.loadProperties(path(u"f"_s), DamagedFile::MoveAside));
        } else {
            QVERIFY(Store().saveProperties(path(u"f"_s)));
            QCOMPARE(contentsOf(path(u"f"_s)), whole);
        }
    }
    QByteArrayList kept;
    for (const QString &name : names().filter(QRegularExpression(u"^f.corrupt-[0-9]{8}-"_s))) {
        kept.append(contentsOf(path(name)));
    }
    std::sort(kept.begin(), kept.end());
    std::sort(damaged.begin(), damaged.end());
    QCOMPARE(kept, damaged);
    QCOMPARE(contentsOf(path(u"f.bak"_s)), whole);
}

void TestPropertiesFile::aSymbolicLinkStaysOne()
{
    QVERIFY(QFile::link(path(u"f"_s), path(u"link"_s)));
    Store store;
    QVERIFY(store.saveProperties(path(u"link"_s)) && store.saveProperties(path(u"link"_s)));
    QVERIFY(QFileInfo(path(u"link"_s)).isSymLink());
    QCOMPARE(names(), (QStringList {u"f"_s, u"f.bak"_s, u"link"_s}));
}

void TestPropertiesFile::noFailureLosesAFile_data()
{
    QTest::addColumn<QString>("failing"); // from the first of these calls on
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("isSaved");
    QTest::newRow("none") << QString() << 0 << true;
    QTest::newRow("disk full") << u"write"_s << ENOSPC << false;
    QTest::newRow("medium fails") << u"fsync"_s << EIO << false;
    QTest::newRow("no second names") << u"link"_s << EPERM << true;
    QTest::newRow("not to be renamed") << u"rename"_s << EACCES << false;
    QTest::newRow("medium can not be flushed") << u"fsync"_s << EINVAL << true;
}

void TestPropertiesFile::noFailureLosesAFile()
{
    QFETCH(const QString, failing);
    QFETCH(const int, error);
    QFETCH(const bool, isSaved);
    Store store;
    QVERIFY(store.saveProperties(path(u"f"_s)));
    store.setProperty(1, u"new"_s, false);
    messages().allow(u"properties were not saved"_s);
    QStringList calls;
    QByteArrayList seen;
    s_guard = [&](const char *name) {
        calls.append(QString::fromLatin1(name));
        seen.append(contentsOf(path(u"f"_s)));
        return failing == calls.last() ? error : 0;
    };
    const bool result = store.saveProperties(path(u"f"_s));
    s_guard = nullptr;
    QCOMPARE(result, isSaved);
    // Whenever the power goes, the file is whole: the old one, and flushed before it is the new.
    seen.append(contentsOf(path(u"f"_s)));
    const qsizetype replaced = seen.indexOf(savedFile("new"));
    QCOMPARE(seen.count(savedFile("default")) + seen.count(savedFile("new")), seen.size());
    QCOMPARE(replaced >= 0, isSaved);
    if (isSaved) {
        QVERIFY(calls.indexOf(u"fsync"_s) < replaced - 1 && calls.last() == "fsync"_L1);
        QCOMPARE(contentsOf(path(u"f.bak"_s)), savedFile("default"));
    }
    QCOMPARE(names(), isSaved ? (QStringList {u"f"_s, u"f.bak"_s}) : QStringList {u"f"_s});
}

QTEST_GUILESS_MAIN(TestPropertiesFile)
#include "tst_propertiesfile.moc"

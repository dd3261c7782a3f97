#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include "Fcpctl.h"
#include "GuardedTest.h"
#include "LocalFiles.h"
#include "SimulatorProcess.h"

using namespace Qt::StringLiterals;

namespace {

void setModified(const QString &path, int secondsFromNow)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)
        || !file.setFileTime(QDateTime::currentDateTime().addSecs(secondsFromNow),
                             QFileDevice::FileModificationTime)) {
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
}

} // namespace

/** The commands of fcpctl that work on whole folders: tree and sync. */
class TestFcpctlSync : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void treeShowsWhatIsBelow();
    void treeGoesAsDeepAsAsked();
    void carriesOnlyWhatDiffers_data();
    void carriesOnlyWhatDiffers();
    void saysWhatItWouldDo();
    void leavesAloneWhatIsInTheWay();
    void refusesTwoPlacesOfOneSide();
    void endsWith3WithoutLink();

private:
    QString local(const QString &name) const { return m_directory->filePath(u"here/"_s + name); }
    QString remote(const QString &name) const
    {
        return m_simulator->local(u"/Internal/there/"_s + name);
    }
    /// As the command line has them: this folder, and the one on the instrument.
    QString here() const { return m_directory->filePath(u"here"_s); }
    static QString there() { return u":/Internal/there"_s; }
    QByteArray sync(const QStringList &arguments);

    std::unique_ptr<SimulatorProcess> m_simulator;
    std::unique_ptr<QTemporaryDir> m_directory;
};

void TestFcpctlSync::init()
{
    GuardedTest::init();
    m_simulator = std::make_unique<SimulatorProcess>();
    m_simulator->start();
    m_directory = std::make_unique<QTemporaryDir>();
}

QByteArray TestFcpctlSync::sync(const QStringList &arguments)
{
    Fcpctl fcpctl(m_simulator->port(), QStringList {u"sync"_s} + arguments);
    const int code = fcpctl.run();
    return code == 0 ? fcpctl.output()
                     : "code " + QByteArray::number(code) + ": " + fcpctl.errors();
}

void TestFcpctlSync::treeShowsWhatIsBelow()
{
    writeFile(remote(u"b/inner.txt"_s), "x");
    writeFile(remote(u"a.txt"_s), "xyz");
    Fcpctl text(m_simulator->port(), {u"tree"_s, u"/Internal/there"_s});
    QCOMPARE(text.run(), 0);
    QCOMPARE(text.output(),
             QByteArray("/Internal/there\n├── a.txt\n└── b/\n    └── inner.txt\n"
                        "\n1 folder, 2 files\n"));

    Fcpctl json(m_simulator->port(), {u"tree"_s, u"--json"_s, u"/Internal/there"_s});
    QCOMPARE(json.run(), 0);
    const QJsonArray entries = json.json()[u"entries"_s].toArray();
    QCOMPARE(entries[0][u"size"_s].toInt(), 3);
    QCOMPARE(entries[1][u"entries"_s][0][u"name"_s].toString(), u"inner.txt"_s);
}

void TestFcpctlSync::treeGoesAsDeepAsAsked()
{
    writeFile(remote(u"a/b/c.txt"_s), "x");
    Fcpctl fcpctl(m_simulator->port(), {u"tree"_s, u"--depth"_s, u"2"_s, u"/Internal/there/"_s});
    QCOMPARE(fcpctl.run(), 0);
    QVERIFY(fcpctl.output().contains("b/"));
    QVERIFY(!fcpctl.output().contains("c.txt"));
    // A folder that is not shown is not asked for either.
    QVERIFY(m_simulator->calls("getFileSystemItems").last().arguments.contains("there/a\""));
    QCOMPARE(Fcpctl(m_simulator->port(), {u"tree"_s, u"/Internal/nowhere"_s}).run(), 1);
}

void TestFcpctlSync::carriesOnlyWhatDiffers_data()
{
    QTest::addColumn<bool>("upload");
    QTest::newRow("to the instrument") << true;
    QTest::newRow("from the instrument") << false;
}

void TestFcpctlSync::carriesOnlyWhatDiffers()
{
    QFETCH(const bool, upload);
    const auto source = [&](const QString &name) { return upload ? local(name) : remote(name); };
    const auto target = [&](const QString &name) { return upload ? remote(name) : local(name); };
    const QStringList command =
        upload ? QStringList {here(), there()} : QStringList {there(), here()};
    writeFile(source(u"same.xml"_s), "same");
    writeFile(source(u"old.xml"_s), "first");
    writeFile(source(u"deep/er/file.xml"_s), "inner");

    QVERIFY(sync(command).contains("3 carried"));
    QCOMPARE(contentsOf(target(u"deep/er/file.xml"_s)), QByteArray("inner"));

    writeFile(source(u"old.xml"_s), "later"); // as long as before
    setModified(target(u"old.xml"_s), -3600);
    writeFile(source(u"deep/er/more.xml"_s), "more");
    writeFile(target(u"mine.xml"_s), "stays");
    QVERIFY(sync(command).contains("2 carried"));
    QCOMPARE(contentsOf(target(u"old.xml"_s)), QByteArray("later"));
    QCOMPARE(contentsOf(target(u"deep/er/more.xml"_s)), QByteArray("more"));
    QCOMPARE(contentsOf(target(u"mine.xml"_s)), QByteArray("stays"));

    QVERIFY(sync(command).contains("0 carried"));
}

void TestFcpctlSync::saysWhatItWouldDo()
{
    writeFile(local(u"new.xml"_s), "new");
    writeFile(local(u"longer.xml"_s), "longer");
    writeFile(remote(u"longer.xml"_s), "long");
    const QByteArray said = sync({u"--dry-run"_s, here(), there()});
    QVERIFY2(said.contains("missing  " + local(u"new.xml"_s).toUtf8()), said);
    QVERIFY2(said.contains("size     " + local(u"longer.xml"_s).toUtf8()), said);
    QCOMPARE(contentsOf(remote(u"longer.xml"_s)), QByteArray("long"));
    QVERIFY(!QFile::exists(remote(u"new.xml"_s)));
}

void TestFcpctlSync::leavesAloneWhatIsInTheWay()
{
    writeFile(local(u"name"_s), "a file");
    writeFile(local(u"good.xml"_s), "good");
    writeFile(remote(u"name/inner"_s), "a folder");
    QVERIFY(QFile::link(u"/etc/passwd"_s, local(u"link"_s)));
    const QByteArray said = sync({here(), there()});
    QVERIFY2(said.startsWith("code 1"), said);
    QVERIFY2(said.contains("is a folder") && said.contains("symbolic links"), said);
    QCOMPARE(contentsOf(remote(u"good.xml"_s)), QByteArray("good"));
    QCOMPARE(contentsOf(remote(u"name/inner"_s)), QByteArray("a folder"));
    QVERIFY(!QFile::exists(remote(u"link"_s)));
}

void TestFcpctlSync::refusesTwoPlacesOfOneSide()
{
    QVERIFY(sync({here(), here()}).startsWith("code 2"));
    QVERIFY(sync({there(), there()}).startsWith("code 2"));
}

void TestFcpctlSync::endsWith3WithoutLink()
{
    writeFile(local(u"file"_s), "x");
    m_simulator->stop();
    QVERIFY(sync({here(), there()}).startsWith("code 3"));
}

QTEST_GUILESS_MAIN(TestFcpctlSync)
#include "tst_fcpctl_sync.moc"

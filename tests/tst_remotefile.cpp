#include <QTest>

#include <corba/FcpRemoteFile.h>

#include "FakeController.h"
#include "GuardedTest.h"
#include "Link.h"
#include "Pattern.h"

using namespace Qt::StringLiterals;

/** A remote file's handle: when it is closed, on which link, and what a lost link looks like. */
class TestRemoteFile : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_fake.start(); }
    void init();

    void closesItsHandleWhenItGoes();
    void openingAgainClosesTheFirst();
    void refusedOpenLeavesNothingToClose_data();
    void refusedOpenLeavesNothingToClose();
    void failureIsNeverOk_data();
    void failureIsNeverOk();
    void staysWithItsLink();

private:
    void answerOpen(FileSystemResult result, int handle);
    QVector<int> closedHandles();

    FakeController m_fake;
    qsizetype m_closesBefore = 0;
};

void TestRemoteFile::init()
{
    GuardedTest::init();
    for (const QString &operation : {u"closeFile"_s, u"pushFileContents"_s}) {
        m_fake.answer(operation, {{u"result"_s, int(FS_OK)}});
    }
    m_fake.answer(u"pullFileContents"_s,
                  {{u"result"_s, int(FS_NOMORE)},
                   {u"bytes"_s, QJsonObject {{u"size"_s, 10}, {u"seed"_s, 1}}}});
    m_closesBefore = m_fake.calls(u"closeFile"_s).size();
}

void TestRemoteFile::answerOpen(FileSystemResult result, int handle)
{
    m_fake.answer(u"openFile"_s, {{u"result"_s, int(result)}, {u"handle"_s, handle}});
}

QVector<int> TestRemoteFile::closedHandles()
{
    QVector<int> handles;
    for (const FakeController::Call &call : m_fake.calls(u"closeFile"_s).sliced(m_closesBefore)) {
        handles.append(call.arguments.first().toInt());
    }
    return handles;
}

void TestRemoteFile::closesItsHandleWhenItGoes()
{
    answerOpen(FS_OK, 5);
    Link link;
    QVERIFY(link.connectTo(m_fake.port()));
    {
        FcpRemoteFile file(link.proxy());
        QCOMPARE(file.isOpen(), false);
        QCOMPARE(file.open(u"/a"_s, false, false), FS_OK);
        QCOMPARE(file.isOpen(), true);
        QByteArrayView bytes;
        QCOMPARE(file.pull(10, bytes), FS_NOMORE);
        QCOMPARE(bytes.toByteArray(), patternBytes(10, 1));
        QCOMPARE(closedHandles(), QVector<int>());
    }
    QCOMPARE(closedHandles(), QVector<int>({5}));
}

void TestRemoteFile::openingAgainClosesTheFirst()
{
    Link link;
    QVERIFY(link.connectTo(m_fake.port()));
    FcpRemoteFile file(link.proxy());
    answerOpen(FS_OK, 5);
    QCOMPARE(file.open(u"/a"_s, true, true), FS_OK);
    answerOpen(FS_OK, 6);
    QCOMPARE(file.open(u"/b"_s, true, true), FS_OK);
    QCOMPARE(closedHandles(), QVector<int>({5}));
    m_fake.answer(u"closeFile"_s, {{u"result"_s, int(FS_NOMORE)}});
    QCOMPARE(file.close(), FS_NOMORE);
    QCOMPARE(file.close(), FS_ERROR);
    QCOMPARE(closedHandles(), QVector<int>({5, 6}));
}

void TestRemoteFile::refusedOpenLeavesNothingToClose_data()
{
    QTest::addColumn<int>("result");
    QTest::newRow("error") << int(FS_ERROR);
    QTest::newRow("exists") << int(FS_EXISTS);
    QTest::newRow("no more") << int(FS_NOMORE);
}

void TestRemoteFile::refusedOpenLeavesNothingToClose()
{
    QFETCH(int, result);
    Link link;
    QVERIFY(link.connectTo(m_fake.port()));
    FcpRemoteFile file(link.proxy());
    answerOpen(FileSystemResult(result), 5);
    QCOMPARE(int(file.open(u"/a"_s, true, false)), result);
    QCOMPARE(file.isOpen(), false);
    QCOMPARE(file.push("x", 1), FS_ERROR);
    QCOMPARE(file.close(), FS_ERROR);
    QCOMPARE(closedHandles(), QVector<int>());
}

void TestRemoteFile::failureIsNeverOk_data()
{
    QTest::addColumn<QString>("operation");
    QTest::newRow("open") << u"openFile"_s;
    QTest::newRow("push") << u"pushFileContents"_s;
    QTest::newRow("pull") << u"pullFileContents"_s;
    QTest::newRow("close") << u"closeFile"_s;
}

void TestRemoteFile::failureIsNeverOk()
{
    QFETCH(QString, operation);
    answerOpen(FS_OK, 5);
    m_fake.answer(operation, {{u"raise"_s, u"UNKNOWN"_s}});
    Link link;
    QVERIFY(link.connectTo(m_fake.port()));
    FcpRemoteFile file(link.proxy());
    const FileSystemResult opened = file.open(u"/a"_s, true, true);
    QCOMPARE(opened, operation == u"openFile"_s ? FS_ERROR : FS_OK);
    QByteArrayView bytes = "old";
    if (operation == u"pushFileContents"_s) {
        QCOMPARE(file.push("x", 1), FS_ERROR);
    } else if (operation == u"pullFileContents"_s) {
        QCOMPARE(file.pull(1, bytes), FS_ERROR);
        QVERIFY(bytes.isEmpty());
    } else if (operation == u"closeFile"_s) {
        QCOMPARE(file.close(), FS_ERROR);
    }
    QCOMPARE(link.losses(), 1);
    // Without a link, too.
    QCOMPARE(file.push("x", 1), FS_ERROR);
    QCOMPARE(file.pull(1, bytes), FS_ERROR);
    QCOMPARE(file.close(), FS_ERROR);
    QCOMPARE(file.open(u"/a"_s, true, true), FS_ERROR);
    QCOMPARE(link.losses(), 1);
}

void TestRemoteFile::staysWithItsLink()
{
    answerOpen(FS_OK, 5);
    FakeController other;
    other.start();
    Link link;
    QVERIFY(link.connectTo(m_fake.port()));
    FcpRemoteFile file(link.proxy());
    QCOMPARE(file.open(u"/a"_s, true, true), FS_OK);
    QVERIFY(link.connectTo(other.port()));
    QCOMPARE(file.push("x", 1), FS_ERROR);
    file.close();
    QCOMPARE(link.losses(), 0);
    QVERIFY(other.calls(u"pushFileContents"_s).isEmpty());
    QVERIFY(other.calls(u"closeFile"_s).isEmpty());
}

QTEST_GUILESS_MAIN(TestRemoteFile)
#include "tst_remotefile.moc"

#include <QElapsedTimer>
#include <QTest>

#include <functional>
#include <limits>

#include "FakeController.h"
#include "GuardedTest.h"
#include "Link.h"
#include "Pattern.h"
#include "Wrappers.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 AtOnceMs = 50;

void addWrapperRows()
{
    QTest::addColumn<QString>("operation");
    for (const Wrapper &row : wrappers()) {
        QTest::newRow(qPrintable(row.operation)) << row.operation;
    }
}

} // namespace

/** What the proxy's methods give, with a controller that answers, fails, or is not there. */
class TestProxy : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_fake.start(); }

    void withoutLinkGivesZeroAndNoSignal_data() { addWrapperRows(); }
    void withoutLinkGivesZeroAndNoSignal();
    void carriesArgumentsAndResults_data() { addWrapperRows(); }
    void carriesArgumentsAndResults();
    void failureGivesZeroAndOneLoss_data() { addWrapperRows(); }
    void failureGivesZeroAndOneLoss();

    void resourceRequestStatusHasNoGuard();
    void connectingFails_data();
    void connectingFails();
    void connectingFailsWhenRegistrationDoes();
    void remembersHostAsGiven_data();
    void remembersHostAsGiven();
    void staysConnectedAfterDisconnecting();
    void failingUnregistrationLosesTheLink();
    void connectingAgainRegistersAgain();
    void destructionUnregisters();

    void refusesWhatCanNotTravel_data();
    void refusesWhatCanNotTravel();
    void oddNamesTravelBackUnchanged();
    void brokenTextIsNoFailure();
    void readsImageOf32MiB();
    void refusesMoreBytesThanWanted();
    void recordTypesHaveNames();

private:
    FakeController m_fake;
};

void TestProxy::withoutLinkGivesZeroAndNoSignal()
{
    QFETCH(QString, operation);
    const Wrapper &row = wrapper(operation);
    const auto before = m_fake.calls().size();
    const Link link;
    QCOMPARE(link->isConnected(), false);
    const QVariantList outcome = row.call(*link.proxy());
    QVERIFY2(outcome == row.zero, qPrintable(describe(outcome)));
    link->disconnectFromFCP();
    QCOMPARE(link.losses(), 0);
    QCOMPARE(m_fake.calls().size(), before);
}

void TestProxy::carriesArgumentsAndResults()
{
    QFETCH(QString, operation);
    const Wrapper &row = wrapper(operation);
    m_fake.answer(operation, row.answer);
    Link link;
    QVERIFY(link.connectTo(m_fake.port()));
    const auto before = m_fake.calls(operation).size();

    const QVariantList outcome = row.call(*link.proxy());

    QVERIFY2(outcome == row.value, qPrintable(describe(outcome)));
    const auto calls = m_fake.calls(operation);
    QCOMPARE(calls.size(), before + 1);
    QCOMPARE(calls.last().arguments, row.arguments);
    QCOMPARE(link.losses(), 0);
    QCOMPARE(link->isConnected(), true);
    QCOMPARE(link->lastError(), QString());
}

void TestProxy::failureGivesZeroAndOneLoss()
{
    QFETCH(QString, operation);
    const Wrapper &row = wrapper(operation);
    m_fake.answer(operation, {{u"raise"_s, u"UNKNOWN"_s}});
    Link link;
    QVERIFY(link.connectTo(m_fake.port()));

    const QVariantList outcome = row.call(*link.proxy());

    QVERIFY2(outcome == row.zero, qPrintable(describe(outcome)));
    QCOMPARE(link.losses(), 1);
    QCOMPARE(link->isConnected(), false);
    QVERIFY(!link->lastError().isEmpty());

    const auto before = m_fake.calls().size();
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(row.call(*link.proxy()), row.zero);
    QCOMPARE_LT(timer.elapsed(), AtOnceMs);
    QCOMPARE(link.losses(), 1);
    QCOMPARE(m_fake.calls().size(), before);
}

void TestProxy::resourceRequestStatusHasNoGuard()
{
    Link link;
    QVERIFY_THROWS_EXCEPTION(CORBA::SystemException, link->getResourceRequestStatus(1));
    QVERIFY(link.connectTo(m_fake.port()));
    m_fake.answer(u"getResourceRequestStatus"_s, {{u"result"_s, 3}});
    QCOMPARE(link->getResourceRequestStatus(8), 3L);
    QCOMPARE(m_fake.calls(u"getResourceRequestStatus"_s).last().arguments, QJsonArray {8});

    m_fake.answer(u"getResourceRequestStatus"_s, {{u"raise"_s, u"NO_PERMISSION"_s}});
    QVERIFY_THROWS_EXCEPTION(CORBA::NO_PERMISSION, link->getResourceRequestStatus(8));
    QCOMPARE(link.losses(), 0);
    QCOMPARE(link->isConnected(), true);
}

void TestProxy::connectingFails_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<int>("port");
    const QString loopback = u"127.0.0.1"_s;
    const int good = m_fake.port();
    QTest::newRow("nobody listens") << loopback << 1;
    QTest::newRow("port 0") << loopback << 0;
    QTest::newRow("negative port") << loopback << -1;
    QTest::newRow("port too large") << loopback << good + 65536;
    QTest::newRow("no host") << QString() << good;
    QTest::newRow("host that is none") << u"127.0.0.256"_s << good;
    QTest::newRow("host with a slash") << u"127.0.0.1/x"_s << good;
    QTest::newRow("host with a NUL") << u"127.0.0.1\0.example"_s << good;
}

void TestProxy::connectingFails()
{
    QFETCH(QString, host);
    QFETCH(int, port);
    const Link link;
    QCOMPARE(link->connectToFCP(host, port), false);
    QCOMPARE(link.losses(), 1);
    QCOMPARE(link->isConnected(), false);
    QCOMPARE(link->clientId(), 0);
    QCOMPARE(link->getHost(), host);
    QVERIFY(!link->lastError().isEmpty());
}

void TestProxy::connectingFailsWhenRegistrationDoes()
{
    Link link;
    QVERIFY(link.connectTo(m_fake.port()));
    m_fake.answerInTurn(u"registerApp"_s, {{{u"raise"_s, u"NO_PERMISSION"_s}}, {}});
    QCOMPARE(link.connectTo(m_fake.port()), false);
    QCOMPARE(link->isConnected(), false);
    QCOMPARE(link.losses(), 1);
    QVERIFY(link.connectTo(m_fake.port()));
    QCOMPARE(link->lastError(), QString());
    QCOMPARE(link.losses(), 1);
}

void TestProxy::remembersHostAsGiven_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<bool>("local");
    QTest::newRow("localhost") << u"localhost"_s << true;
    QTest::newRow("address") << u"127.0.0.1"_s << false;
    QTest::newRow("capitals") << u"LOCALHOST"_s << false;
}

void TestProxy::remembersHostAsGiven()
{
    QFETCH(QString, host);
    const Link link;
    QCOMPARE(link->isLocal(), false);
    QVERIFY(link->connectToFCP(host, m_fake.port()));
    QCOMPARE(link->getHost(), host);
    QTEST(link->isLocal(), "local");
}

void TestProxy::staysConnectedAfterDisconnecting()
{
    m_fake.answerInTurn(u"registerApp"_s, {{{u"result"_s, -77}}, {}});
    Link link;
    QVERIFY(link.connectTo(m_fake.port()));
    QCOMPARE(link->clientId(), -77);
    link->disconnectFromFCP();
    QCOMPARE(m_fake.calls(u"unregisterApp"_s).last().arguments, QJsonArray {-77});
    QCOMPARE(link->isConnected(), true);
    QCOMPARE(link.losses(), 0);
}

void TestProxy::failingUnregistrationLosesTheLink()
{
    Link link;
    QVERIFY(link.connectTo(m_fake.port()));
    m_fake.answerInTurn(u"unregisterApp"_s, {{{u"raise"_s, u"UNKNOWN"_s}}, {}});
    link->disconnectFromFCP();
    QCOMPARE(link.losses(), 1);
    QCOMPARE(link->isConnected(), false);
}

void TestProxy::connectingAgainRegistersAgain()
{
    Link link;
    QCOMPARE(link->linkSerial(), quint64(0));
    QCOMPARE(link->millisecondsSinceHeard(), qint64(-1));
    QVERIFY(link.connectTo(m_fake.port()));
    const quint64 first = link->linkSerial();
    const qint32 firstId = link->clientId();
    QCOMPARE_GE(link->millisecondsSinceHeard(), qint64(0));
    QVERIFY(link.connectTo(m_fake.port()));
    QCOMPARE(link->linkSerial(), first + 1);
    QVERIFY(link->clientId() != firstId);
    QCOMPARE(link.losses(), 0);

    m_fake.sendEvents("RESOURCE_STATUS", 2);
    m_fake.sendEvents("CLIENT_STATUS");
    QTRY_VERIFY(link.events().contains(CLIENT_STATUS));
    QCOMPARE(link.events(), QVector<int>({RESOURCE_STATUS, RESOURCE_STATUS, CLIENT_STATUS}));
}

void TestProxy::destructionUnregisters()
{
    m_fake.answerInTurn(u"registerApp"_s, {{{u"result"_s, 4711}}, {}});
    {
        Link link;
        QVERIFY(link.connectTo(m_fake.port()));
    }
    QCOMPARE(m_fake.calls(u"unregisterApp"_s).last().arguments, QJsonArray {4711});
    QCOMPARE(FcpAppCORBA::instance(), nullptr);
}

using Call = std::function<QVariant(FcpAppCORBA &)>;
Q_DECLARE_METATYPE(Call)

void TestProxy::refusesWhatCanNotTravel_data()
{
    static const QString bad = u"a\0b"_s;
    static const QString good = u"a"_s;
    constexpr long tooLarge = long(std::numeric_limits<qint32>::max()) + 1;
    constexpr long tooSmall = long(std::numeric_limits<qint32>::min()) - 1;
    static long number = 0;
    static char buffer[16];
    static QVector<FileSystemItem> items;

    QTest::addColumn<Call>("call");
    QTest::addColumn<bool>("isFileResult");
    const auto row = [](const char *name, const Call &call, bool isFileResult = false) {
        QTest::newRow(name) << call << isFileResult;
    };
    row("newDirectory", [](auto &p) { return p.newDirectory(bad); });
    row("rename, directory",
        [](auto &p) { return qint64(p.renameFileDirectory(bad, good, good)); });
    row("rename, old name", [](auto &p) { return qint64(p.renameFileDirectory(good, bad, good)); });
    row("rename, new name", [](auto &p) { return qint64(p.renameFileDirectory(good, good, bad)); });
    row("move, source", [](auto &p) { return qint64(p.moveFileDirectory(bad, good)); });
    row("move, destination", [](auto &p) { return qint64(p.moveFileDirectory(good, bad)); });
    row("copy", [](auto &p) { return qint64(p.copyFileDirectory(good, bad)); });
    row("delete", [](auto &p) { return qint64(p.deleteFileDirectory(bad)); });
    row("list, directory",
        [](auto &p) { return p.getFileSystemItems(bad, {}, QDir::Files, items); });
    row("list, pattern", [](auto &p) {
        return p.getFileSystemItems(good, {good, bad}, QDir::Files, items);
    });
    row("open", [](auto &p) { return int(p.openFile(bad, false, false, number)); });
    row("launch, name", [](auto &p) { return qint64(p.launchTest(bad, {})); });
    row("launch, argument", [](auto &p) { return qint64(p.launchTest(good, {good, bad})); });
    row("active tests", [](auto &p) {
        QVector<TestInformation> tests;
        p.getActiveTests(tests, bad);
        return int(tests.size());
    });
    row("number too large", [](auto &p) { return p.terminateTest(tooLarge, true); });
    row("number too small", [](auto &p) { return p.getTestTcpPort(tooSmall); });
    row(
        "handle too large", [](auto &p) { return int(p.closeFile(tooLarge)); }, true);
    row(
        "pull, too much wanted",
        [](auto &p) { return int(p.pullFileContents(1, tooLarge, number, buffer)); }, true);
    row(
        "pull, less than nothing wanted",
        [](auto &p) { return int(p.pullFileContents(1, -1, number, buffer)); }, true);
    row(
        "push, less than nothing", [](auto &p) { return int(p.pushFileContents(1, buffer, -1)); },
        true);
    row("request value", [](auto &p) { return qint64(p.requestResources({}, tooLarge)); });
}

void TestProxy::refusesWhatCanNotTravel()
{
    QFETCH(Call, call);
    QFETCH(bool, isFileResult);
    messages().allow(u"^not sent to the controller: "_s);
    // Were it to reach the controller, the answer would not be zero.
    for (const Wrapper &row : wrappers()) {
        m_fake.answer(row.operation, row.answer);
    }
    Link link;
    QVERIFY(link.connectTo(m_fake.port()));
    const auto before = m_fake.calls().size();
    const QVariant outcome = call(*link.proxy());
    const QVariant expected = isFileResult ? QVariant(int(FS_ERROR)) : QVariant(outcome.metaType());
    QVERIFY2(outcome == expected, qPrintable(describe({outcome})));
    QCOMPARE(m_fake.calls().size(), before);
    QCOMPARE(link.losses(), 0);
    QCOMPARE(link->isConnected(), true);
}

void TestProxy::oddNamesTravelBackUnchanged()
{
    // A name in ISO 8859-1, as an old card may carry it, beside one in UTF-8.
    const QString nameOnWire = QString::fromLatin1("Pr\xfc"
                                                   "fung \xc3\xbc");
    m_fake.answer(
        u"getFileSystemItems"_s,
        {{u"result"_s, true}, {u"list"_s, QJsonArray {QJsonObject {{u"name"_s, nameOnWire}}}}});
    Link link;
    QVERIFY(link.connectTo(m_fake.port()));
    QVector<FileSystemItem> items;
    QVERIFY(link->getFileSystemItems(u"/"_s, {}, QDir::Files, items));
    QCOMPARE(items.size(), 1);
    QCOMPARE(items.first().name, u"Pr"_s + QChar(0xdcfc) + u"fung ü"_s);
    link->deleteFileDirectory(items.first().name);
    QCOMPARE(m_fake.calls(u"deleteFileDirectory"_s).last().arguments, QJsonArray {nameOnWire});
    QCOMPARE(link.losses(), 0);
}

void TestProxy::brokenTextIsNoFailure()
{
    m_fake.answer(u"getController"_s,
                  {{u"controllerModel"_s, QString::fromLatin1("\xff\xfe!\xc3")},
                   {u"controllerSerial"_s, u"7"_s}});
    Link link;
    QVERIFY(link.connectTo(m_fake.port()));
    ControllerInformation controller;
    link->getController(controller);
    QVERIFY(controller.controllerModel.contains(u'!'));
    QCOMPARE(controller.controllerSerial, u"7"_s);
    QCOMPARE(link.losses(), 0);
}

void TestProxy::readsImageOf32MiB()
{
    constexpr qsizetype size = 32 * 1024 * 1024;
    const QJsonObject module {
        {u"moduleImage"_s, QJsonObject {{u"size"_s, qint64(size)}, {u"seed"_s, 9}}}};
    m_fake.answer(u"getModules"_s, {{u"list"_s, QJsonArray {module}}});
    Link link;
    QVERIFY(link.connectTo(m_fake.port()));
    QVector<ModuleInformation> modules;
    link->getModules(modules);
    QCOMPARE(modules.size(), 1);
    QVERIFY(modules.first().moduleImage == patternBytes(size, 9));
    QCOMPARE(link.losses(), 0);
}

void TestProxy::refusesMoreBytesThanWanted()
{
    m_fake.answer(
        u"pullFileContents"_s,
        {{u"result"_s, int(FS_OK)}, {u"bytes"_s, QJsonObject {{u"size"_s, 101}, {u"seed"_s, 1}}}});
    messages().allow(u"the controller sent 101 bytes where 100 were asked for"_s);
    Link link;
    QVERIFY(link.connectTo(m_fake.port()));
    QByteArray buffer(200, 'x');
    long got = -9;
    QCOMPARE(link->pullFileContents(1, 100, got, buffer.data()), FS_ERROR);
    QCOMPARE(got, 0L);
    QCOMPARE(buffer, QByteArray(200, 'x'));
    QCOMPARE(link.losses(), 0);
}

void TestProxy::recordTypesHaveNames()
{
    const Link link;
    for (const char *name : {"FileSystemItem", "ModuleInformation", "QVector<FileSystemItem>",
                             "QVector<ModuleGenOptionInformation>"}) {
        QVERIFY2(QMetaType::fromName(name).isValid(), name);
    }
}

QTEST_GUILESS_MAIN(TestProxy)
#include "tst_proxy.moc"

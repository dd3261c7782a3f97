#include <QElapsedTimer>
#include <QTest>
#include <QThread>

#include <corba/AppFcpCORBAImpl.h>

#include <memory>
#include <vector>

#include "Giop.h"
#include "GuardedTest.h"
#include "Link.h"
#include "SimulatorProcess.h"
#include "TcpProxy.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QVector<TcpProxy::Message> messagesOf(const TcpProxy &proxy, TcpProxy::Direction direction,
                                      const QByteArray &operation)
{
    QVector<TcpProxy::Message> result = proxy.recorded();
    result.removeIf([&](const TcpProxy::Message &message) {
        return message.direction != direction || message.operation != operation
            || message.type == Giop::MessageType::Reply;
    });
    return result;
}

} // namespace

/** What goes over which connection, as seen on the wire. */
class TestConnection : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void callsAndCallbacksShareOneConnection();
    void announcesTheOneAddressThatTheCallbackHas();
    void parallelCallsShareTheConnection();
    void eventsReachTheGuiThreadInOrder();
    void shutDownReachesTheCallbackObject();
    void idleLinkKeepsItsEvents();
    void replacedLinkLeavesNoConnection();
    void disconnectedClientGetsNoEvents();

private:
    TcpProxy m_proxy;
    SimulatorProcess m_simulator {m_proxy.port()};
};

void TestConnection::initTestCase()
{
    m_simulator.start();
    m_proxy.setController(m_simulator.port());
}

void TestConnection::callsAndCallbacksShareOneConnection()
{
    m_proxy.clearRecord();
    const int before = m_proxy.acceptedConnections();
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    link->isMaximumClientCountOK();
    m_simulator.sendEvents("MODULE_STATUS", 3);
    QTRY_COMPARE(link.events().size(), 3);

    QCOMPARE(m_proxy.acceptedConnections(), before + 1);
    const auto events = messagesOf(m_proxy, TcpProxy::Direction::ToClient, "Event");
    QCOMPARE(events.size(), 3);
    QCOMPARE(events.first().connection, before + 1);
    const auto request = Giop::parseRequest(events.first().bytes);
    QVERIFY(request);
    QCOMPARE(request->responseExpected, false);
}

void TestConnection::announcesTheOneAddressThatTheCallbackHas()
{
    m_proxy.clearRecord();
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QVector<Giop::Address> announced;
    std::optional<Giop::Reference> callback;
    for (const TcpProxy::Message &message : m_proxy.recorded()) {
        const auto request = Giop::parseRequest(message.bytes);
        announced += request ? Giop::listenPoints(*request) : QVector<Giop::Address>();
        if (request && request->operation == "registerApp") {
            callback = Giop::callbackReference(*request);
        }
    }
    QVERIFY(callback);
    QCOMPARE(callback->typeId, "IDL:AppFcpInterfaceCORBA:1.0");
    QCOMPARE(callback->addresses.size(), 1);
    QCOMPARE(announced, callback->addresses);
    QCOMPARE(announced.first().port, link->getCorba()->listenPort());
}

void TestConnection::parallelCallsShareTheConnection()
{
    constexpr int threadCount = 12;
    const int before = m_proxy.acceptedConnections();
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    // Each call takes this long: one after another they would take threadCount times as long.
    constexpr auto delay = 200ms;
    m_proxy.strike({.action = TcpProxy::Action::Delay,
                    .direction = TcpProxy::Direction::ToClient,
                    .operation = "isMaximumClientCountOK",
                    .times = 1,
                    .delay = delay});
    QElapsedTimer timer;
    timer.start();
    std::vector<std::unique_ptr<QThread>> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back(QThread::create([&] { link->isMaximumClientCountOK(); }));
        threads.back()->start();
    }
    for (const auto &thread : threads) {
        QVERIFY(thread->wait(20'000));
    }
    QCOMPARE_LT(timer.elapsed(), (delay * threadCount / 2).count());
    QCOMPARE(m_proxy.acceptedConnections(), before + 1);
    QCOMPARE(link.losses(), 0);
    m_proxy.behave();
}

void TestConnection::eventsReachTheGuiThreadInOrder()
{
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QVector<int> expected;
    int onOtherThread = 0;
    connect(link.proxy(), &FcpAppCORBA::fcpEventReceived, this,
            [&] { onOtherThread += QThread::currentThread() != thread() ? 1 : 0; });
    for (int i = 0; i < 100; ++i) {
        m_simulator.sendEvents("RESOURCE_STATUS", 2);
        m_simulator.sendEvents("TEST_STATUS");
        expected << RESOURCE_STATUS << RESOURCE_STATUS << TEST_STATUS;
    }
    QTRY_COMPARE_GE(link.events().size(), expected.size());
    QCOMPARE(link.events(), expected);
    QCOMPARE(onOtherThread, 0);
}

void TestConnection::shutDownReachesTheCallbackObject()
{
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    QVector<bool> flags;
    connect(link->getCallback(), &AppFcpCORBAImpl::fcpShutDownReceived, this,
            [&](bool canCancel) { flags.append(canCancel); });
    m_simulator.order("shutdown 1");
    m_simulator.order("shutdown 0");
    QTRY_COMPARE(flags, QVector<bool>({true, false}));
}

void TestConnection::idleLinkKeepsItsEvents()
{
    // Both ORBs look for idle connections every second, and close those of two seconds. Their
    // defaults make that two and three minutes.
    const QVector<QString> hasty = {u"-ORBscanGranularity"_s,  u"1"_s,
                                    u"-ORBoutConScanPeriod"_s, u"2"_s,
                                    u"-ORBinConScanPeriod"_s,  u"2"_s};
    SimulatorProcess simulator(m_proxy.port(), hasty);
    simulator.start();
    m_proxy.setController(simulator.port());
    const int before = m_proxy.acceptedConnections();
    {
        Link link(20s, hasty);
        QVERIFY(link.connectTo(m_proxy.port()));
        QElapsedTimer quiet;
        quiet.start();
        QTRY_COMPARE_GT_WITH_TIMEOUT(quiet.elapsed(), 6000, 10'000);
        QCOMPARE(m_proxy.openConnections(), 1);
        simulator.sendEvents("MODULE_STATUS");
        QTRY_VERIFY(link.events().contains(MODULE_STATUS));
        QCOMPARE(m_proxy.acceptedConnections(), before + 1);
        QCOMPARE(link.losses(), 0);
    }
    m_proxy.setController(m_simulator.port());
}

void TestConnection::replacedLinkLeavesNoConnection()
{
    Link link;
    for (int i = 0; i < 3; ++i) {
        QVERIFY(link.connectTo(m_proxy.port()));
    }
    QTRY_COMPARE(m_proxy.openConnections(), 1);
    QCOMPARE(link.losses(), 0);
}

void TestConnection::disconnectedClientGetsNoEvents()
{
    Link watched;
    QVERIFY(watched.connectTo(m_proxy.port()));
    watched->disconnectFromFCP();
    m_simulator.sendEvents("MODULE_STATUS");
    QVERIFY(watched.connectTo(m_proxy.port()));
    m_simulator.sendEvents("TEST_STATUS");
    QTRY_VERIFY(!watched.events().isEmpty());
    QCOMPARE(watched.events(), QVector<int>({TEST_STATUS}));
}

QTEST_GUILESS_MAIN(TestConnection)
#include "tst_connection.moc"

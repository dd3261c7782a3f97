#include <QElapsedTimer>
#include <QTest>

#include <cstdio>
#include <functional>

#include "FakeController.h"
#include "GuardedTest.h"
#include "Link.h"
#include "Poll.h"
#include "SimulatorProcess.h"
#include "TcpProxy.h"
#include "Wrappers.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using Action = TcpProxy::Action;
using Direction = TcpProxy::Direction;

namespace {

constexpr std::chrono::milliseconds CallTimeOut = 400ms;
constexpr qint64 AtOnceMs = 50;

/// One wrapper for each shape of result.
const QStringList Shapes = {u"getPorts"_s,         u"isMaximumClientCountOK"_s, u"terminateTest"_s,
                            u"pushFileContents"_s, u"newDirectory"_s,           u"getController"_s};

} // namespace

/** What becomes of a call, of the link and of its events when something breaks. */
class TestFaults : public GuardedTest
{
    Q_OBJECT

public:
    struct Fault
    {
        QString name;
        bool hangs = false; ///< until the call's time-out
        /// How often the controller carries the call out: never, once, or it may be either.
        enum { Never, Once, MaybeLater } executes = Never;
        std::function<void(TestFaults &, const QByteArray &operation)> cause;
    };

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void callFails_data();
    void callFails();
    void registrationFails_data();
    void registrationFails();
    void unguardedCallThrowsAndTheNextOneLosesTheLink();
    void deadRegistrationIsNotHeard();
    void lateReplyIsNotTakenForAnother();
    void slowLinkThatAnswersInTimeIsKept();

private:
    static const QVector<Fault> &faults();
    void strike(Action action, Direction direction, const QByteArray &operation);
    void checkEventsArriveOnce(Link &link);

    TcpProxy m_proxy;
    SimulatorProcess m_simulator {m_proxy.port()};
    QMap<int, QStringList> m_outcomes;
};

Q_DECLARE_METATYPE(const TestFaults::Fault *)

void TestFaults::initTestCase()
{
    m_simulator.start();
    m_proxy.setController(m_simulator.port());
}

void TestFaults::init()
{
    GuardedTest::init();
    m_proxy.behave();
}

void TestFaults::strike(Action action, Direction direction, const QByteArray &operation)
{
    m_proxy.strike({.action = action, .direction = direction, .operation = operation});
}

const QVector<TestFaults::Fault> &TestFaults::faults()
{
    static const auto onRequest = [](Action action) {
        return [action](TestFaults &test, const QByteArray &operation) {
            test.strike(action, Direction::ToController, operation);
        };
    };
    static const auto onReply = [](Action action) {
        return [action](TestFaults &test, const QByteArray &operation) {
            test.strike(action, Direction::ToClient, operation);
        };
    };
    static const auto cut = [](TcpProxy::Ending ending, bool refuse) {
        return [ending, refuse](TestFaults &test, const QByteArray &) {
            test.m_proxy.setListening(!refuse);
            test.m_proxy.cutConnections(ending);
        };
    };
    static const QVector<Fault> all = {
        {u"refused"_s, false, Fault::Never, cut(TcpProxy::Ending::Reset, true)},
        {u"closed while idle"_s, false, Fault::Never, cut(TcpProxy::Ending::Close, false)},
        {u"reset before the request"_s, false, Fault::Never, onRequest(Action::ResetBefore)},
        {u"closed inside the request"_s, false, Fault::Never, onRequest(Action::CloseInside)},
        {u"reset inside the reply"_s, false, Fault::Once, onReply(Action::ResetInside)},
        {u"reply truncated"_s, false, Fault::Once, onReply(Action::CloseInside)},
        {u"garbage for a reply"_s, false, Fault::Once, onReply(Action::BreakMagic)},
        {u"reply announces 2 GB"_s, true, Fault::Once, onReply(Action::AnnounceTwoGigabytes)},
        {u"no reply"_s, true, Fault::Once, onReply(Action::Swallow)},
        // The request arrives when the hole is lifted, or the controller finds the caller gone.
        {u"black hole"_s, true, Fault::MaybeLater,
         [](TestFaults &test, const QByteArray &) { test.m_proxy.setHole(true); }},
        {u"controller frozen"_s, true, Fault::MaybeLater,
         [](TestFaults &test, const QByteArray &) { test.m_simulator.freeze(); }},
        {u"controller restarted"_s, false, Fault::Never,
         [](TestFaults &test, const QByteArray &) {
             test.m_simulator.kill();
             test.m_simulator.start();
         }},
    };
    return all;
}

void TestFaults::checkEventsArriveOnce(Link &link)
{
    link.clearEvents();
    m_simulator.sendEvents("TEST_STATUS", 2);
    m_simulator.sendEvents("MODULE_STATUS");
    QVERIFY(pollUntil([&] { return link.events().contains(MODULE_STATUS); }));
    // That clients come and go is an event too.
    QCOMPARE(link.events().count(TEST_STATUS), 2);
}

void TestFaults::callFails_data()
{
    QTest::addColumn<const Fault *>("fault");
    QTest::addColumn<QString>("operation");
    for (const Fault &fault : faults()) {
        for (const QString &operation : Shapes) {
            QTest::addRow("%s: %s", qPrintable(fault.name), qPrintable(operation))
                << &fault << operation;
        }
    }
}

void TestFaults::callFails()
{
    QFETCH(const Fault *, fault);
    QFETCH(QString, operation);
    const Wrapper &row = wrapper(operation);
    const QByteArray name = operation.toLatin1();
    Link link(fault->hangs ? CallTimeOut : 20s);
    QVERIFY(link.connectTo(m_proxy.port()));
    const auto callsBefore = m_simulator.calls(name).size();
    fault->cause(*this, name);

    QElapsedTimer timer;
    timer.start();
    QVariantList outcome = row.call(*link.proxy());
    const qint64 elapsed = timer.elapsed();
    QVERIFY2(outcome == row.zero, qPrintable(describe(outcome)));
    QCOMPARE(link.losses(), 1);
    QCOMPARE(link->isConnected(), false);
    QVERIFY(!link->lastError().isEmpty());
    if (fault->hangs) {
        QCOMPARE_GE(elapsed, CallTimeOut.count() - 10);
    }
    QCOMPARE_LT(elapsed, (fault->hangs ? CallTimeOut + 2s : 2s).count());

    timer.start();
    outcome = row.call(*link.proxy());
    QCOMPARE_LT(timer.elapsed(), AtOnceMs);
    QVERIFY2(outcome == row.zero, qPrintable(describe(outcome)));

    m_simulator.thaw();
    m_proxy.behave();
    QVERIFY(link.connectTo(m_proxy.port()));
    checkEventsArriveOnce(link);
    QCOMPARE(link.losses(), 1);
    // Nothing was sent again behind the caller's back.
    const auto calls = m_simulator.calls(name).size() - callsBefore;
    QCOMPARE_GE(calls, fault->executes == Fault::Once ? 1 : 0);
    QCOMPARE_LE(calls, fault->executes == Fault::Never ? 0 : 1);
    m_outcomes[int(fault - faults().constData())].append(u"%1 ms"_s.arg(elapsed));
}

void TestFaults::registrationFails_data()
{
    QTest::addColumn<const Fault *>("fault");
    for (const Fault &fault : faults()) {
        const bool beforeTheCall =
            fault.name.contains(u"idle"_s) || fault.name.contains(u"restarted"_s);
        if (!beforeTheCall) {
            QTest::addRow("%s", qPrintable(fault.name)) << &fault;
        }
    }
}

void TestFaults::registrationFails()
{
    QFETCH(const Fault *, fault);
    Link link(fault->hangs ? CallTimeOut : 20s);
    fault->cause(*this, "registerApp");
    QCOMPARE(link.connectTo(m_proxy.port()), false);
    QCOMPARE(link.losses(), 1);
    QCOMPARE(link->isConnected(), false);
    QVERIFY(!link->lastError().isEmpty());

    m_simulator.thaw();
    m_proxy.behave();
    QVERIFY(link.connectTo(m_proxy.port()));
    checkEventsArriveOnce(link);
    QCOMPARE(link.losses(), 1);
}

void TestFaults::unguardedCallThrowsAndTheNextOneLosesTheLink()
{
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    m_proxy.cutConnections(TcpProxy::Ending::Reset);
    QVERIFY_THROWS_EXCEPTION(CORBA::SystemException, link->getResourceRequestStatus(1));
    QCOMPARE(link.losses(), 0);
    QCOMPARE(link->isMaximumClientCountOK(), 0L);
    QCOMPARE(link.losses(), 1);
    QVERIFY_THROWS_EXCEPTION(CORBA::SystemException, link->getResourceRequestStatus(1));
    QCOMPARE(link.losses(), 1);
}

void TestFaults::deadRegistrationIsNotHeard()
{
    // This controller never forgets a client, so it calls both registrations from then on.
    FakeController controller(m_proxy.port());
    controller.start();
    m_proxy.setController(controller.port());
    {
        Link link(CallTimeOut);
        QVERIFY(link.connectTo(m_proxy.port()));
        strike(Action::Swallow, Direction::ToClient, "isMaximumClientCountOK");
        link->isMaximumClientCountOK();
        QCOMPARE(link.losses(), 1);
        QVERIFY(link.connectTo(m_proxy.port()));
        controller.sendEvents("TEST_STATUS", 2);
        controller.sendEvents("CLIENT_STATUS");
        QVERIFY(pollUntil([&] { return link.events().contains(CLIENT_STATUS); }));
        QCOMPARE(link.events(), QVector<int>({TEST_STATUS, TEST_STATUS, CLIENT_STATUS}));
    }
    m_proxy.setController(m_simulator.port());
}

void TestFaults::lateReplyIsNotTakenForAnother()
{
    FakeController controller(m_proxy.port());
    controller.start();
    m_proxy.setController(controller.port());
    controller.answerInTurn(
        u"isMaximumClientCountOK"_s,
        {{{u"result"_s, 1}, {u"delay"_s, 2 * qint64(CallTimeOut.count())}}, {{u"result"_s, 2}}});
    {
        Link link(CallTimeOut);
        QVERIFY(link.connectTo(m_proxy.port()));
        QCOMPARE(link->isMaximumClientCountOK(), 0L);
        QVERIFY(link.connectTo(m_proxy.port()));
        QCOMPARE(link->isMaximumClientCountOK(), 2L);
        QCOMPARE(link.losses(), 1);
    }
    QCOMPARE(controller.calls(u"isMaximumClientCountOK"_s).size(), 2);
    m_proxy.setController(m_simulator.port());
}

void TestFaults::slowLinkThatAnswersInTimeIsKept()
{
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    m_proxy.setRate(20'000);
    ControllerInformation controller;
    link->getController(controller);
    QVERIFY(!controller.controllerModel.isEmpty());
    QCOMPARE(link.losses(), 0);
}

void TestFaults::cleanupTestCase()
{
    std::printf(
        "\nHow long a call lasts until it gives its zero, by fault. Each of them: exactly one\n"
        "disconnectCatched(-1), later calls return at once, connecting again brings each\n"
        "event back once, nothing is sent twice.\n\n| fault | carried out |");
    for (const QString &operation : Shapes) {
        std::printf(" %s |", qPrintable(operation));
    }
    std::printf("\n|---|---|%s\n", QByteArray("---|").repeated(Shapes.size()).constData());
    for (auto row = m_outcomes.cbegin(); row != m_outcomes.cend(); ++row) {
        const Fault &fault = faults().at(row.key());
        constexpr const char *executed[] = {"no", "once", "perhaps, later"};
        std::printf("| %s | %s | %s |\n", qPrintable(fault.name), executed[fault.executes],
                    qPrintable(row.value().join(u" | "_s)));
    }
    std::fflush(stdout);
}

QTEST_GUILESS_MAIN(TestFaults)
#include "tst_faults.moc"

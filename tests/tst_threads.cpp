#include <QTest>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

#include "FakeController.h"
#include "GuardedTest.h"
#include "Link.h"
#include "Poll.h"
#include "ProcessProbe.h"
#include "SimulatorProcess.h"
#include "Sockets.h"
#include "TcpProxy.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using Action = TcpProxy::Action;
using Direction = TcpProxy::Direction;

namespace {

constexpr int Callers = 8;

/// Threads that do the same thing again and again until they are joined.
class Crowd
{
public:
    Crowd(int size, std::function<void()> deed)
    {
        for (int i = 0; i < size; ++i) {
            m_threads.emplace_back([this, deed] {
                while (!m_enough) {
                    deed();
                }
            });
        }
    }
    Crowd(const Crowd &) = delete;
    Crowd &operator=(const Crowd &) = delete;
    ~Crowd() { join(); }

    void join()
    {
        m_enough = true;
        for (std::thread &thread : m_threads) {
            thread.join();
        }
        m_threads.clear();
    }

private:
    std::atomic<bool> m_enough = false;
    std::vector<std::thread> m_threads;
};

} // namespace

/** Many threads on one link, which is lost and made again under them. */
class TestThreads : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void eachLostLinkIsReportedOnce();
    void lateFailureDoesNotDropANewerLink();
    void callsThatTimeOutTogetherAreOneLoss();
    void timeOutOfOneCallIsOneLossForAll();
    void concurrentConnectingLeavesOneRegistration();
    void failingConnectIsNoLossOfAnotherThreadsLink();
    void orbEndsUnderAFloodOfEvents();

private:
    TcpProxy m_proxy;
    FakeController m_controller {m_proxy.port()};
};

void TestThreads::initTestCase()
{
    m_controller.start();
    m_controller.answer(u"isMaximumClientCountOK"_s, {{u"result"_s, 1}});
    m_controller.answer(u"newDirectory"_s, {{u"result"_s, u"made"_s}});
}

void TestThreads::init()
{
    GuardedTest::init();
    m_proxy.behave();
    m_proxy.setController(m_controller.port());
}

void TestThreads::eachLostLinkIsReportedOnce()
{
    constexpr int rounds = 200;
    Link link;
    std::atomic<int> answers = 0;
    std::atomic<int> nonsense = 0;
    Crowd callers(Callers, [&] {
        QVector<PortInformation> ports;
        link->getPorts(ports);
        const QString made = link->newDirectory(u"x"_s);
        const long count = link->isMaximumClientCountOK();
        answers += count == 1 ? 1 : 0;
        nonsense += (count != 0 && count != 1) || (!made.isEmpty() && made != u"made"_s) ? 1 : 0;
        if (!link->isConnected()) {
            QThread::usleep(500);
        }
    });

    const int sockets = openSockets();
    QCOMPARE_GE(sockets, 2); // on which the ORB and the proxy listen
    for (int round = 0; round < rounds; ++round) {
        QVERIFY2(link.connectTo(m_proxy.port()),
                 qPrintable(u"round %1: %2"_s.arg(round).arg(link->lastError())));
        QCOMPARE(link->linkSerial(), quint64(round + 1));
        const int before = answers;
        QVERIFY(pollUntil([&] { return answers > before + Callers; }));
        switch (round % 4) {
        case 0:
            m_proxy.cutConnections(TcpProxy::Ending::Reset);
            break;
        case 1:
            m_proxy.cutConnections(TcpProxy::Ending::Close);
            break;
        case 2:
            m_proxy.strike({.action = Action::ResetInside, .direction = Direction::ToClient});
            break;
        default:
            m_proxy.strike({.action = Action::BreakMagic, .direction = Direction::ToClient});
            break;
        }
        QVERIFY(pollUntil([&] { return link.losses() > round; }));
        QCOMPARE(link->isConnected(), false);
        m_proxy.behave();
    }
    callers.join();
    QCOMPARE(link.losses(), rounds);
    QCOMPARE(nonsense, 0);
    // No connection of a lost link is left, on either side of the proxy.
    QTRY_COMPARE_LE_WITH_TIMEOUT(openSockets(), sockets, 10'000);
}

void TestThreads::lateFailureDoesNotDropANewerLink()
{
    FakeController older;
    older.start();
    older.answer(u"newDirectory"_s, {{u"delay"_s, 500}, {u"raise"_s, u"UNKNOWN"_s}});
    Link link;
    QVERIFY(link.connectTo(older.port()));
    QString made = u"not yet"_s;
    std::thread late([&] { made = link->newDirectory(u"x"_s); });
    QVERIFY(pollUntil([&] { return !older.calls(u"newDirectory"_s).isEmpty(); }));

    QVERIFY(link.connectTo(m_controller.port()));
    const quint64 newer = link->linkSerial();
    late.join();
    QCOMPARE(made, QString());
    QCOMPARE(link.losses(), 0);
    QCOMPARE(link->linkSerial(), newer);
    QCOMPARE(link->isMaximumClientCountOK(), 1L);
}

void TestThreads::callsThatTimeOutTogetherAreOneLoss()
{
    FakeController mute(m_proxy.port());
    mute.start();
    m_proxy.setController(mute.port());
    Link link(500ms);
    QVERIFY(link.connectTo(m_proxy.port()));
    m_proxy.setHole(true);
    std::atomic<int> zeros = 0;
    std::vector<std::thread> callers;
    for (int i = 0; i < Callers; ++i) {
        callers.emplace_back([&] { zeros += link->isMaximumClientCountOK() == 0 ? 1 : 0; });
    }
    for (std::thread &caller : callers) {
        caller.join();
    }
    QCOMPARE(zeros, Callers);
    QCOMPARE(link.losses(), 1);
}

void TestThreads::timeOutOfOneCallIsOneLossForAll()
{
    FakeController slow(m_proxy.port());
    slow.start();
    m_proxy.setController(slow.port());
    // The second of these is begun later and times out later; the first one's time-out takes the
    // connection away under it.
    slow.answer(u"newDirectory"_s, {{u"delay"_s, 3000}, {u"result"_s, u"late"_s}});
    slow.answer(u"isMaximumClientCountOK"_s, {{u"delay"_s, 3000}, {u"result"_s, 1}});
    Link link(1s);
    QVERIFY(link.connectTo(m_proxy.port()));
    QString made;
    std::thread first([&] { made = link->newDirectory(u"x"_s); });
    QVERIFY(pollUntil([&] { return !slow.calls(u"newDirectory"_s).isEmpty(); }));
    QCOMPARE(link->isMaximumClientCountOK(), 0L);
    first.join();
    QCOMPARE(made, QString());
    QCOMPARE(link.losses(), 1);
}

void TestThreads::concurrentConnectingLeavesOneRegistration()
{
    constexpr int connections = 40;
    Link link;
    std::atomic<int> made = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int k = 0; k < connections / 4; ++k) {
                made += link.connectTo(m_proxy.port()) ? 1 : 0;
                link->isMaximumClientCountOK();
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    QCOMPARE(made, connections);
    QCOMPARE(link.losses(), 0);
    QCOMPARE(link->linkSerial(), quint64(connections));
    m_controller.sendEvents("TEST_STATUS", 3);
    m_controller.sendEvents("CLIENT_STATUS");
    QTRY_VERIFY(link.events().contains(CLIENT_STATUS));
    QCOMPARE(link.events(), QVector<int>({TEST_STATUS, TEST_STATUS, TEST_STATUS, CLIENT_STATUS}));
}

void TestThreads::failingConnectIsNoLossOfAnotherThreadsLink()
{
    constexpr int rounds = 40;
    const quint16 nobodysPort = [] {
        const FileDescriptor socket = listenOn(0);
        return localPort(socket);
    }();
    Link link;
    std::atomic<int> failures = 0;
    std::thread failing([&] {
        for (int i = 0; i < rounds; ++i) {
            failures += link.connectTo(nobodysPort) ? 0 : 1;
        }
    });
    int made = 0;
    for (int i = 0; i < rounds; ++i) {
        made += link.connectTo(m_controller.port()) ? 1 : 0;
    }
    failing.join();
    QCOMPARE(failures, rounds);
    QCOMPARE(made, rounds);
    QCOMPARE_LE(link.losses(), failures.load());
    QVERIFY(link.connectTo(m_controller.port()));
    QCOMPARE(link->isMaximumClientCountOK(), 1L);
}

void TestThreads::orbEndsUnderAFloodOfEvents()
{
    SimulatorProcess simulator;
    simulator.start();
    for (int round = 0; round < 5; ++round) {
        const int threads = runningThreads();
        {
            Link link;
            QVERIFY(link.connectTo(simulator.port()));
            simulator.sendEvents("TEST_STATUS", 100'000);
            QTRY_VERIFY(!link.events().isEmpty());
        }
        QTRY_COMPARE(runningThreads(), threads);
    }
}

QTEST_GUILESS_MAIN(TestThreads)
#include "tst_threads.moc"

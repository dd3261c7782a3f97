#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <memory>
#include <thread>

#include <corba/VexLinkSupervisor.h>

#include "GuardedTest.h"
#include "Link.h"
#include "Poll.h"
#include "SimulatorProcess.h"
#include "TcpProxy.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using State = VexLinkSupervisor::State;
using States = QVector<State>;

namespace {

const QString Host = u"127.0.0.1"_s;

/// The longest time for which the event loop was kept from coming round, beyond the pauses that a
/// busy machine forces on a thread which only sleeps.
class StallMeter
{
public:
    StallMeter()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { m_loop.tick(); });
        m_timer.start(1);
        m_idler = std::thread([this] {
            Pauses pauses;
            while (!m_enough) {
                QThread::usleep(1000);
                pauses.tick();
                m_longestOfIdler = pauses.longest;
            }
        });
    }
    StallMeter(const StallMeter &) = delete;
    StallMeter &operator=(const StallMeter &) = delete;
    ~StallMeter()
    {
        m_enough = true;
        m_idler.join();
    }

    qint64 longestMs() const { return m_loop.longest - m_longestOfIdler; }

private:
    struct Pauses
    {
        Pauses() { since.start(); }
        void tick() { longest = std::max(longest, since.restart()); }

        QElapsedTimer since;
        qint64 longest = 0;
    };

    QTimer m_timer;
    Pauses m_loop;
    std::atomic<qint64> m_longestOfIdler = 0;
    std::atomic<bool> m_enough = false;
    std::thread m_idler;
};

/// A supervisor with short times, and what it has reported.
class Watch
{
public:
    explicit Watch(const Link &link)
        : m_supervisor(std::make_unique<VexLinkSupervisor>(link.proxy()))
    {
        m_supervisor->setInterval(100ms);
        m_supervisor->setSuspectAfter(150ms);
        m_supervisor->setAnswerTimeOut(700ms);
        m_supervisor->setRetryDelays(50ms, 200ms);
        QObject::connect(m_supervisor.get(), &VexLinkSupervisor::stateChanged, m_supervisor.get(),
                         [this](State state, const QString &reason, const QDateTime &since) {
                             note(state, reason, since);
                         });
        QObject::connect(m_supervisor.get(), &VexLinkSupervisor::restored, m_supervisor.get(),
                         [this] {
                             ++m_restored;
                             m_isWrong = m_isWrong || m_supervisor->state() != State::Connected;
                         });
    }

    VexLinkSupervisor *operator->() { return m_supervisor.get(); }
    void destroy() { m_supervisor.reset(); }

    /// Waits until the state was entered since the begin, or since forget().
    bool reaches(State state)
    {
        return pollUntil([&] { return m_states.contains(state); });
    }
    /// The states entered, but of the attempts that failed only the last one.
    States states() const
    {
        States result;
        for (const State state : m_states) {
            result.append(state);
            const States repeated = {State::Lost, State::Restoring, State::Lost, State::Restoring};
            if (result.size() >= 4 && result.sliced(result.size() - 4) == repeated) {
                result.resize(result.size() - 2);
            }
        }
        return result;
    }
    void forget() { m_states.clear(); }
    int restored() const { return m_restored; }
    /// A signal without a reason, with the time going back, or in a state that contradicts it.
    bool isWrong() const { return m_isWrong; }

private:
    void note(State state, const QString &reason, const QDateTime &since)
    {
        m_states.append(state);
        m_isWrong = m_isWrong || reason.isEmpty() || state != m_supervisor->state()
            || reason != m_supervisor->reason() || since != m_supervisor->since()
            || (m_since.isValid() && since < m_since);
        m_since = since;
    }

    std::unique_ptr<VexLinkSupervisor> m_supervisor;
    States m_states;
    QDateTime m_since;
    int m_restored = 0;
    bool m_isWrong = false;
};

} // namespace

/** What the supervisor reports and does when the controller stops, dies or comes back. */
class TestSupervisor : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void makesTheLink();
    void takesTheLinkThatIsThere();
    void replacesALinkToAnotherAddress();
    void frozenControllerIsLostAndRestored();
    void shortPauseIsNoLoss();
    void unreachableControllerIsLostAndRestored_data();
    void unreachableControllerIsLostAndRestored();
    void noticesAtOnceWhatOthersFind_data();
    void noticesAtOnceWhatOthersFind();
    void triesAgainWithGrowingDelays();
    void retryNowDoesNotWait();
    void stopEndsTheAttempts();
    void applicationMayReconnectItself();
    void reconnectingTogetherSubscribesOnce();
    void asksOnlyWhenNothingElseIsHeard();
    void canBeDestroyedWithACallInFlight();

private:
    void checkEventsArriveOnce(Link &link);
    void checkOneClient();

    TcpProxy m_proxy;
    SimulatorProcess m_simulator {m_proxy.port()};
};

void TestSupervisor::initTestCase()
{
    m_simulator.start();
    m_proxy.setController(m_simulator.port());
}

void TestSupervisor::init()
{
    GuardedTest::init();
    m_proxy.behave();
    m_simulator.thaw();
    if (!m_simulator.isRunning()) {
        m_simulator.start();
    }
}

void TestSupervisor::checkEventsArriveOnce(Link &link)
{
    link.clearEvents();
    m_simulator.sendEvents("TEST_STATUS", 2);
    m_simulator.sendEvents("MODULE_STATUS");
    QVERIFY(pollUntil([&] { return link.events().contains(MODULE_STATUS); }));
    QCOMPARE(link.events().count(TEST_STATUS), 2);
}

void TestSupervisor::checkOneClient()
{
    QVERIFY(pollUntil([&] { return m_simulator.command("clients").startsWith("ok clients 1 "); }));
}

void TestSupervisor::makesTheLink()
{
    Link link;
    Watch watch(link);
    QCOMPARE(watch->state(), State::Stopped);
    watch->start(Host, m_proxy.port());
    QVERIFY(watch.reaches(State::Connected));
    QCOMPARE(watch.states(), States({State::Restoring, State::Connected}));
    QCOMPARE(watch.restored(), 0);
    QVERIFY(!watch.isWrong());
    checkEventsArriveOnce(link);
}

void TestSupervisor::takesTheLinkThatIsThere()
{
    Link link;
    QVERIFY(link.connectTo(m_proxy.port()));
    const quint64 serial = link->linkSerial();
    Watch watch(link);
    watch->start(Host, m_proxy.port());
    QVERIFY(watch.reaches(State::Connected));
    QCOMPARE(watch.states(), States({State::Connected}));
    QCOMPARE(link->linkSerial(), serial);
}

void TestSupervisor::replacesALinkToAnotherAddress()
{
    SimulatorProcess other;
    other.start();
    Link link;
    QVERIFY(link.connectTo(other.port()));
    Watch watch(link);
    watch->start(Host, m_proxy.port());
    QVERIFY(watch.reaches(State::Connected));
    QCOMPARE(link->getPort(), int(m_proxy.port()));
    checkOneClient();
    checkEventsArriveOnce(link);
}

void TestSupervisor::frozenControllerIsLostAndRestored()
{
    Link link;
    Watch watch(link);
    watch->start(Host, m_proxy.port());
    QVERIFY(watch.reaches(State::Connected));
    watch.forget();

    const StallMeter meter;
    m_simulator.freeze();
    QVERIFY(watch.reaches(State::Lost));
    QCOMPARE(watch.states().first(2), States({State::Suspect, State::Lost}));
    QVERIFY(watch.reaches(State::Restoring));
    m_simulator.thaw();
    QVERIFY(pollUntil([&] { return watch.restored() > 0; }));

    QCOMPARE(watch.states(),
             States({State::Suspect, State::Lost, State::Restoring, State::Connected}));
    QCOMPARE_LT(meter.longestMs(), 100);
    checkEventsArriveOnce(link);
    checkOneClient();
    QCOMPARE(watch.restored(), 1);
    QVERIFY(!watch.isWrong());
}

void TestSupervisor::shortPauseIsNoLoss()
{
    Link link;
    Watch watch(link);
    watch->setAnswerTimeOut(20s);
    watch->start(Host, m_proxy.port());
    QVERIFY(watch.reaches(State::Connected));
    watch.forget();
    m_simulator.freeze();
    QVERIFY(watch.reaches(State::Suspect));
    m_simulator.thaw();
    QVERIFY(watch.reaches(State::Connected));
    QCOMPARE(watch.states(), States({State::Suspect, State::Connected}));
    QCOMPARE(watch.restored(), 0);
    QCOMPARE(link.losses(), 0);
    checkEventsArriveOnce(link);
}

void TestSupervisor::unreachableControllerIsLostAndRestored_data()
{
    QTest::addColumn<QString>("fault");
    QTest::newRow("killed and started again") << u"killed"_s;
    QTest::newRow("cable pulled and plugged in") << u"hole"_s;
    QTest::newRow("connection reset, address refused for a while") << u"refused"_s;
}

void TestSupervisor::unreachableControllerIsLostAndRestored()
{
    QFETCH(QString, fault);
    Link link;
    Watch watch(link);
    watch->start(Host, m_proxy.port());
    QVERIFY(watch.reaches(State::Connected));
    watch.forget();

    const StallMeter meter;
    if (fault == u"killed"_s) {
        m_simulator.kill();
    } else if (fault == u"hole"_s) {
        m_proxy.setHole(true);
    } else {
        m_proxy.setListening(false);
        m_proxy.cutConnections(TcpProxy::Ending::Reset);
    }
    QVERIFY(watch.reaches(State::Lost));
    QVERIFY(watch.reaches(State::Restoring));
    QCOMPARE_LT(meter.longestMs(), 100);
    if (fault == u"killed"_s) {
        m_simulator.start();
    } else {
        m_proxy.behave();
    }
    QVERIFY(pollUntil([&] { return watch.restored() > 0; }));

    States states = watch.states();
    states.removeAll(State::Suspect);
    QCOMPARE(states, States({State::Lost, State::Restoring, State::Connected}));
    checkEventsArriveOnce(link);
    checkOneClient();
    QCOMPARE(watch.restored(), 1);
    QVERIFY(!watch.isWrong());
}

void TestSupervisor::noticesAtOnceWhatOthersFind_data()
{
    QTest::addColumn<bool>("byACall");
    QTest::newRow("the application's call fails") << true;
    QTest::newRow("the peer hangs up") << false;
}

void TestSupervisor::noticesAtOnceWhatOthersFind()
{
    QFETCH(bool, byACall);
    Link link;
    Watch watch(link);
    watch->setInterval(1h);
    watch->start(Host, m_proxy.port());
    QVERIFY(watch.reaches(State::Connected));
    m_proxy.cutConnections(TcpProxy::Ending::Close);
    if (byACall) {
        link->isMaximumClientCountOK();
    }
    QVERIFY(pollUntil([&] { return watch.restored() == 1; }));
    QCOMPARE(link.losses(), 1);
    checkEventsArriveOnce(link);
}

void TestSupervisor::triesAgainWithGrowingDelays()
{
    m_proxy.setListening(false);
    Link link;
    Watch watch(link);
    watch->setRetryDelays(80ms, 320ms);
    QVector<QDateTime> attempts;
    QVector<QDateTime> failures;
    connect(watch.operator->(), &VexLinkSupervisor::stateChanged, this,
            [&](State state, const QString &, const QDateTime &since) {
                (state == State::Restoring ? attempts : failures).append(since);
            });
    watch->start(Host, m_proxy.port());
    QVERIFY(pollUntil([&] { return attempts.size() == 6; }));
    constexpr qint64 delays[] = {80, 160, 320, 320, 320};
    for (int i = 0; i < 5; ++i) {
        // Shortened by up to a quarter; a busy machine may be late.
        const qint64 waited = failures.at(i).msecsTo(attempts.at(i + 1));
        QCOMPARE_GE(waited, delays[i] * 3 / 4 - 2);
        QCOMPARE_LE(waited, delays[i] + 500);
    }
    QCOMPARE(watch.restored(), 0);
}

void TestSupervisor::retryNowDoesNotWait()
{
    m_proxy.setListening(false);
    Link link;
    Watch watch(link);
    watch->setRetryDelays(1h, 1h);
    watch->start(Host, m_proxy.port());
    QVERIFY(watch.reaches(State::Lost));
    m_proxy.behave();
    watch->retryNow();
    QVERIFY(watch.reaches(State::Connected));
    // There was no link before that could have been restored.
    QCOMPARE(watch.restored(), 0);
}

void TestSupervisor::stopEndsTheAttempts()
{
    Link link;
    Watch watch(link);
    watch->start(Host, m_proxy.port());
    QVERIFY(watch.reaches(State::Connected));
    m_proxy.setListening(false);
    watch.forget();
    m_proxy.cutConnections(TcpProxy::Ending::Reset);
    // Between two attempts.
    QVERIFY(pollUntil([&] {
        return watch->state() == State::Lost && watch.states().contains(State::Restoring);
    }));
    watch->stop();
    QCOMPARE(watch->state(), State::Stopped);
    watch.forget();
    m_proxy.behave();
    // Several times the longest delay between two attempts.
    QVERIFY(!pollUntil([&] { return link->isConnected(); }, 600ms));
    QCOMPARE(watch.states(), States());

    watch->start(Host, m_proxy.port());
    QVERIFY(watch.reaches(State::Connected));
    watch->stop();
    QCOMPARE(link->isConnected(), true);
    checkEventsArriveOnce(link);
}

void TestSupervisor::applicationMayReconnectItself()
{
    Link link;
    Watch watch(link);
    watch->setRetryDelays(1h, 1h);
    watch->start(Host, m_proxy.port());
    QVERIFY(watch.reaches(State::Connected));
    m_proxy.setListening(false);
    m_proxy.cutConnections(TcpProxy::Ending::Reset);
    QVERIFY(pollUntil(
        [&] { return watch->state() == State::Lost && watch.states().count(State::Lost) > 1; }));
    m_proxy.behave();
    QVERIFY(link.connectTo(m_proxy.port()));
    const quint64 serial = link->linkSerial();
    watch->retryNow();
    QVERIFY(watch.reaches(State::Connected));
    QCOMPARE(link->linkSerial(), serial);
    QVERIFY(pollUntil([&] { return watch.restored() == 1; }));
    checkOneClient();
    checkEventsArriveOnce(link);
}

void TestSupervisor::reconnectingTogetherSubscribesOnce()
{
    Link link;
    Watch watch(link);
    watch->start(Host, m_proxy.port());
    QVERIFY(watch.reaches(State::Connected));
    for (int round = 1; round <= 10; ++round) {
        m_proxy.cutConnections(TcpProxy::Ending::Reset);
        link->isMaximumClientCountOK();
        link.connectTo(m_proxy.port());
        QVERIFY(pollUntil([&] { return watch.restored() >= round; }));
        checkOneClient();
        checkEventsArriveOnce(link);
        // A link that was replaced while it was well is none that was lost.
        QCOMPARE(watch.restored(), link.losses());
    }
    QVERIFY(!watch.isWrong());
}

void TestSupervisor::asksOnlyWhenNothingElseIsHeard()
{
    Link link;
    Watch watch(link);
    watch->setInterval(400ms);
    watch->start(Host, m_proxy.port());
    QVERIFY(watch.reaches(State::Connected));
    const auto asked = [&] { return m_simulator.calls("isMaximumClientCountOK").size(); };
    const auto before = asked();
    QElapsedTimer busy;
    busy.start();
    while (busy.elapsed() < 1500) {
        m_simulator.sendEvents("TEST_STATUS");
        link.clearEvents();
        QVERIFY(pollUntil([&] { return !link.events().isEmpty(); }));
    }
    QCOMPARE(asked(), before);
    QVERIFY(pollUntil([&] { return asked() > before; }));
}

void TestSupervisor::canBeDestroyedWithACallInFlight()
{
    Link link;
    Watch watch(link);
    watch->start(Host, m_proxy.port());
    QVERIFY(watch.reaches(State::Connected));
    m_simulator.freeze();
    QVERIFY(watch.reaches(State::Suspect));
    QElapsedTimer timer;
    timer.start();
    watch.destroy();
    QCOMPARE_LT(timer.elapsed(), 3000);
    m_simulator.thaw();
    QCOMPARE(link.losses(), 1);
}

QTEST_GUILESS_MAIN(TestSupervisor)
#include "tst_supervisor.moc"

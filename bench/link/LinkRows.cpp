#include "LinkRows.h"

#include <QDir>
#include <QEventLoop>
#include <QTimer>

#include <unistd.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

#include "Connections.h"
#include "Processors.h"
#include "RawClient.h"
#include "Workbench.h"
#include "corba/AppFcpCORBAImpl.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int CallsInBlock = 200;
constexpr int Blocks = 25;

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<qsizetype>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The median time of a block of calls, with both ends where @p placements puts them.
double smallCalls(const QList<Placement> &placements, const std::function<double()> &block)
{
    const PinnedProcesses pinned(placements);
    std::vector<double> times(Blocks);
    std::generate(times.begin(), times.end(), block);
    return median(times);
}

void addSmallCallRow(Suite &suite, const LinkBench &bench, const QString &name, int clientProcessor,
                     int serverProcessor)
{
    const auto placed = [clientProcessor, serverProcessor](qint64 client, qint64 server) {
        return QList<Placement> {{client, clientProcessor}, {server, serverProcessor}};
    };
    const auto viaProxy = [bench, placed] {
        return smallCalls(placed(::getpid(), bench.simulator.id()), [bench] {
            return secondsOf([bench] {
                for (int i = 0; i < CallsInBlock; ++i) {
                    if (bench.connection.controller().isMaximumClientCountOK() == 0) {
                        throw std::runtime_error("the controller refuses");
                    }
                }
            });
        });
    };
    const auto viaTcp = [bench, placed] {
        return smallCalls(placed(::getpid(), bench.raw.peerId()), [bench] {
            return secondsOf([bench] {
                for (int i = 0; i < CallsInBlock; ++i) {
                    bench.raw.ping();
                }
            });
        });
    };
    const auto viaStub = [bench, placed] {
        return smallCalls(placed(bench.stub.id(), bench.simulator.id()),
                          [bench] { return bench.stub.ping(CallsInBlock); });
    };
    Comparison comparison;
    comparison.name = name;
    comparison.work = {CallsInBlock, u"µs"_s, 1e-6};
    comparison.subject = {u"proxy"_s, viaProxy, {}, {}};
    comparison.rivals = {{u"plain TCP"_s, viaTcp, Demand::timeAtMost(1.2), {}},
                         {u"bare stub"_s, viaStub, {Demand::Kind::None, 1}, {}}};
    comparison.rounds = 9;
    suite.add(comparison);
}

double listing(const LinkBench &bench)
{
    QVector<FileSystemItem> items;
    bool listed = false;
    const double seconds = secondsOf([&] {
        listed = bench.connection.controller().getFileSystemItems(
            u"/Internal/"_s + Workbench::listedDirectory(), {}, QDir::Files, items);
    });
    if (!listed || items.size() != bench.workbench.listedCount()) {
        throw std::runtime_error("listed " + std::to_string(items.size()) + " entries");
    }
    return seconds;
}

void addListingRow(Suite &suite, const LinkBench &bench)
{
    Comparison comparison;
    comparison.name = u"listing of %L1 entries"_s.arg(bench.workbench.listedCount());
    comparison.work = {1, u"ms"_s, 1e-3};
    comparison.subject = {u"proxy"_s, [bench] { return listing(bench); }, {}, {}};
    comparison.rivals = {{u"bare stub"_s,
                          [bench] {
                              return bench.stub.list(u"/Internal/"_s + Workbench::listedDirectory(),
                                                     static_cast<int>(QDir::Files),
                                                     bench.workbench.listedCount());
                          },
                          Demand::timeAtMost(2),
                          {}}};
    comparison.rounds = 7;
    suite.add(comparison);
}

/// What arrives on the GUI thread of the events that the simulator was told to send.
class EventTest
{
public:
    explicit EventTest(const LinkBench &bench)
        : m_bench(bench)
        , m_expected(Simulator::eventsOf(bench.workbench.eventCount()))
    {
    }

    /// The seconds from the command to the last event in a slot of this thread.
    double runOnGuiThread()
    {
        m_arrived = 0;
        m_wrong = 0;
        QEventLoop loop;
        QTimer patience;
        QObject::connect(&patience, &QTimer::timeout, &loop, &QEventLoop::quit);
        patience.start(60000);
        const auto connection = QObject::connect(
            &m_bench.connection.controller(), &FcpAppCORBA::fcpEventReceived, &loop, [&](int kind) {
                take(kind);
                if (m_arrived == m_expected.size()) {
                    loop.quit();
                }
            });
        const double seconds = secondsOf([&] {
            m_bench.simulator.sendEvents(m_bench.workbench.eventCount());
            loop.exec();
        });
        QObject::disconnect(connection);
        return seconds;
    }

    /// Events that did not come, or came as another one was due.
    qsizetype lostOrMisplaced() const { return m_wrong + m_expected.size() - m_arrived; }

private:
    void take(int kind)
    {
        if (m_arrived >= m_expected.size() || m_expected.at(m_arrived) != kind) {
            ++m_wrong;
        }
        ++m_arrived;
    }

    const LinkBench m_bench;
    const QVector<int> m_expected;
    qsizetype m_arrived = 0;
    qsizetype m_wrong = 0;
};

/// A servant that counts, and a simulator that nobody else listens to.
class BareListener
{
public:
    explicit BareListener(const LinkBench &bench)
        : m_count(bench.workbench.eventCount())
        , m_simulator(bench.workbench.serverRoot())
        , m_stub(m_simulator.port(), bench.connection.orbArguments())
    {
    }

    double run()
    {
        m_stub.awaitEvents(m_count);
        int arrived = 0;
        const double seconds = secondsOf([&] {
            m_simulator.sendEvents(m_count);
            arrived = m_stub.awaitedEvents();
        });
        if (arrived != m_count) {
            throw std::runtime_error(std::to_string(m_count - arrived) + " events are missing");
        }
        return seconds;
    }

private:
    const int m_count;
    Simulator m_simulator;
    BareStub m_stub;
};

void addEventRows(Suite &suite, const LinkBench &bench)
{
    const auto test = std::make_shared<EventTest>(bench);
    const auto listener = std::make_shared<std::unique_ptr<BareListener>>();
    const auto toBareServant = [bench, listener] {
        if (!*listener) {
            *listener = std::make_unique<BareListener>(bench);
        }
        return (*listener)->run();
    };
    Comparison comparison;
    comparison.name = u"%L1 events to a slot of the GUI thread"_s.arg(bench.workbench.eventCount());
    comparison.work = {double(bench.workbench.eventCount()), u"events/s"_s, 0};
    comparison.subject = {u"proxy"_s, [test] { return test->runOnGuiThread(); }, {}, {}};
    comparison.rivals = {{u"bare servant"_s, toBareServant, Demand::speedAtLeast(0.5), {}}};
    suite.add(comparison);

    LimitedFigure lost;
    lost.name = u"of them lost or out of order"_s;
    lost.measure = [test] {
        test->runOnGuiThread();
        return static_cast<double>(test->lostOrMisplaced());
    };
    suite.add(lost);
}

} // namespace

void addCallRows(Suite &suite, const LinkBench &bench)
{
    addSmallCallRow(suite, bench, u"small call, both ends on one processor"_s, 0, 0);
    if (::sysconf(_SC_NPROCESSORS_ONLN) > 1) {
        addSmallCallRow(suite, bench, u"small call, each end on its own processor"_s, 0, 1);
    }
    addListingRow(suite, bench);
    addEventRows(suite, bench);
}

#include "Connections.h"

#include <QLoggingCategory>

#include <stdexcept>

#include "corba/BiDirectionalCORBA.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView Host = "127.0.0.1"_L1;
constexpr const char *EventNames[] = {"TEST_STATUS", "MODULE_STATUS", "RESOURCE_STATUS",
                                      "CLIENT_STATUS"};

struct EventRun
{
    int kind;
    int length;
};

/// Runs of 1 to 400 events of a kind: one that is lost or misplaced shows at the end of its run.
QVector<EventRun> eventRuns(int count)
{
    QVector<EventRun> runs;
    unsigned seed = 1;
    for (int kind = 0; count > 0; kind = (kind + 1) % 4) {
        seed = seed * 1103515245U + 12345U;
        const int length = std::min(count, 1 + static_cast<int>((seed >> 16) % 400));
        runs.append({kind, length});
        count -= length;
    }
    return runs;
}

QStringList *listenedArguments = nullptr;
QtMessageHandler previousHandler = nullptr;

void listenForArguments(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    static const QString label = u"CORBA argument = "_s;
    if (!text.startsWith(label)) {
        previousHandler(type, context, text);
        return;
    }
    listenedArguments->append(text.sliced(label.size()));
}

/// Starts the library's ORB, and learns from its log what arguments it gets.
QStringList startOrb()
{
    QStringList words;
    listenedArguments = &words;
    QLoggingCategory::setFilterRules(u"vex.corba.debug=true"_s);
    previousHandler = qInstallMessageHandler(listenForArguments);
    const bool started = BiDirectionalCORBA::initializeInstance(
        {u"-ORBListenEndpoints"_s, u"iiop://127.0.0.1:5700/portspan=50"_s});
    qInstallMessageHandler(previousHandler);
    QLoggingCategory::setFilterRules({});
    if (!started) {
        throw std::runtime_error(BiDirectionalCORBA::lastError().toStdString());
    }
    const qsizetype endpoint = words.indexOf(u"-ORBendPoint"_s);
    if (endpoint >= 0) {
        words.remove(endpoint, 2);
    }
    return words;
}

} // namespace

Simulator::Simulator(const QString &root)
    : m_process(besideThisProgram(u"fcp-sim"_s), {u"--port"_s, u"0"_s, u"--root"_s, root})
    , m_port(m_process.waitForLine(u"fcp-sim: listening on port "_s).toUShort())
{
}

void Simulator::sendEvents(int count)
{
    const QVector<EventRun> runs = eventRuns(count);
    QByteArray commands;
    for (const EventRun &run : runs) {
        commands += QByteArray("event ") + EventNames[run.kind] + ' '
            + QByteArray::number(run.length) + '\n';
    }
    m_process.tell(commands);
    for (qsizetype i = 0; i < runs.size(); ++i) {
        m_process.waitForLine(u"ok event"_s);
    }
}

QVector<int> Simulator::eventsOf(int count)
{
    QVector<int> events;
    for (const EventRun &run : eventRuns(count)) {
        events.append(QVector<int>(run.length, run.kind));
    }
    return events;
}

VexConnection::VexConnection(quint16 port)
    : m_orbArguments(startOrb())
{
    FcpAppCORBA::initializeInstance(BiDirectionalCORBA::instance());
    m_controller.reset(FcpAppCORBA::instance());
    if (!m_controller->connectToFCP(Host, port)) {
        throw std::runtime_error(m_controller->lastError().toStdString());
    }
}

VexConnection::~VexConnection()
{
    m_controller.reset();
    BiDirectionalCORBA::deleteInstance();
}

BareStub::BareStub(quint16 port, const QStringList &orbArguments)
    : m_process(
        besideThisProgram(u"bench-bare-stub"_s),
        QStringList {Host, QString::number(port), u"-ORBendPoint"_s, u"giop:tcp:127.0.0.1:"_s}
            + orbArguments)
{
    m_process.waitForLine(u"connected"_s);
}

double BareStub::timed(const QString &command, int expectedCount)
{
    const QStringList answer = m_process.ask(command).split(u' ');
    if (answer.size() != 2 || answer.at(0).toInt() != expectedCount) {
        throw std::runtime_error("the bare stub answers " + answer.join(u' ').toStdString());
    }
    return answer.at(1).toDouble();
}

double BareStub::list(const QString &directory, int filterFlags, int entries)
{
    return timed(u"list %1 %2"_s.arg(directory).arg(filterFlags), entries);
}

double BareStub::ping(int count)
{
    return timed(u"ping %1"_s.arg(count), count);
}

void BareStub::awaitEvents(int count)
{
    m_process.ask(u"await %1"_s.arg(count));
}

int BareStub::awaitedEvents()
{
    return m_process.ask(u"awaited"_s).toInt();
}

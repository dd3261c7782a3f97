#include "Console.h"

#include <QCoreApplication>
#include <QHash>

#include <unistd.h>

#include <cstdio>

#include "Simulator.h"

namespace {

constexpr char Commands[] =
    "event KIND [COUNT], shutdown 0|1, clients, fault RULE, faults [clear], "
    "latency MS, module add|remove ID, help, quit";

constexpr const char *EventNames[] = {"TEST_STATUS", "MODULE_STATUS", "RESOURCE_STATUS",
                                      "CLIENT_STATUS"};

void answer(std::FILE *file, const QByteArray &line)
{
    std::fprintf(file, "%s\n", line.constData());
    std::fflush(file);
}

} // namespace

Console::Console(Simulator &simulator)
    : m_simulator(simulator)
    , m_notifier(STDIN_FILENO, QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, &Console::read);
}

void Console::read()
{
    char bytes[4096];
    const ssize_t got = ::read(STDIN_FILENO, bytes, sizeof bytes);
    if (got <= 0) {
        m_notifier.setEnabled(false);
        return;
    }
    m_buffer.append(bytes, got);
    for (qsizetype end = m_buffer.indexOf('\n'); end >= 0; end = m_buffer.indexOf('\n')) {
        const QByteArray line = m_buffer.left(end).simplified();
        m_buffer.remove(0, end + 1);
        if (!line.isEmpty()) {
            obey(line);
        }
    }
}

void Console::obey(const QByteArray &line)
{
    QByteArray error;
    const QByteArray result = run(line.split(' '), error);
    if (error.isEmpty()) {
        answer(stdout, "ok " + result);
    } else {
        answer(stderr, "fcp-sim: " + error);
    }
}

QByteArray Console::run(const QList<QByteArray> &words, QByteArray &error)
{
    using Command = QByteArray (Console::*)(const QList<QByteArray> &, QByteArray &);
    static const QHash<QByteArray, Command> commands = {
        {"event", &Console::sendEvent},     {"shutdown", &Console::sendShutDown},
        {"clients", &Console::listClients}, {"fault", &Console::addFault},
        {"faults", &Console::listFaults},   {"latency", &Console::setLatency},
        {"module", &Console::changeModule}, {"help", &Console::help},
        {"quit", &Console::quit},
    };
    const Command command = commands.value(words.first());
    if (!command) {
        error = "not understood: \"" + words.join(' ') + "\"; commands are " + Commands;
        return {};
    }
    return (this->*command)(words, error);
}

QByteArray Console::sendShutDown(const QList<QByteArray> &words, QByteArray &error)
{
    const QByteArray argument = words.value(1);
    if (argument == "0" || argument == "1") {
        m_simulator.clients().sendShutDown(argument == "1");
    } else {
        error = "expected shutdown 0|1, found \"" + words.join(' ') + '"';
    }
    return words.join(' ');
}

QByteArray Console::addFault(const QList<QByteArray> &words, QByteArray &error)
{
    if (words.size() == 2) {
        error = QByteArray::fromStdString(m_simulator.faults().add(words.at(1).toStdString()));
    } else {
        error = "expected fault RULE, found \"" + words.join(' ') + '"';
    }
    return words.join(' ');
}

QByteArray Console::listFaults(const QList<QByteArray> &words, QByteArray &)
{
    if (words.value(1) == "clear") {
        m_simulator.faults().clear();
    }
    QByteArray rules = words.first();
    for (const std::string &rule : m_simulator.faults().rules()) {
        rules += ' ' + QByteArray::fromStdString(rule);
    }
    return rules;
}

QByteArray Console::setLatency(const QList<QByteArray> &words, QByteArray &error)
{
    bool isNumber = false;
    const int number = words.value(1).toInt(&isNumber);
    if (isNumber && number >= 0) {
        m_simulator.faults().setLatency(std::chrono::milliseconds(number));
    } else {
        error = "expected latency MS, found \"" + words.join(' ') + '"';
    }
    return words.join(' ');
}

QByteArray Console::help(const QList<QByteArray> &, QByteArray &)
{
    return QByteArray("commands: ") + Commands;
}

QByteArray Console::quit(const QList<QByteArray> &words, QByteArray &)
{
    QCoreApplication::quit();
    return words.join(' ');
}

QByteArray Console::sendEvent(const QList<QByteArray> &words, QByteArray &error)
{
    const unsigned count = words.size() > 2 ? words.at(2).toUInt() : 1;
    for (int kind = 0; kind < 4; ++kind) {
        if (words.value(1) == EventNames[kind] && count > 0) {
            m_simulator.clients().sendEvent(static_cast<AppFcpEvent>(kind), count);
            return words.join(' ');
        }
    }
    error = "expected event TEST_STATUS|MODULE_STATUS|RESOURCE_STATUS|CLIENT_STATUS [COUNT], "
            "found \""
        + words.join(' ') + '"';
    return {};
}

QByteArray Console::changeModule(const QList<QByteArray> &words, QByteArray &error)
{
    const bool adds = words.value(1) == "add";
    bool isNumber = false;
    const int id = words.value(2).toInt(&isNumber);
    if (!isNumber || (!adds && words.value(1) != "remove")) {
        error = "expected module add|remove ID, found \"" + words.join(' ') + '"';
    } else if (!m_simulator.rack().setPresent(id, adds)) {
        error =
            "module " + words.value(2) + " is not one that can be " + (adds ? "added" : "removed");
    } else {
        m_simulator.clients().sendEvent(MODULE_STATUS);
    }
    return words.join(' ');
}

QByteArray Console::listClients(const QList<QByteArray> &, QByteArray &)
{
    const std::vector<ClientRegistry::Client> clients = m_simulator.clients().clients();
    QByteArray text = "clients " + QByteArray::number(clients.size());
    for (const ClientRegistry::Client &client : clients) {
        text += ' ' + QByteArray::number(client.id) + '@' + QByteArray::fromStdString(client.host);
    }
    return text;
}

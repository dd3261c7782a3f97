// What runs on the instrument: tests, launch, terminate, clients.

#include "CommandLine.h"
#include "Interrupt.h"
#include "Output.h"
#include "Table.h"
#include "Text.h"

#include <QDeadlineTimer>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int Done = static_cast<int>(Exit::Done);

QString number(qint64 value)
{
    return QString::number(value);
}

QString statusName(TestStatus status)
{
    switch (status) {
    case TEST_NA:
        return u"NA"_s;
    case TEST_LAUNCHED:
        return u"LAUNCHED"_s;
    case TEST_REGISTERED:
        return u"REGISTERED"_s;
    case TEST_CLOSING:
        return u"CLOSING"_s;
    }
    return number(status);
}

TestStatus testStatus(const Session &session, qint32 id)
{
    return session.ask([id](FcpAppCORBA &fcp) { return fcp.getTestStatus(id); });
}

QVector<AvailableTestInformation> availableTests(const Session &session)
{
    QVector<AvailableTestInformation> tests;
    session.ask([&](FcpAppCORBA &fcp) { fcp.getAvailableTests(tests); });
    return tests;
}

struct RunningTest
{
    TestInformation information;
    QString status;
};

QList<RunningTest> runningTests(const Session &session)
{
    QVector<TestInformation> active;
    session.ask([&](FcpAppCORBA &fcp) { fcp.getActiveTests(active, QString()); });
    QList<RunningTest> tests;
    for (const TestInformation &test : active) {
        tests += {test, statusName(testStatus(session, test.testID))};
    }
    return tests;
}

QJsonArray toJson(const QVector<AvailableTestInformation> &tests)
{
    QJsonArray array;
    for (const AvailableTestInformation &test : tests) {
        array += QJsonObject {{u"name"_s, test.testName},
                              {u"runnableState"_s, test.runnableState},
                              {u"options"_s, test.expOptions}};
    }
    return array;
}

QJsonArray toJson(const QList<RunningTest> &tests)
{
    QJsonArray array;
    for (const RunningTest &test : tests) {
        array += QJsonObject {{u"id"_s, test.information.testID},
                              {u"name"_s, test.information.testName},
                              {u"tcpPort"_s, test.information.testTcpPort},
                              {u"status"_s, test.status}};
    }
    return array;
}

QString toTable(const QVector<AvailableTestInformation> &tests)
{
    Table table({{u"AVAILABLE"_s}, {u"STATE"_s, Table::Align::Right}, {u"OPTIONS"_s}});
    for (const AvailableTestInformation &test : tests) {
        table.add({Output::name(test.testName), number(test.runnableState),
                   Output::name(test.expOptions)});
    }
    return table.text();
}

QString toTable(const QList<RunningTest> &tests)
{
    Table table({{u"RUNNING"_s, Table::Align::Right},
                 {u"STATUS"_s},
                 {u"TCP PORT"_s, Table::Align::Right},
                 {u"NAME"_s}});
    for (const RunningTest &test : tests) {
        table.add({number(test.information.testID), test.status,
                   number(test.information.testTcpPort), Output::name(test.information.testName)});
    }
    return table.text();
}

int tests(const Invocation &invocation)
{
    const Session session(invocation.address());
    const QVector<AvailableTestInformation> available = availableTests(session);
    const QList<RunningTest> running = runningTests(session);
    if (invocation.json()) {
        Output::json(
            QJsonObject {{u"available"_s, toJson(available)}, {u"running"_s, toJson(running)}});
    } else if (invocation.isSet(u"names"_s)) {
        QStringList names;
        for (const AvailableTestInformation &test : available) {
            names += Output::name(test.testName) + u'\n';
        }
        Output::write(names.join(QString()));
    } else if (invocation.isSet(u"ids"_s)) {
        QStringList ids;
        for (const RunningTest &test : running) {
            ids += number(test.information.testID) + u'\n';
        }
        Output::write(ids.join(QString()));
    } else {
        Output::write(toTable(available) + u'\n' + toTable(running));
    }
    return Done;
}

/// Asks for the test's status until @p isReached says so, at most as long as a call may take.
TestStatus waitForStatus(const Session &session, qint32 id, bool (*isReached)(TestStatus))
{
    const QDeadlineTimer deadline(session.address().timeOut.value_or(180s));
    const Interrupt interrupt;
    TestStatus status = testStatus(session, id);
    while (!isReached(status)) {
        if (interrupt.requested() || deadline.hasExpired()) {
            throw Failure {
                Exit::Failed,
                u"stopped waiting for test %1, it is %2"_s.arg(number(id), statusName(status))};
        }
        QThread::msleep(50);
        status = testStatus(session, id);
    }
    return status;
}

int launch(const Invocation &invocation)
{
    const QStringList words = invocation.operands();
    const Session session(invocation.address());
    const auto id = static_cast<qint32>(session.ask(
        [&words](FcpAppCORBA &fcp) { return fcp.launchTest(words.first(), words.sliced(1)); }));
    if (id <= 0) {
        throw Failure {Exit::Failed,
                       u"the instrument refused to launch '%1' (it answered %2)"_s.arg(
                           printable(words.first()), number(id))};
    }
    if (invocation.json()) {
        Output::json(QJsonObject {{u"id"_s, id}, {u"name"_s, words.first()}});
    } else {
        Output::line(number(id));
    }
    if (invocation.isSet(u"wait"_s)) {
        const TestStatus status =
            waitForStatus(session, id, [](TestStatus reached) { return reached != TEST_LAUNCHED; });
        if (status != TEST_REGISTERED) {
            throw Failure {Exit::Failed, u"test %1 ended before it was up"_s.arg(id)};
        }
    }
    return Done;
}

int terminate(const Invocation &invocation)
{
    const qint32 id = invocation.id(0);
    const bool force = invocation.isSet(u"force"_s);
    const Session session(invocation.address());
    if (!session.ask([=](FcpAppCORBA &fcp) { return fcp.terminateTest(id, force); })) {
        throw Failure {Exit::Failed, u"the instrument refused to terminate test %1"_s.arg(id)};
    }
    if (invocation.isSet(u"wait"_s)) {
        waitForStatus(session, id, [](TestStatus reached) { return reached == TEST_NA; });
    }
    if (invocation.json()) {
        Output::json(QJsonObject {{u"id"_s, id}});
    }
    return Done;
}

int clients(const Invocation &invocation)
{
    const qint32 id = invocation.id(0);
    const Session session(invocation.address());
    QVector<ClientInformation> clients;
    session.ask([&](FcpAppCORBA &fcp) { fcp.getActiveClients(id, clients); });

    QJsonArray array;
    Table table({{u"ID"_s, Table::Align::Right}, {u"ACCESS"_s}, {u"HOST"_s}, {u"NAME"_s}});
    for (const ClientInformation &client : clients) {
        array += QJsonObject {{u"id"_s, client.clientId},
                              {u"name"_s, client.clientName},
                              {u"host"_s, client.clientHost},
                              {u"readOnly"_s, client.clientReadOnly}};
        table.add({number(client.clientId), client.clientReadOnly ? u"read"_s : u"read-write"_s,
                   Output::name(client.clientHost), Output::name(client.clientName)});
    }
    invocation.json() ? Output::json(array) : Output::write(table.text());
    return Done;
}

} // namespace

QList<Command> testCommands()
{
    return {
        {.name = u"tests"_s,
         .summary = u"List the tests that can be launched, and those that run."_s,
         .options = {{u"names"_s, u"Only the names of those that can be launched, one a line."_s},
                     {u"ids"_s, u"Only the ids of those that run, one a line."_s}},
         .run = tests},
        {.name = u"launch"_s,
         .operands = u"NAME [ARG...]"_s,
         .summary = u"Launch a test and print its id."_s,
         .options = {{u"wait"_s, u"Come back when the test is up."_s}},
         .fewest = 1,
         .most = Command::Any,
         .operandsEndOptions = true,
         .run = launch},
        {.name = u"terminate"_s,
         .operands = u"ID"_s,
         .summary = u"Terminate a running test."_s,
         .options = {{u"force"_s, u"Set the controller's flag, which asks for an end at once."_s},
                     {u"wait"_s, u"Come back when the test has ended."_s}},
         .fewest = 1,
         .most = 1,
         .run = terminate},
        {.name = u"clients"_s,
         .operands = u"ID"_s,
         .summary = u"List the clients of a running test."_s,
         .fewest = 1,
         .most = 1,
         .run = clients},
    };
}

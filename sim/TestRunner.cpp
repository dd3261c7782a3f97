#include "TestRunner.h"

#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTimer>

#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <future>

#include "Instrument.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// How long a test may take to end when it was asked to.
constexpr auto GraceTime = 3s;

/// The command line of a test's process.
QStringList commandOf(const AvailableTest &test)
{
    if (!test.command.isEmpty()) {
        return test.command;
    }
    return {QCoreApplication::applicationFilePath(), u"--test-process"_s,
            QString::number(test.startMilliseconds), QString::number(test.runMilliseconds),
            QString::number(test.closeMilliseconds)};
}

/// Runs in the child: a group of its own, which ends together with the simulator.
void prepareChild(pid_t simulator)
{
    ::setpgid(0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != simulator) {
        ::_exit(1); // it ended meanwhile
    }
    ::signal(SIGPIPE, SIG_DFL);
}

/// Signals the process and what it has started itself.
void signalGroup(const QProcess &process, int signal)
{
    if (process.processId() > 0) {
        ::kill(-static_cast<pid_t>(process.processId()), signal);
    }
}

} // namespace

TestRunner::TestRunner(const Instrument &instrument, std::function<void()> changed)
    : m_instrument(instrument)
    , m_changed(std::move(changed))
{
}

TestRunner::~TestRunner()
{
    stop();
}

int TestRunner::launch(const QByteArray &name, const QStringList &arguments, int client)
{
    const auto available =
        std::find_if(m_instrument.tests.begin(), m_instrument.tests.end(),
                     [&](const AvailableTest &candidate) { return candidate.name == name; });
    if (available == m_instrument.tests.end()) {
        return UnknownTest;
    }
    if (available->runnableState != AvailableTest::Runnable) {
        return NotRunnable;
    }
    Test test;
    test.name = name;
    test.readWriteClient = client;
    {
        const std::lock_guard lock(m_mutex);
        test.id = m_next++;
    }
    // Not a blocking connection: the object's thread may be about to leave the event loop.
    auto started = std::make_shared<std::promise<bool>>();
    std::future<bool> result = started->get_future();
    QMetaObject::invokeMethod(
        this, [=, this] { started->set_value(start(test, *available, arguments)); },
        Qt::QueuedConnection);
    return result.wait_for(5s) == std::future_status::ready && result.get() ? test.id : NotStarted;
}

bool TestRunner::start(const Test &test, const AvailableTest &available,
                       const QStringList &arguments)
{
    auto *process = new QProcess(this);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"FCP_TEST_ID"_s, QString::number(test.id));
    environment.insert(u"FCP_TEST_NAME"_s, QString::fromUtf8(test.name));
    process->setProcessEnvironment(environment);
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setChildProcessModifier([simulator = ::getpid()] { prepareChild(simulator); });
    {
        const std::lock_guard lock(m_mutex);
        m_entries[test.id] = {test, process};
    }
    const int id = test.id;
    connect(process, &QProcess::readyReadStandardOutput, this, [this, id] { readLines(id); });
    connect(process, &QProcess::finished, this, [this, id] { remove(id); });
    QStringList command = commandOf(available);
    const QString program = command.takeFirst();
    process->start(program, command + arguments);
    if (!process->waitForStarted(3000)) {
        process->deleteLater();
        const std::lock_guard lock(m_mutex);
        m_entries.erase(id);
        return false;
    }
    m_changed();
    return true;
}

bool TestRunner::terminate(int id, bool atOnce)
{
    if (test(id).id == 0) {
        return false;
    }
    QMetaObject::invokeMethod(
        this, [=, this] { end(id, atOnce); }, Qt::QueuedConnection);
    return true;
}

void TestRunner::end(int id, bool atOnce)
{
    if (const QProcess *process = processOf(id)) {
        readLine(id, "closing");
        signalGroup(*process, atOnce ? SIGKILL : SIGTERM);
        QTimer::singleShot(GraceTime, process, [process] { signalGroup(*process, SIGKILL); });
    }
}

std::vector<TestRunner::Test> TestRunner::tests(const QByteArray &name) const
{
    const std::lock_guard lock(m_mutex);
    std::vector<Test> result;
    for (const auto &item : m_entries) {
        if (name.isEmpty() || item.second.test.name == name) {
            result.push_back(item.second.test);
        }
    }
    return result;
}

TestRunner::Test TestRunner::test(int id) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_entries.find(id);
    Test none;
    none.status = TEST_NA;
    return found == m_entries.end() ? none : found->second.test;
}

bool TestRunner::setReadWriteClient(int id, int client)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_entries.find(id);
    if (found == m_entries.end()) {
        return false;
    }
    found->second.test.readWriteClient = client;
    return true;
}

void TestRunner::stop()
{
    std::map<int, Entry> entries;
    {
        const std::lock_guard lock(m_mutex);
        entries.swap(m_entries);
    }
    for (const auto &item : entries) {
        item.second.process->disconnect(this);
        signalGroup(*item.second.process, SIGKILL);
    }
    for (const auto &item : entries) {
        item.second.process->waitForFinished(500);
        delete item.second.process;
    }
}

void TestRunner::readLines(int id)
{
    QProcess *process = processOf(id);
    while (process && process->canReadLine()) {
        readLine(id, process->readLine().trimmed());
    }
}

void TestRunner::readLine(int id, const QByteArray &line)
{
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_entries.find(id);
        if (found == m_entries.end()) {
            return;
        }
        Test &test = found->second.test;
        if (line.startsWith("port ") && test.status == TEST_LAUNCHED) {
            test.port = line.mid(5).toInt();
            test.status = TEST_REGISTERED;
        } else if (line == "closing" && test.status != TEST_CLOSING) {
            test.status = TEST_CLOSING;
        } else {
            return;
        }
    }
    m_changed();
}

void TestRunner::remove(int id)
{
    bool wasThere = false;
    if (QProcess *process = processOf(id)) {
        readLines(id);
        process->deleteLater();
        const std::lock_guard lock(m_mutex);
        wasThere = m_entries.erase(id) > 0;
    }
    if (wasThere) {
        m_changed();
    }
}

QProcess *TestRunner::processOf(int id) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_entries.find(id);
    return found == m_entries.end() ? nullptr : found->second.process;
}

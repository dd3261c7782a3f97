#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <functional>
#include <map>
#include <mutex>
#include <vector>

#include <FcpInterfaces.hh>

class QProcess;
struct AvailableTest;
struct Instrument;

/**
 * Runs tests, each as a process of its own.
 *
 * A test is TEST_LAUNCHED when its process was started. The process tells how it gets on by lines
 * on its standard output: "port N" (it listens on this TCP port of the loopback address, and the
 * test is TEST_REGISTERED) and "closing" (TEST_CLOSING). When it has ended the test is gone
 * (TEST_NA). It finds its id and name in the environment, FCP_TEST_ID and FCP_TEST_NAME, and the
 * arguments of the launch behind those of its command.
 *
 * Processes are started and watched on the thread the object lives on; other functions may be
 * called from any thread, but that one.
 */
class TestRunner : public QObject
{
    Q_OBJECT

public:
    /** What launch() returns instead of a test's id. */
    enum LaunchFailure { UnknownTest = -1, NotRunnable = -2, NotStarted = -3 };

    struct Test
    {
        int id = 0;
        QByteArray name;
        int port = 0;
        TestStatus status = TEST_LAUNCHED;
        int readWriteClient = 0; ///< the client that may operate it; the others watch
    };

    /** @p changed is called after each change of a test, on any thread. */
    TestRunner(const Instrument &instrument, std::function<void()> changed);
    ~TestRunner() override;

    /** @return the test's id, from 1, or a LaunchFailure */
    int launch(const QByteArray &name, const QStringList &arguments, int client);
    /** Asks a test to end (SIGTERM), or ends it (SIGKILL). @return whether it was there */
    bool terminate(int id, bool atOnce);

    /** The running tests, of this name when it is not empty. */
    std::vector<Test> tests(const QByteArray &name = {}) const;
    /** A test that is gone has the id 0 and the status TEST_NA. */
    Test test(int id) const;
    bool setReadWriteClient(int id, int client);

    /** Ends all processes; on the object's own thread. */
    void stop();

private:
    struct Entry
    {
        Test test;
        QProcess *process = nullptr;
    };

    bool start(const Test &test, const AvailableTest &available, const QStringList &arguments);
    void end(int id, bool atOnce);
    void readLines(int id);
    void readLine(int id, const QByteArray &line);
    void remove(int id);
    QProcess *processOf(int id) const;

    const Instrument &m_instrument;
    const std::function<void()> m_changed;
    mutable std::mutex m_mutex;
    std::map<int, Entry> m_entries;
    int m_next = 1;
};

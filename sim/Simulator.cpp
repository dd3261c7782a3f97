#include "Simulator.h"

#include "CallContext.h"

#include <QDir>

#include <chrono>
#include <cstring>
#include <future>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

QString errorText(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

} // namespace

Simulator::Simulator(const Options &options)
    : m_options(options)
    , m_files(m_storage, options.sync)
    , m_rack(m_instrument)
    , m_clients([this](std::uint64_t connection) { m_connections.cut(connection); })
    , m_tests(m_instrument, [this] { m_clients.sendEvent(TEST_STATUS); })
    , m_servant({m_instrument, m_rack, m_clients, m_connections, m_storage, m_files, m_tests,
                 m_faults, m_log})
{
}

Simulator::ExitCode Simulator::fail(ExitCode code, const QString &error)
{
    m_error = error;
    return code;
}

Simulator::ExitCode Simulator::start()
{
    QString error;
    if (!readInstrument(m_options.instrument, m_instrument, error)) {
        return fail(BadInput, error);
    }
    m_faults.setLatency(m_options.latency);
    for (const QString &rule : m_options.faults) {
        if (const std::string wrong = m_faults.add(rule.toStdString()); !wrong.empty()) {
            return fail(BadInput, QString::fromStdString(wrong));
        }
    }
    const ExitCode code = openFiles();
    return code == Done ? startServer() : code;
}

Simulator::ExitCode Simulator::startServer()
{
    std::vector<std::string> words = m_options.orbWords;
    words.insert(words.begin(), "fcp-sim");
    std::vector<char *> argv;
    argv.reserve(words.size() + 1);
    for (std::string &word : words) {
        argv.push_back(word.data());
    }
    int argc = static_cast<int>(argv.size());
    argv.push_back(nullptr);
    if (!m_server.initialize(argc, argv.data(), m_options.host.toStdString(), m_options.port)) {
        return fail(BadInput, QString::fromStdString(m_server.error()));
    }
    m_connections.install();
    CallContext::install();
    m_connections.watch([this](std::uint64_t connection) { m_servant.connectionGone(connection); });
    if (!m_server.serve(&m_servant, m_options.publish.toStdString())) {
        return fail(CannotRun, QString::fromStdString(m_server.error()));
    }
    return Done;
}

Simulator::ExitCode Simulator::openFiles()
{
    if (!m_options.log.isEmpty()) {
        if (const int error = m_log.open(m_options.log.toStdString()); error != 0) {
            return fail(BadInput, u"--log %1: %2"_s.arg(m_options.log, errorText(error)));
        }
    }
    m_rootPath = m_options.root;
    if (m_rootPath.isEmpty()) {
        m_ownRoot = std::make_unique<QTemporaryDir>(QDir::temp().filePath(u"fcp-sim-XXXXXX"_s));
        m_rootPath = m_ownRoot->path();
        if (!m_ownRoot->isValid()) {
            return fail(CannotRun, m_ownRoot->errorString());
        }
    }
    QDir().mkpath(m_rootPath);
    if (const int error = m_storage.open(m_rootPath.toStdString()); error != 0) {
        return fail(CannotRun, u"%1: %2"_s.arg(m_rootPath, errorText(error)));
    }
    return Done;
}

bool Simulator::stop()
{
    using namespace std::chrono_literals;

    m_tests.stop();
    // Politely to those who listen; a client that does not would hold the ORB for seconds.
    bool isOver = false;
    for (int attempt = 0; attempt < 10 && !isOver; ++attempt) {
        m_connections.cutBlocked();
        isOver = m_clients.stop(50ms);
    }
    auto destroyed = std::make_shared<std::promise<void>>();
    std::thread([this, destroyed] {
        m_server.destroy();
        destroyed->set_value();
    }).detach();
    isOver = destroyed->get_future().wait_for(1s) == std::future_status::ready && isOver;
    if (!isOver && m_ownRoot) {
        m_ownRoot->remove();
    }
    return isOver;
}

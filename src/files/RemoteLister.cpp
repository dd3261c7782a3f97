#include "RemoteLister.h"

#include <algorithm>

#include "corba/FcpAppCORBA.h"

RemoteLister::RemoteLister(FcpAppCORBA *controller, std::function<void()> notify)
    : m_controller(controller)
    , m_notify(std::move(notify))
{
    setObjectName(QStringLiteral("VexRemoteLister"));
    start();
}

RemoteLister::~RemoteLister()
{
    end();
    wait();
}

void RemoteLister::end()
{
    {
        const std::lock_guard lock(m_mutex);
        m_ending = true;
        m_waiting.clear();
    }
    m_wake.notify_one();
}

void RemoteLister::post(Request request)
{
    {
        const std::lock_guard lock(m_mutex);
        m_waiting.push_back(std::move(request));
    }
    m_wake.notify_one();
}

bool RemoteLister::isWaiting(quint64 id)
{
    const std::lock_guard lock(m_mutex);
    return find(id) != m_waiting.end();
}

void RemoteLister::drop(quint64 id)
{
    const std::lock_guard lock(m_mutex);
    if (const auto found = find(id); found != m_waiting.end()) {
        m_waiting.erase(found);
    }
}

std::deque<RemoteLister::Request>::iterator RemoteLister::find(quint64 id)
{
    return std::find_if(m_waiting.begin(), m_waiting.end(),
                        [id](const Request &request) { return request.id == id; });
}

std::shared_ptr<ListingDiff> RemoteLister::list(FcpAppCORBA *controller, const Request &request)
{
    QVector<FileSystemItem> items;
    if (!controller->getFileSystemItems(request.path, request.patterns, request.filters, items)) {
        return {};
    }
    return std::make_shared<ListingDiff>(request.known, items);
}

void RemoteLister::run()
{
    Request request;
    while (next(request)) {
        Result result {request.id, list(m_controller, request)};
        request = {};
        const std::lock_guard lock(m_mutex); // also against an end() that does not wait
        if (!m_ending) {
            m_results.push_back(std::move(result));
            m_notify();
        }
    }
}

std::vector<RemoteLister::Result> RemoteLister::takeResults()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_results, {});
}

bool RemoteLister::next(Request &request)
{
    std::unique_lock lock(m_mutex);
    m_wake.wait(lock, [this] { return m_ending || !m_waiting.empty(); });
    if (m_ending) {
        return false;
    }
    request = std::move(m_waiting.front());
    m_waiting.pop_front();
    return true;
}

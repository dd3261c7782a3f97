#include "Connections.h"

#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <chrono>
#include <utility>
#include <vector>

#include <omniORB4/CORBA.h>
#include <omniORB4/omniInterceptors.h>

#include <omniORB4/internal/giopStrand.h>

#include <omniORB4/tcpConnection.h>

namespace {

Connections *theConnections = nullptr;

CORBA::Boolean onAccept(omni::omniInterceptors::serverAcceptConnection_T::info_T &info)
{
    if (theConnections) {
        theConnections->accepted(info.strand.connection);
    }
    return true;
}

/// statx() and not fstat(): ThreadSanitizer takes a look at a number that the ORB may close and
/// open again meanwhile for a fault, but seeing just that is the purpose here.
std::uint64_t inodeOf(int socket)
{
    struct statx status = {};
    return ::statx(socket, "", AT_EMPTY_PATH, STATX_INO, &status) == 0 ? status.stx_ino : 0;
}

void setOption(int socket, int level, int option, int value)
{
    ::setsockopt(socket, level, option, &value, sizeof value);
}

bool isAlive(const Connection &connection)
{
    pollfd state = {connection.socket, POLLRDHUP, 0};
    ::poll(&state, 1, 0);
    // In this order: if the socket is still the same afterwards, it was when it was asked.
    return inodeOf(connection.socket) == connection.inode && state.revents == 0;
}

void shutDown(const Connection &connection)
{
    // The ORB closes sockets under this lock, so the number can't get another meaning meanwhile.
    const omni_tracedmutex_lock lock(*omni::omniTransportLock);
    if (inodeOf(connection.socket) == connection.inode) {
        ::shutdown(connection.socket, SHUT_RDWR);
    }
}

/// "giop:tcp:10.0.0.5:40312" without what surrounds the host.
std::string hostOf(const std::string &address)
{
    const size_t begin = std::min(address.find(':', address.find(':') + 1) + 1, address.size());
    const size_t end = address.rfind(':');
    const std::string host = address.substr(begin, end - begin);
    return host.size() > 1 && host.front() == '[' ? host.substr(1, host.size() - 2) : host;
}

} // namespace

Connections::Connections()
{
    theConnections = this;
}

Connections::~Connections()
{
    theConnections = nullptr;
    {
        const std::lock_guard lock(m_stopMutex);
        m_stopping = true;
    }
    m_stopCondition.notify_all();
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void Connections::install()
{
    omniORB::getInterceptors()->serverAcceptConnection.add(onAccept);
}

void Connections::watch(GoneHandler handler)
{
    m_handler = std::move(handler);
    m_thread = std::thread(&Connections::run, this);
}

void Connections::accepted(omni::giopConnection *connection)
{
    const auto *tcp = dynamic_cast<omni::tcpConnection *>(connection);
    if (!tcp) {
        return;
    }
    auto made = std::make_shared<Connection>();
    made->socket = static_cast<int>(tcp->handle());
    made->inode = inodeOf(made->socket);
    made->host = hostOf(connection->peeraddress());
    setOption(made->socket, SOL_SOCKET, SO_KEEPALIVE, 1);
    setOption(made->socket, IPPROTO_TCP, TCP_KEEPIDLE, 4);
    setOption(made->socket, IPPROTO_TCP, TCP_KEEPINTVL, 2);
    setOption(made->socket, IPPROTO_TCP, TCP_USER_TIMEOUT, 10000);

    std::shared_ptr<Connection> before;
    {
        const std::unique_lock lock(m_mutex);
        made->id = m_next++;
        before = std::exchange(m_connections[connection], std::move(made));
    }
    // The ORB has reused the memory of a connection that the watching thread has not missed yet.
    if (before && !before->gone.exchange(true) && m_handler) {
        m_handler(before->id);
    }
}

std::shared_ptr<Connection> Connections::find(const omni::giopConnection *connection) const
{
    const std::shared_lock lock(m_mutex);
    const auto found = m_connections.find(connection);
    return found == m_connections.end() ? nullptr : found->second;
}

void Connections::cut(std::uint64_t connection)
{
    const std::shared_lock lock(m_mutex);
    for (const auto &item : m_connections) {
        if (item.second->id == connection) {
            shutDown(*item.second);
        }
    }
}

void Connections::cutBlocked()
{
    const std::shared_lock lock(m_mutex);
    for (const auto &item : m_connections) {
        pollfd state = {item.second->socket, POLLOUT, 0};
        if (::poll(&state, 1, 0) == 0) {
            shutDown(*item.second);
        }
    }
}

void Connections::run()
{
    std::unique_lock lock(m_stopMutex);
    while (!m_stopCondition.wait_for(lock, std::chrono::milliseconds(SweepInterval),
                                     [this] { return m_stopping; })) {
        lock.unlock();
        sweep();
        lock.lock();
    }
}

void Connections::sweep()
{
    std::vector<std::uint64_t> lost;
    {
        const std::unique_lock lock(m_mutex);
        std::erase_if(m_connections, [&](const auto &item) {
            if (isAlive(*item.second)) {
                return false;
            }
            if (!item.second->gone.exchange(true)) {
                lost.push_back(item.second->id);
            }
            return true;
        });
    }
    for (const std::uint64_t id : lost) {
        m_handler(id);
    }
}

#include "ClientRegistry.h"

#include "ClientChannel.h"

ClientRegistry::ClientRegistry(std::function<void(std::uint64_t)> cut)
    : m_cut(std::move(cut))
    , m_threads(std::make_shared<ThreadCount>())
{
}

int ClientRegistry::add(std::uint64_t connection, const std::string &host,
                        AppFcpInterfaceCORBA_ptr callback)
{
    auto channel =
        std::make_shared<ClientChannel>(callback, [cut = m_cut, connection] { cut(connection); });
    int id = 0;
    {
        const std::lock_guard lock(m_mutex);
        id = m_next++;
        m_entries[id] = {{id, connection, host}, channel};
    }
    channel->start(m_threads);
    sendEvent(CLIENT_STATUS, 1, id);
    return id;
}

bool ClientRegistry::remove(int client, std::uint64_t connection)
{
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_entries.find(client);
        if (found == m_entries.end() || found->second.client.connection != connection) {
            return false;
        }
        found->second.channel->stop();
        m_entries.erase(found);
    }
    sendEvent(CLIENT_STATUS);
    return true;
}

std::vector<int> ClientRegistry::removeConnection(std::uint64_t connection)
{
    std::vector<int> ids = clientsOf(connection);
    for (const int id : ids) {
        remove(id, connection);
    }
    return ids;
}

int ClientRegistry::count() const
{
    const std::lock_guard lock(m_mutex);
    return static_cast<int>(m_entries.size());
}

std::vector<ClientRegistry::Client> ClientRegistry::clients() const
{
    const std::lock_guard lock(m_mutex);
    std::vector<Client> result;
    for (const auto &item : m_entries) {
        result.push_back(item.second.client);
    }
    return result;
}

std::vector<int> ClientRegistry::clientsOf(std::uint64_t connection) const
{
    const std::lock_guard lock(m_mutex);
    std::vector<int> result;
    for (const auto &item : m_entries) {
        if (item.second.client.connection == connection) {
            result.push_back(item.first);
        }
    }
    return result;
}

void ClientRegistry::sendEvent(AppFcpEvent event, unsigned count, int except)
{
    const std::lock_guard lock(m_mutex);
    for (const auto &item : m_entries) {
        if (item.first != except) {
            item.second.channel->sendEvent(event, count);
        }
    }
}

void ClientRegistry::sendShutDown(bool canCancel)
{
    const std::lock_guard lock(m_mutex);
    for (const auto &item : m_entries) {
        item.second.channel->sendShutDown(canCancel);
    }
}

bool ClientRegistry::stop(std::chrono::milliseconds limit)
{
    {
        const std::lock_guard lock(m_mutex);
        for (const auto &item : m_entries) {
            item.second.channel->stop();
        }
        m_entries.clear();
    }
    return m_threads->waitForNone(limit);
}

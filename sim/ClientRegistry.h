#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include <FcpInterfaces.hh>

class ClientChannel;
class ThreadCount;

/**
 * The registered clients.
 *
 * Each has a queue and a thread of its own, which calls it: a slow client delays nobody. From any
 * thread.
 */
class ClientRegistry
{
public:
    struct Client
    {
        int id = 0;
        std::uint64_t connection = 0;
        std::string host;
    };

    /** @p cut cuts a connection; used on a client that can't be called. */
    explicit ClientRegistry(std::function<void(std::uint64_t connection)> cut);

    /** Adds a client and tells the others. @return its id, which was never given before */
    int add(std::uint64_t connection, const std::string &host, AppFcpInterfaceCORBA_ptr callback);
    /** Removes a client that registered over this connection and tells the others. */
    bool remove(int client, std::uint64_t connection);
    /** Removes all that registered over a connection. @return their ids */
    std::vector<int> removeConnection(std::uint64_t connection);

    int count() const;
    std::vector<Client> clients() const;
    /** The clients that registered over a connection, oldest first. */
    std::vector<int> clientsOf(std::uint64_t connection) const;

    /** Sends @p count events to every client but @p except. */
    void sendEvent(AppFcpEvent event, unsigned count = 1, int except = 0);
    void sendShutDown(bool canCancel);

    /** Ends all calls to clients. @return whether they ended within @p limit */
    bool stop(std::chrono::milliseconds limit);

private:
    struct Entry
    {
        Client client;
        std::shared_ptr<ClientChannel> channel;
    };

    const std::function<void(std::uint64_t)> m_cut;
    mutable std::mutex m_mutex;
    std::map<int, Entry> m_entries;
    std::shared_ptr<ThreadCount> m_threads;
    int m_next = 1;
};

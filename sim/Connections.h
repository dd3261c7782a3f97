#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <shared_mutex>
#include <string>
#include <thread>
#include <unordered_map>

namespace omni {
class giopConnection;
}

/** A client's connection, from when the ORB accepted it to when it is gone. */
struct Connection
{
    std::uint64_t id = 0; ///< never used again
    std::string host; ///< the client's address
    int socket = -1; ///< the ORB's; valid during a call that came over it
    std::uint64_t inode = 0; ///< tells this socket from a later one with the same number
    std::atomic<bool> gone = false;
    std::atomic<int> longCalls = 0; ///< calls under way that take long
};

/**
 * Knows which connections there are, and notices when one goes.
 *
 * The ORB tells when a connection comes and shows it with each call, but not when it goes. So a
 * thread looks a few times a second whether each socket is still the one that was accepted and
 * whether the other end has hung up; no client is called for that.
 *
 * TCP gives a connection up whose other end has vanished, or has not taken what was sent to it for
 * ten seconds.
 */
class Connections
{
public:
    using GoneHandler = std::function<void(std::uint64_t connection)>;

    /** Only one may exist at a time: the ORB's interceptors are plain functions. */
    Connections();
    ~Connections();

    /** Installs the interceptor; after the ORB was made and before it accepts connections. */
    void install();
    /** Begins to watch. @p handler is called on the watching thread, with Connection::gone set. */
    void watch(GoneHandler handler);

    /** The connection that a call came over. */
    std::shared_ptr<Connection> find(const omni::giopConnection *connection) const;
    /** Cuts a connection, whatever is being sent or received over it. */
    void cut(std::uint64_t connection);
    /** Cuts the connections whose clients do not take what was sent to them. */
    void cutBlocked();

    void accepted(omni::giopConnection *connection);

private:
    void run();
    void sweep();

    static constexpr int SweepInterval = 200; // milliseconds

    GoneHandler m_handler;
    mutable std::shared_mutex m_mutex;
    std::unordered_map<const omni::giopConnection *, std::shared_ptr<Connection>> m_connections;
    std::uint64_t m_next = 1;

    std::mutex m_stopMutex;
    std::condition_variable m_stopCondition;
    bool m_stopping = false;
    std::thread m_thread;
};

#pragma once

#include <memory>

#include <sys/socket.h>
#include <unistd.h>

/**
 * A second descriptor of a connection's socket, to see from outside the ORB that the peer has hung
 * up, and to hang up. The connection is not closed before the last descriptor is: let go of it when
 * the link goes.
 */
class SocketHandle
{
public:
    /// Takes @p descriptor over.
    explicit SocketHandle(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    ~SocketHandle() { ::close(m_descriptor); }

    SocketHandle(const SocketHandle &) = delete;
    SocketHandle &operator=(const SocketHandle &) = delete;

    int descriptor() const { return m_descriptor; }

    /// Ends the connection for both sides, whoever else has it open.
    void shutDown() const { ::shutdown(m_descriptor, SHUT_RDWR); }

private:
    const int m_descriptor;
};

using SharedSocket = std::shared_ptr<const SocketHandle>;

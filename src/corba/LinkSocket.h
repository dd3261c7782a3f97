#pragma once

#include <memory>
#include <optional>

#include <sys/socket.h>

/** A descriptor of a connection's socket that is open as long as the object lives. */
class SocketHandle
{
public:
    /// Takes @p descriptor over.
    explicit SocketHandle(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    ~SocketHandle();

    SocketHandle(const SocketHandle &) = delete;
    SocketHandle &operator=(const SocketHandle &) = delete;

    int descriptor() const { return m_descriptor; }

private:
    const int m_descriptor;
};

/**
 * The socket of the connection that a link has, seen from outside the ORB.
 *
 * The ORB owns the socket and closes it when it finds the connection broken. A descriptor held here
 * all the time would keep the connection half open then, and a controller from restarting on its
 * port. So the number is remembered, together with the local address, which tells whether the
 * number still stands for the same connection.
 */
class LinkSocket
{
public:
    /** Remembers the connection of @p descriptor; nothing when that is no socket. */
    static std::optional<LinkSocket> of(int descriptor);

    /** A descriptor for the time being; null when the ORB has closed the connection. */
    std::unique_ptr<SocketHandle> open() const;
    /** Ends the connection for both sides, if it is there still. */
    void shutDown() const;

private:
    int m_descriptor = -1;
    sockaddr_storage m_local = {};
    socklen_t m_localSize = 0;
};

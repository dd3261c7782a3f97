#pragma once

#include <QByteArray>

#include "LinkSocket.h"

/**
 * Says over which connection a call may go, and who may call this process.
 *
 * The ORB replaces a broken connection silently: the next call opens a fresh one and succeeds,
 * while the controller knows no callback on it. The gate makes that a failed call instead. It works
 * through the ORB's interceptors, which run on the thread that makes the call.
 */
namespace ConnectionGate {

/** Puts the gate into the ORB; after every ORB_init, since destroying an ORB removes it. */
void install();

/**
 * While it lives, calls of this thread go out over @p connection or fail with
 * CORBA::TRANSIENT, in which case nothing was sent and the connection that was there instead is
 * unharmed. Does not nest.
 */
class BoundCall
{
public:
    explicit BoundCall(const QByteArray &connection);
    ~BoundCall();

    BoundCall(const BoundCall &) = delete;
    BoundCall &operator=(const BoundCall &) = delete;
};

/** While it lives, it notes what becomes of this thread's calls that register. Does not nest. */
class Registration
{
public:
    Registration();
    ~Registration();

    Registration(const Registration &) = delete;
    Registration &operator=(const Registration &) = delete;

    /** How many connections were opened for these calls. */
    int openedConnections() const { return m_openedConnections; }
    void countConnection() { ++m_openedConnections; }

    /** The connection's local address, which names it; empty before registerApp was sent. */
    const QByteArray &connection() const { return m_connection; }
    /** The socket of that connection; none when it is not one over TCP. */
    const std::optional<LinkSocket> &socket() const { return m_socket; }
    void setConnection(const char *address, const std::optional<LinkSocket> &socket)
    {
        m_connection = address;
        m_socket = socket;
    }

private:
    int m_openedConnections = 0;
    QByteArray m_connection;
    std::optional<LinkSocket> m_socket;
};

} // namespace ConnectionGate

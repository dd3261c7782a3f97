#pragma once

#include <QByteArray>
#include <QString>

#include <atomic>

#include <FcpContents.hh>
#include <FcpInterfaces.hh>

#include "LinkSocket.h"

/**
 * One link to the controller: its references, and the connection on which this client registered.
 *
 * Shared by all who make calls on it; a new connectToFCP() makes a new one. The calls in here are
 * raw: they throw, and leave it to the proxy what that means.
 */
class FcpLink
{
public:
    FcpLink(FcpAppInterfaceCORBA_ptr controller, FcpContentsCORBA_ptr contents,
            CORBA::Long clientId, const QByteArray &connection,
            const std::optional<LinkSocket> &socket, quint64 serial);

    FcpAppInterfaceCORBA_ptr controller() const { return m_controller.in(); }
    CORBA::Long clientId() const { return m_clientId; }
    /** The local address of the connection, as ConnectionGate knows it. */
    const QByteArray &connection() const { return m_connection; }
    quint64 serial() const { return m_serial; }

    /** The socket of the connection, to watch it; null when the connection has ended. */
    std::unique_ptr<SocketHandle> openSocket() const;
    /**
     * Ends the connection: calls on it fail, the controller sees at once that this client is gone,
     * and the ORB can not take it for another link.
     */
    void hangUp() const;

    /** How many links the proxy had lost when this one became current. */
    quint64 lossesBefore() const { return m_lossesBefore; }
    void setLossesBefore(quint64 losses) { m_lossesBefore = losses; }

    /** Whether the caller is the one to unregister: true once. */
    bool takeRegistration() { return m_registered.exchange(false); }

    FileSystemResult openFile(const QString &path, bool write, bool overwrite, long &handle);
    FileSystemResult closeFile(long handle);
    FileSystemResult pushFileContents(long handle, const char *data, long size);
    /** Into @p bytes as they came, @p wanted at most: more than that is an error and leaves none.
     */
    FileSystemResult pullFileContents(long handle, long wanted, OctetSequence_var &bytes);

private:
    const FcpAppInterfaceCORBA_var m_controller;
    const FcpContentsCORBA_var m_contents;
    const CORBA::Long m_clientId;
    const QByteArray m_connection;
    const std::optional<LinkSocket> m_socket;
    const quint64 m_serial;
    std::atomic<quint64> m_lossesBefore = 0;
    std::atomic<bool> m_registered = true;
};

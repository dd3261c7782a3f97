#include "FcpLink.h"

#include "CorbaLogging.h"
#include "WireConversion.h"

FcpLink::FcpLink(FcpAppInterfaceCORBA_ptr controller, FcpContentsCORBA_ptr contents,
                 CORBA::Long clientId, const QByteArray &connection,
                 const std::optional<LinkSocket> &socket, quint64 serial)
    : m_controller(FcpAppInterfaceCORBA::_duplicate(controller))
    , m_contents(FcpContentsCORBA::_duplicate(contents))
    , m_clientId(clientId)
    , m_connection(connection)
    , m_socket(socket)
    , m_serial(serial)
{
}

std::unique_ptr<SocketHandle> FcpLink::openSocket() const
{
    return m_socket ? m_socket->open() : nullptr;
}

void FcpLink::hangUp() const
{
    if (m_socket) {
        m_socket->shutDown();
    }
}

FileSystemResult FcpLink::openFile(const QString &path, bool write, bool overwrite, long &handle)
{
    CORBA::Long wireHandle = 0;
    const FileSystemResult result = m_controller->openFile(WireConversion::toWire(path).constData(),
                                                           write, overwrite, wireHandle);
    handle = wireHandle;
    return result;
}

FileSystemResult FcpLink::closeFile(long handle)
{
    return m_controller->closeFile(WireConversion::toWire(handle));
}

FileSystemResult FcpLink::pushFileContents(long handle, const char *data, long size)
{
    // Borrows the caller's bytes: nothing is copied before they reach the socket.
    const auto length = static_cast<CORBA::ULong>(size);
    auto *bytes = reinterpret_cast<CORBA::Octet *>(const_cast<char *>(data));
    const OctetSequence borrowed(length, length, bytes, false);
    return m_contents->pushFileContents(WireConversion::toWire(handle), borrowed);
}

FileSystemResult FcpLink::pullFileContents(long handle, long wanted, OctetSequence_var &bytes)
{
    const FileSystemResult result = m_contents->pullFileContents(
        WireConversion::toWire(handle), WireConversion::toWire(wanted), bytes.out());
    if (static_cast<long>(bytes->length()) > wanted) {
        qCWarning(lcCorba) << "the controller sent" << bytes->length() << "bytes where" << wanted
                           << "were asked for; they are dropped";
        bytes->length(0);
        return FS_ERROR;
    }
    return result;
}

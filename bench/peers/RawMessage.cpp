#include "RawMessage.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

namespace {

constexpr size_t BufferSize = RawChunk + 4096;

} // namespace

RawConnection::RawConnection(int fd)
    : m_fd(fd)
    , m_outgoing(BufferSize)
    , m_incoming(BufferSize)
{
    const int yes = 1;
    ::setsockopt(m_fd, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
}

RawConnection::~RawConnection()
{
    ::close(m_fd);
}

char *RawConnection::outgoingPayload(size_t size, size_t payloadSize)
{
    return m_outgoing.data() + size - payloadSize;
}

bool RawConnection::send(RawOperation operation, size_t size, size_t payloadSize,
                         std::uint32_t status)
{
    const RawHeader header {static_cast<std::uint32_t>(size), operation,
                            static_cast<std::uint32_t>(payloadSize), status};
    std::memcpy(m_outgoing.data(), &header, sizeof header);
    size_t sent = 0;
    while (sent < size) {
        const ssize_t count = ::send(m_fd, m_outgoing.data() + sent, size - sent, MSG_NOSIGNAL);
        if (count <= 0) {
            return false;
        }
        sent += static_cast<size_t>(count);
    }
    return true;
}

bool RawConnection::receive(RawHeader &header)
{
    m_received = 0;
    size_t size = sizeof header;
    while (m_received < size) {
        const ssize_t count =
            ::recv(m_fd, m_incoming.data() + m_received, BufferSize - m_received, 0);
        if (count <= 0) {
            return false;
        }
        m_received += static_cast<size_t>(count);
        if (m_received >= sizeof header) {
            std::memcpy(&header, m_incoming.data(), sizeof header);
            size = std::min<size_t>(header.size, BufferSize);
        }
    }
    m_payloadSize = header.payloadSize;
    return true;
}

#include "LinkSocket.h"

#include <cstring>

#include <fcntl.h>
#include <unistd.h>

SocketHandle::~SocketHandle()
{
    ::close(m_descriptor);
}

std::optional<LinkSocket> LinkSocket::of(int descriptor)
{
    LinkSocket socket;
    socket.m_descriptor = descriptor;
    socket.m_localSize = sizeof socket.m_local;
    auto *address = reinterpret_cast<sockaddr *>(&socket.m_local);
    if (::getsockname(descriptor, address, &socket.m_localSize) != 0) {
        return {};
    }
    return socket;
}

std::unique_ptr<SocketHandle> LinkSocket::open() const
{
    const int copy = ::fcntl(m_descriptor, F_DUPFD_CLOEXEC, 0);
    if (copy < 0) {
        return nullptr;
    }
    // Only now that it can't change hands any more is it worth asking whose it is.
    auto handle = std::make_unique<SocketHandle>(copy);
    const std::optional<LinkSocket> found = of(copy);
    const bool isSame = found && found->m_localSize == m_localSize
        && std::memcmp(&found->m_local, &m_local, m_localSize) == 0;
    return isSame ? std::move(handle) : nullptr;
}

void LinkSocket::shutDown() const
{
    if (const auto handle = open()) {
        ::shutdown(handle->descriptor(), SHUT_RDWR);
    }
}

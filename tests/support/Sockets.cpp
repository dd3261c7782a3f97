#include "Sockets.h"

#include <cerrno>
#include <cstring>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

namespace {

sockaddr_in loopback(quint16 port)
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

} // namespace

FileDescriptor listenOn(quint16 port)
{
    FileDescriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const int on = 1;
    ::setsockopt(socket.get(), SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    const sockaddr_in address = loopback(port);
    if (::bind(socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0
        || ::listen(socket.get(), 64) != 0) {
        qFatal("Can not listen on port %d: %s", int(port), std::strerror(errno));
    }
    return socket;
}

FileDescriptor connectTo(quint16 port)
{
    FileDescriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    const sockaddr_in address = loopback(port);
    const auto *any = reinterpret_cast<const sockaddr *>(&address);
    if (::connect(socket.get(), any, sizeof address) != 0) {
        socket.reset();
    }
    return socket;
}

quint16 localPort(const FileDescriptor &socket)
{
    sockaddr_in address = {};
    socklen_t size = sizeof address;
    ::getsockname(socket.get(), reinterpret_cast<sockaddr *>(&address), &size);
    return ntohs(address.sin_port);
}

void makeNonBlocking(const FileDescriptor &socket)
{
    const int on = 1;
    ::setsockopt(socket.get(), IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    ::fcntl(socket.get(), F_SETFL, ::fcntl(socket.get(), F_GETFL) | O_NONBLOCK);
}

void resetOnClose(const FileDescriptor &socket)
{
    const linger now = {1, 0};
    ::setsockopt(socket.get(), SOL_SOCKET, SO_LINGER, &now, sizeof now);
}

// The other end of plain TCP: carries out the file operations of a controller, nothing else.
// Prints the port it listens on and serves one connection after the other until it is killed.

#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdio>
#include <string>

#include "RawMessage.h"

namespace {

class Session
{
public:
    explicit Session(int fd)
        : m_connection(fd)
    {
    }
    ~Session() { closeFile(); }

    void serve()
    {
        RawHeader request;
        while (m_connection.receive(request) && answer(request)) { }
    }

private:
    bool answer(const RawHeader &request)
    {
        switch (request.operation) {
        case RawOperation::Ping:
            return m_connection.send(request.operation, replySize(4), 0);
        case RawOperation::OpenToWrite:
            return open(request, O_WRONLY | O_CREAT | O_TRUNC);
        case RawOperation::OpenToRead:
            return open(request, O_RDONLY);
        case RawOperation::Push:
            return push(request);
        case RawOperation::Pull:
            return pull(request);
        case RawOperation::Close:
            return m_connection.send(request.operation, replySize(4), 0, closeFile() ? 0 : 1);
        }
        return false;
    }

    bool open(const RawHeader &request, int flags)
    {
        closeFile();
        const std::string path(m_connection.payload(), request.payloadSize);
        m_file = ::open(path.c_str(), flags | O_CLOEXEC, 0644);
        return m_connection.send(request.operation, replySize(8), 0, m_file < 0 ? 1 : 0);
    }

    bool push(const RawHeader &request)
    {
        const ssize_t written = ::write(m_file, m_connection.payload(), request.payloadSize);
        const bool whole = written == static_cast<ssize_t>(request.payloadSize);
        return m_connection.send(request.operation, replySize(4), 0, whole ? 0 : 1);
    }

    bool pull(const RawHeader &request)
    {
        constexpr size_t head = replySize(8);
        const ssize_t count = ::read(m_file, m_connection.outgoingPayload(head, 0), RawChunk);
        const size_t length = count < 0 ? 0 : static_cast<size_t>(count);
        return m_connection.send(request.operation, head + length, length, count < 0 ? 1 : 0);
    }

    bool closeFile()
    {
        const bool closed = m_file < 0 || ::close(m_file) == 0;
        m_file = -1;
        return closed;
    }

    RawConnection m_connection;
    int m_file = -1;
};

int listenOnLoopback()
{
    const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto *generic = reinterpret_cast<sockaddr *>(&address);
    if (::bind(fd, generic, length) != 0 || ::listen(fd, 1) != 0
        || ::getsockname(fd, generic, &length) != 0) {
        return -1;
    }
    std::printf("port %d\n", ntohs(address.sin_port));
    std::fflush(stdout);
    return fd;
}

} // namespace

int main()
{
    const int listener = listenOnLoopback();
    if (listener < 0) {
        std::perror("bench-raw-peer");
        return 1;
    }
    while (true) {
        const int fd = ::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (fd >= 0) {
            Session(fd).serve();
        }
    }
}

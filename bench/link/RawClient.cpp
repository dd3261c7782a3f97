#include "RawClient.h"

#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstring>
#include <stdexcept>

#include "Workbench.h"

namespace {

/// A local file, opened and used without a buffer of its own.
class LocalFile
{
public:
    LocalFile(const QString &path, int flags)
        : m_fd(::open(path.toLocal8Bit().constData(), flags | O_CLOEXEC, 0644))
    {
        if (m_fd < 0) {
            throw std::runtime_error("plain TCP: cannot open " + path.toStdString());
        }
    }
    ~LocalFile() { ::close(m_fd); }

    LocalFile(const LocalFile &) = delete;
    LocalFile &operator=(const LocalFile &) = delete;

    size_t read(char *target)
    {
        const ssize_t count = ::read(m_fd, target, RawChunk);
        return check(count);
    }
    void write(const char *bytes, size_t size)
    {
        if (check(::write(m_fd, bytes, size)) != size) {
            throw std::runtime_error("plain TCP: the disk is full");
        }
    }

private:
    static size_t check(ssize_t count)
    {
        if (count < 0) {
            throw std::runtime_error("plain TCP: local file error");
        }
        return static_cast<size_t>(count);
    }

    const int m_fd;
};

int connectTo(quint16 port)
{
    const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0) {
        ::close(fd);
        throw std::runtime_error("plain TCP: cannot connect");
    }
    return fd;
}

} // namespace

RawClient::RawClient()
    : m_peer(besideThisProgram(QStringLiteral("bench-raw-peer")), {})
{
    const quint16 port = m_peer.waitForLine(QStringLiteral("port ")).toUShort();
    m_connection = std::make_unique<RawConnection>(connectTo(port));
}

RawHeader RawClient::exchange(RawOperation operation, size_t size, size_t payloadSize)
{
    RawHeader reply;
    if (!m_connection->send(operation, size, payloadSize) || !m_connection->receive(reply)
        || reply.status != 0) {
        throw std::runtime_error("plain TCP: the peer failed");
    }
    return reply;
}

void RawClient::ping()
{
    exchange(RawOperation::Ping, requestSize("isMaximumClientCountOK", 0), 0);
}

void RawClient::open(RawOperation operation, const QString &path)
{
    const QByteArray bytes = path.toLocal8Bit();
    const size_t length = static_cast<size_t>(bytes.size());
    // A length, the text with its terminator, and two booleans.
    const size_t size = requestSize("openFile", 4 + length + 1 + 2);
    std::memcpy(m_connection->outgoingPayload(size, length), bytes.constData(), length);
    exchange(operation, size, length);
}

void RawClient::close()
{
    exchange(RawOperation::Close, requestSize("closeFile", 4), 0);
}

void RawClient::upload(const QString &localPath, const QString &remotePath)
{
    LocalFile local(localPath, O_RDONLY);
    open(RawOperation::OpenToWrite, remotePath);
    constexpr size_t head = requestSize("pushFileContents", 8);
    while (const size_t count = local.read(m_connection->outgoingPayload(head, 0))) {
        exchange(RawOperation::Push, head + count, count);
    }
    close();
}

void RawClient::download(const QString &remotePath, const QString &localPath)
{
    LocalFile local(localPath, O_WRONLY | O_CREAT | O_TRUNC);
    open(RawOperation::OpenToRead, remotePath);
    size_t count = RawChunk;
    // A short block is the last one, as the controller says with its last answer.
    while (count == RawChunk) {
        count = exchange(RawOperation::Pull, requestSize("pullFileContents", 8), 0).payloadSize;
        local.write(m_connection->payload(), count);
    }
    close();
}

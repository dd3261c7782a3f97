#pragma once

#include <QString>

#include <memory>

#include "harness/ChildProcess.h"
#include "peers/RawMessage.h"

/**
 * Plain TCP with a peer in a process of its own: the same exchanges, the same sizes and the same
 * files as a transfer over the link. Throws std::runtime_error when something fails.
 */
class RawClient
{
public:
    RawClient();

    void ping();
    void upload(const QString &localPath, const QString &remotePath);
    void download(const QString &remotePath, const QString &localPath);
    qint64 peerId() const { return m_peer.id(); }

private:
    RawHeader exchange(RawOperation operation, size_t size, size_t payloadSize);
    void open(RawOperation operation, const QString &path);
    void close();

    ChildProcess m_peer;
    std::unique_ptr<RawConnection> m_connection;
};

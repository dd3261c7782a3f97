#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

/**
 * @file
 * Messages over plain TCP with the sizes that the same calls have on the controller's wire, so that
 * what an ORB, a proxy and a simulator add can be told from what TCP and the file system cost.
 */

/** The bytes of a GIOP 1.2 request to the controller: header, object key, operation, arguments. */
constexpr size_t requestSize(std::string_view operation, size_t argumentsSize)
{
    constexpr size_t objectKey = 13;
    const auto aligned = [](size_t size, size_t to) { return (size + to - 1) / to * to; };
    const size_t untilOperation = aligned(28 + objectKey, 4) + 4;
    const size_t header = aligned(untilOperation + operation.size() + 1, 4) + 4;
    return argumentsSize == 0 ? header : aligned(header, 8) + argumentsSize;
}

/** The bytes of a GIOP 1.2 reply. */
constexpr size_t replySize(size_t resultsSize)
{
    return 24 + resultsSize;
}

static_assert(requestSize("isMaximumClientCountOK", 0) == 76);
static_assert(requestSize("closeFile", 4) == 68);
static_assert(requestSize("pushFileContents", 8 + 131072) == 131152);
static_assert(replySize(4) == 28);

/** The size of the blocks in which file contents travel. */
constexpr size_t RawChunk = 131072;

enum class RawOperation : std::uint32_t { Ping, OpenToWrite, OpenToRead, Push, Pull, Close };

/** What every message begins with; the payload is at its end, filling lies between. */
struct RawHeader
{
    std::uint32_t size = 0;
    RawOperation operation = RawOperation::Ping;
    std::uint32_t payloadSize = 0;
    std::uint32_t status = 0; ///< 0: fine
};

/** One end of a connection, a message at a time in either direction. */
class RawConnection
{
public:
    /** Takes @p fd over. */
    explicit RawConnection(int fd);
    ~RawConnection();

    RawConnection(const RawConnection &) = delete;
    RawConnection &operator=(const RawConnection &) = delete;

    /**
     * Sends a message of @p size bytes; its payload is what payload(size) had put into it before.
     * @return false when the connection is gone, like receive().
     */
    bool send(RawOperation operation, size_t size, size_t payloadSize, std::uint32_t status = 0);
    bool receive(RawHeader &header);

    /** Where the last @p payloadSize bytes of an outgoing message of @p size bytes go. */
    char *outgoingPayload(size_t size, size_t payloadSize);
    /** The payload of the message received last. */
    const char *payload() const { return m_incoming.data() + m_received - m_payloadSize; }

private:
    const int m_fd;
    std::vector<char> m_outgoing;
    std::vector<char> m_incoming;
    size_t m_received = 0;
    size_t m_payloadSize = 0;
};

#include "LogConsole.h"

#include <cerrno>
#include <climits>
#include <poll.h>
#include <unistd.h>

namespace {

constexpr int patienceMs = 200;

} // namespace

void LogConsole::write(const QByteArray &lines)
{
    QByteArrayView rest(lines);
    while (!rest.isEmpty()) {
        // A pipe that is ready takes this much without blocking.
        const auto part = rest.first(qMin<qsizetype>(rest.size(), PIPE_BUF));
        if (!isReady() || !writeSome(part)) {
            return;
        }
        rest = rest.sliced(part.size());
    }
}

bool LogConsole::isReady()
{
    pollfd descriptor {STDERR_FILENO, POLLOUT, 0};
    const int ready = ::poll(&descriptor, 1, m_stuck ? 0 : patienceMs);
    m_stuck = ready <= 0 || (descriptor.revents & POLLOUT) == 0;
    return !m_stuck;
}

bool LogConsole::writeSome(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(STDERR_FILENO, bytes.data(), size_t(bytes.size()));
        if (written < 0 && errno != EINTR) {
            return false;
        }
        bytes = bytes.sliced(qMax<ssize_t>(written, 0));
    }
    return true;
}

#include "Bell.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

Bell::Bell()
    : m_event(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    if (m_event < 0) {
        qFatal("no descriptor is left for an event");
    }
}

Bell::~Bell()
{
    ::close(m_event);
}

void Bell::ring()
{
    const std::uint64_t one = 1;
    // It fails only when the bell is ringing since 2^64 - 2 rings.
    [[maybe_unused]] const auto written = ::write(m_event, &one, sizeof one);
}

Bell::Woken Bell::wait(std::chrono::milliseconds timeOut, int socket)
{
    // poll() passes over a negative descriptor.
    std::array<pollfd, 2> watched = {pollfd {m_event, POLLIN, 0}, pollfd {socket, POLLRDHUP, 0}};
    constexpr std::chrono::milliseconds longest(std::numeric_limits<int>::max());
    const int limit =
        timeOut.count() < 0 ? -1 : static_cast<int>(std::min(timeOut, longest).count());
    // An interrupted wait counts as timed out: those who wait look at the clock anyway.
    if (::poll(watched.data(), watched.size(), limit) <= 0) {
        return Woken::TimedOut;
    }
    if (watched[0].revents != 0) {
        std::uint64_t rings = 0;
        [[maybe_unused]] const auto read = ::read(m_event, &rings, sizeof rings);
        return Woken::Rung;
    }
    return Woken::HungUp;
}

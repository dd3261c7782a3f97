#include "Interrupt.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

#include <sys/eventfd.h>
#include <unistd.h>

namespace {

constexpr std::array Signals {SIGINT, SIGTERM, SIGHUP};

// Only what a signal handler may touch.
std::atomic<int> caught = 0;
int wakeUp = -1;
static_assert(std::atomic<int>::is_always_lock_free);

void restoreDefaults()
{
    for (const int number : Signals) {
        struct sigaction current = {};
        ::sigaction(number, nullptr, &current);
        if (current.sa_handler != SIG_IGN) {
            current = {};
            current.sa_handler = SIG_DFL;
            ::sigaction(number, &current, nullptr);
        }
    }
}

void onSignal(int number)
{
    const int savedErrno = errno;
    restoreDefaults();
    caught = number;
    constexpr eventfd_t One = 1;
    [[maybe_unused]] const ssize_t written = ::write(wakeUp, &One, sizeof One);
    errno = savedErrno;
}

} // namespace

Interrupt::Interrupt()
{
    caught = 0;
    wakeUp = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    for (const int number : Signals) {
        struct sigaction action = {};
        ::sigaction(number, nullptr, &action);
        if (action.sa_handler != SIG_IGN) { // a job that was started with it ignored keeps it so
            action = {};
            action.sa_handler = onSignal;
            action.sa_flags = SA_RESTART;
            ::sigaction(number, &action, nullptr);
        }
    }
}

Interrupt::~Interrupt()
{
    restoreDefaults();
    ::close(wakeUp);
    wakeUp = -1;
}

int Interrupt::signal() const
{
    return caught;
}

int Interrupt::descriptor() const
{
    return wakeUp;
}

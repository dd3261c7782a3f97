#include "TestProcess.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <signal.h>
#include <sys/signalfd.h>
#include <sys/socket.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "UniqueFd.h"

namespace {

UniqueFd listenOnLoopback(unsigned short &port)
{
    UniqueFd fd(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto *generic = reinterpret_cast<sockaddr *>(&address);
    if (::bind(fd.get(), generic, length) != 0 || ::listen(fd.get(), 16) != 0
        || ::getsockname(fd.get(), generic, &length) != 0) {
        return {};
    }
    port = ntohs(address.sin_port);
    return fd;
}

void greet(int listener)
{
    const UniqueFd client(::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC));
    if (client) {
        const char *name = std::getenv("FCP_TEST_NAME");
        const std::string text = std::string(name ? name : "test") + '\n';
        ::send(client.get(), text.data(), text.size(), MSG_NOSIGNAL);
    }
}

/// Serves the port for a while (0: for ever), or until SIGTERM. @return whether time is up
bool serve(int milliseconds, int listener, int signals)
{
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + std::chrono::milliseconds(milliseconds);
    pollfd fds[2] = {{signals, POLLIN, 0}, {listener, POLLIN, 0}};
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        if (milliseconds > 0 && left <= 0) {
            return true;
        }
        ::poll(fds, 2, milliseconds > 0 ? static_cast<int>(left) : -1);
        if (fds[0].revents != 0) {
            return false;
        }
        if (fds[1].revents != 0) {
            greet(listener);
        }
    }
}

void say(const std::string &line)
{
    std::puts(line.c_str());
    std::fflush(stdout);
}

} // namespace

int runTestProcess(int argc, char **argv)
{
    if (argc < 5) {
        return 2;
    }
    sigset_t mask;
    sigemptyset(&mask);
    sigaddset(&mask, SIGTERM);
    ::sigprocmask(SIG_BLOCK, &mask, nullptr);
    const UniqueFd signals(::signalfd(-1, &mask, SFD_CLOEXEC));

    const int start = std::atoi(argv[2]);
    const int run = std::atoi(argv[3]);
    const int close = std::atoi(argv[4]);
    if (start == 0 || serve(start, -1, signals.get())) {
        unsigned short port = 0;
        const UniqueFd listener = listenOnLoopback(port);
        if (!listener) {
            return 1;
        }
        say("port " + std::to_string(port));
        serve(run, listener.get(), signals.get());
    }
    say("closing");
    ::poll(nullptr, 0, close);
    return 0;
}

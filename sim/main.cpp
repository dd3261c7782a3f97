#include <QCoreApplication>
#include <QSocketNotifier>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstring>

#include "Console.h"
#include "Options.h"
#include "Simulator.h"
#include "TestProcess.h"

namespace {

int signalPipe[2] = {-1, -1};

void onStopSignal(int)
{
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &byte, 1);
}

void catchStopSignals()
{
    if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    auto *notifier =
        new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
    std::signal(SIGTERM, onStopSignal);
    std::signal(SIGINT, onStopSignal);
    std::signal(SIGPIPE, SIG_IGN);
}

/// Each client takes one, and so does each file that it has open.
void raiseDescriptorLimit()
{
    rlimit limit = {};
    if (::getrlimit(RLIMIT_NOFILE, &limit) == 0) {
        limit.rlim_cur = limit.rlim_max;
        ::setrlimit(RLIMIT_NOFILE, &limit);
    }
}

int fail(const QString &error, int code)
{
    std::fprintf(stderr, "fcp-sim: %s\n", qPrintable(error));
    return code;
}

int run(const Options &options)
{
    catchStopSignals();
    Simulator simulator(options);
    if (const Simulator::ExitCode code = simulator.start(); code != Simulator::Done) {
        return fail(simulator.error(), code);
    }
    const Console console(simulator);
    std::printf("fcp-sim: root %s\nfcp-sim: listening on port %u\n",
                qPrintable(simulator.rootDirectory()), unsigned(simulator.port()));
    std::fflush(stdout);
    QCoreApplication::exec();
    if (!simulator.stop()) {
        ::_exit(Simulator::Done);
    }
    return Simulator::Done;
}

} // namespace

#ifdef __SANITIZE_THREAD__
/// Starting a test forks, which does no harm: the child does nothing but to become the test.
extern "C" __attribute__((visibility("default"))) const char *__tsan_default_options()
{
    return "die_after_fork=0";
}
#endif

int main(int argc, char **argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--test-process") == 0) {
        return runTestProcess(argc, argv);
    }
    raiseDescriptorLimit();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("fcp-sim"));
    QCoreApplication::setApplicationVersion(QStringLiteral(FCP_SIM_VERSION));
    const Options options = readOptions(QCoreApplication::arguments());
    if (!options.error.isEmpty()) {
        return fail(options.error, Simulator::BadInput);
    }
    if (!options.answer.isEmpty()) {
        std::fputs(qPrintable(options.answer), stdout);
        return Simulator::Done;
    }
    return run(options);
}

#include "Output.h"

#include "Failure.h"
#include "Text.h"

#include <QJsonDocument>

#include <cerrno>
#include <csignal>
#include <cstdio>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void waitUntilWritable(int descriptor)
{
    pollfd waiting {descriptor, POLLOUT, 0};
    ::poll(&waiting, 1, -1);
}

void writeOrThrow(const QByteArray &bytes)
{
    if (const int error = Output::tryWrite(bytes)) {
        throw Failure {Exit::Failed,
                       u"cannot write to standard output: "_s + qt_error_string(error)};
    }
}

} // namespace

namespace Output {

void reserveStandardStreams()
{
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        if (::fcntl(descriptor, F_GETFD) == -1 && errno == EBADF) {
            // The wrong way round on purpose: using a stream that was closed stays an error.
            const int mode = descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY;
            if (::open("/dev/null", mode) != descriptor) {
                ::_exit(static_cast<int>(Exit::Failed));
            }
        }
    }
}

bool isTerminal()
{
    static const bool terminal = ::isatty(STDOUT_FILENO) != 0;
    return terminal;
}

QString name(const QString &name)
{
    return isTerminal() ? printable(name) : name;
}

int tryWrite(const QByteArray &bytes)
{
    const char *data = bytes.constData();
    auto left = static_cast<std::size_t>(bytes.size());
    while (left > 0) {
        const ssize_t written = ::write(STDOUT_FILENO, data, left);
        if (written >= 0) {
            data += written;
            left -= static_cast<std::size_t>(written);
        } else if (errno == EAGAIN) {
            waitUntilWritable(STDOUT_FILENO);
        } else if (errno == EPIPE) {
            // The ORB has the signal ignored.
            std::signal(SIGPIPE, SIG_DFL);
            std::raise(SIGPIPE);
            return EPIPE;
        } else if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

void write(const QString &text)
{
    writeOrThrow(toShell(text));
}

void line(const QString &text)
{
    write(text + u'\n');
}

void json(const QJsonObject &object)
{
    writeOrThrow(QJsonDocument(object).toJson());
}

void json(const QJsonArray &array)
{
    writeOrThrow(QJsonDocument(array).toJson());
}

void error(const QString &message)
{
    std::fprintf(stderr, "fcpctl: %s\n", toShell(message).constData());
}

} // namespace Output

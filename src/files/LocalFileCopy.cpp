#include "LocalFileCopy.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "FileDescriptor.h"

namespace {

constexpr qsizetype ChunkSize = 1 << 20;

QString say(const char *text)
{
    return QCoreApplication::translate("LocalFileCopy", text);
}

FileDescriptor openFile(const QString &path, int flags, mode_t mode = 0)
{
    return FileDescriptor(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, mode));
}

TransferStep readFailed()
{
    return TransferStep::failed(say(QT_TRANSLATE_NOOP("LocalFileCopy", "it cannot be read: %1"))
                                    .arg(qt_error_string(errno)));
}

TransferStep writeFailed()
{
    const bool isFull = errno == ENOSPC || errno == EDQUOT;
    const QString reason = say(QT_TRANSLATE_NOOP("LocalFileCopy", "it cannot be written: %1"))
                               .arg(qt_error_string(errno));
    return isFull ? TransferStep::fatal(reason) : TransferStep::failed(reason);
}

bool writeAll(int fd, const char *data, ssize_t size)
{
    while (size > 0) {
        const ssize_t written = ::write(fd, data, static_cast<size_t>(size));
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            return false;
        }
        data += written;
        size -= written;
    }
    return true;
}

TransferStep copyContents(int from, int to, const LocalFileCopy::Progress &progress)
{
    QByteArray buffer(ChunkSize, Qt::Uninitialized);
    qint64 done = 0;
    while (progress(done)) {
        const ssize_t length = ::read(from, buffer.data(), static_cast<size_t>(buffer.size()));
        if (length < 0 && errno == EINTR) {
            continue;
        }
        if (length < 0) {
            return readFailed();
        }
        if (length == 0) {
            return TransferStep::done();
        }
        if (!writeAll(to, buffer.constData(), length)) {
            return writeFailed();
        }
        done += length;
    }
    return TransferStep::cancelled();
}

/// A file system without permissions (a memory stick's) refuses them; that is no failure.
void copyAttributes(const struct stat &status, int to)
{
    constexpr mode_t permissions = 0777;
    if (::fchmod(to, status.st_mode & permissions) != 0) {
        errno = 0;
    }
    const timespec times[] = {status.st_atim, status.st_mtim};
    ::futimens(to, times);
}

} // namespace

TransferStep LocalFileCopy::copy(const QString &source, const QString &target,
                                 const Progress &progress)
{
    // A pipe that has taken the file's place meanwhile must not block.
    const FileDescriptor from = openFile(source, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
    struct stat status = {};
    if (!from || ::fstat(from.get(), &status) != 0) {
        return readFailed();
    }
    if (!S_ISREG(status.st_mode)) {
        return TransferStep::failed(
            say(QT_TRANSLATE_NOOP("LocalFileCopy", "it is no file any more")));
    }
    const FileDescriptor to = openFile(target, O_WRONLY | O_CREAT | O_EXCL, 0600);
    if (!to) {
        return writeFailed();
    }
    TransferStep step = copyContents(from.get(), to.get(), progress);
    if (step.isDone()) {
        copyAttributes(status, to.get());
    }
    return step;
}

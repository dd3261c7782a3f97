#include "LocalTarget.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStorageInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "FileNames.h"
#include "FilePaths.h"
#include "TemporaryName.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString dateText(time_t seconds)
{
    return QLocale().toString(QDateTime::fromSecsSinceEpoch(seconds), QLocale::ShortFormat);
}

/// @return 0 or an errno value. A file system that can't flush (EINVAL) has nothing to flush.
int flushToMedium(const QString &path, int flags)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    if (descriptor < 0) {
        return errno;
    }
    const int error = ::fsync(descriptor) == 0 || errno == EINVAL ? 0 : errno;
    ::close(descriptor);
    return error;
}

/// @return 0 or an errno value.
int renameFile(const QByteArray &from, const QByteArray &to, bool replace)
{
    if (replace) {
        return ::rename(from.constData(), to.constData()) == 0 ? 0 : errno;
    }
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return errno;
    }
    // The file system can't tell; what appears between these two lines is replaced.
    struct stat status = {};
    return ::lstat(to.constData(), &status) == 0 ? EEXIST : renameFile(from, to, true);
}

} // namespace

TransferStep LocalTarget::find(const QString &folder, const QString &name,
                               std::optional<Entry> &entry)
{
    const QString path = FilePaths::join(folder, name);
    struct stat status = {};
    entry.reset();
    if (::lstat(QFile::encodeName(path).constData(), &status) == 0) {
        entry = Entry {S_ISDIR(status.st_mode), status.st_size, dateText(status.st_mtime)};
        return TransferStep::done();
    }
    return errno == ENOENT ? TransferStep::done()
                           : TransferStep::failed(tr("%1: %2").arg(path, qt_error_string(errno)));
}

TransferStep LocalTarget::makeFolder(const QString &folder, const QString &name)
{
    const QString path = FilePaths::join(folder, name);
    if (::mkdir(QFile::encodeName(path).constData(), 0777) != 0) {
        if (errno == EEXIST) {
            return TransferStep::exists();
        }
        return TransferStep::failed(
            tr("the folder %1 cannot be made: %2").arg(path, qt_error_string(errno)));
    }
    m_unflushed.insert(folder);
    return TransferStep::done();
}

QHash<QString, QStringList> &LocalTarget::leftoversIn(const QString &folder)
{
    const auto known = m_leftovers.find(folder);
    if (known != m_leftovers.end()) {
        return *known;
    }
    QHash<QString, QStringList> &leftovers = m_leftovers[folder];
    const QStringList names =
        QDir(folder).entryList({u".*.vexpart*"_s}, QDir::Files | QDir::Hidden);
    for (const QString &name : names) {
        if (const auto leftover = TemporaryName::leftover(name)) {
            leftovers[leftover->stem].append(name);
        }
    }
    return leftovers;
}

TransferStep LocalTarget::removeLeftovers(const QString &folder, const QString &name)
{
    const QStringList names = leftoversIn(folder).take(TemporaryName::stemOf(name));
    for (const QString &leftover : names) {
        QFile::remove(FilePaths::join(folder, leftover));
    }
    return TransferStep::done();
}

TransferStep LocalTarget::commit(const QString &folder, const TemporaryName &temporary,
                                 const QString &name, qint64 size, bool replace)
{
    const QString part = FilePaths::join(folder, temporary.part());
    const QString target = FilePaths::join(folder, name);
    if (QFileInfo(part).size() != size) {
        return TransferStep::failed(tr("%1 was changed while it was written").arg(part));
    }
    int error = flushToMedium(part, O_RDONLY | O_NOFOLLOW);
    if (error == 0) {
        error = renameFile(QFile::encodeName(part), QFile::encodeName(target), replace);
    }
    if (error == EEXIST && !replace) {
        return TransferStep::exists();
    }
    if (error != 0) {
        const QString reason = tr("%1 cannot be written: %2").arg(target, qt_error_string(error));
        return error == ENOSPC ? TransferStep::fatal(reason) : TransferStep::failed(reason);
    }
    m_unflushed.insert(folder);
    return TransferStep::done();
}

TransferStep LocalTarget::discard(const QString &folder, const TemporaryName &temporary)
{
    QFile part(FilePaths::join(folder, temporary.part()));
    if (part.exists() && !part.remove()) {
        return TransferStep::failed(
            tr("%1 cannot be removed: %2").arg(part.fileName(), part.errorString()));
    }
    return TransferStep::done();
}

qint64 LocalTarget::bytesAvailable(const QString &folder) const
{
    return QStorageInfo(folder).bytesAvailable();
}

TransferStep LocalTarget::flush()
{
    TransferStep step;
    for (const QString &folder : std::as_const(m_unflushed)) {
        const int error = flushToMedium(folder, O_RDONLY | O_DIRECTORY);
        if (error != 0) {
            step = TransferStep::failed(
                tr("%1 cannot be flushed to the medium: %2").arg(folder, qt_error_string(error)));
        }
    }
    m_unflushed.clear();
    return step;
}

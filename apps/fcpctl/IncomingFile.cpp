#include "IncomingFile.h"

#include "Failure.h"
#include "Text.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray PartPrefix = ".fcpctl-part-";
const QByteArray PartName = "/content";

QByteArray directoryOf(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    if (slash < 0) {
        return ".";
    }
    return slash == 0 ? QByteArray("/") : path.first(slash);
}

/// Whether @p descriptor still is what @p path names.
bool isStillThere(int descriptor, const QByteArray &path)
{
    struct stat opened
    {
    };
    struct stat current
    {
    };
    return ::fstat(descriptor, &opened) == 0 && ::lstat(path.constData(), &current) == 0
        && opened.st_dev == current.st_dev && opened.st_ino == current.st_ino;
}

int openDirectory(const QByteArray &directory)
{
    return ::open(directory.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

/// Removes a part directory whose process is gone: whoever fills one holds its lock.
void removeAbandonedPart(const QByteArray &directory)
{
    const int descriptor = openDirectory(directory);
    if (descriptor == -1) {
        return;
    }
    if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0 && isStillThere(descriptor, directory)) {
        ::unlink((directory + PartName).constData());
        ::rmdir(directory.constData());
    }
    ::close(descriptor);
}

/// Gives @p path its mode and syncs it to the disk. @return 0 or an errno value
int finish(const QByteArray &path, std::optional<mode_t> mode)
{
    const int descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor == -1) {
        return errno;
    }
    const bool synced = (!mode || ::fchmod(descriptor, *mode) == 0) && ::fsync(descriptor) == 0;
    const int error = synced ? 0 : errno;
    ::close(descriptor);
    return error;
}

/// Renames without replacing. @return 0 or an errno value.
int renameNew(const QByteArray &from, const QByteArray &to)
{
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return errno;
    }
    // A file system that does not know the flag. The part is unlinked with its directory.
    return ::link(from.constData(), to.constData()) == 0 ? 0 : errno;
}

} // namespace

IncomingFile::IncomingFile(const QString &target, bool overwrite)
    : m_shownTarget(target)
    , m_target(toShell(target))
{
    resolveTarget(overwrite);
    makePartDirectory();
}

IncomingFile::~IncomingFile()
{
    removePart();
}

QString IncomingFile::partPath() const
{
    return fromShell(m_partDirectory + PartName);
}

qint64 IncomingFile::partSize() const
{
    struct stat part
    {
    };
    return ::stat((m_partDirectory + PartName).constData(), &part) == 0 ? part.st_size : 0;
}

int IncomingFile::whyNotWritable(qint64 more) const
{
    const int descriptor =
        ::open((m_partDirectory + PartName).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
    if (descriptor == -1) {
        return errno;
    }
    const int error = more > 0 ? ::posix_fallocate(descriptor, partSize(), more) : 0;
    ::close(descriptor);
    return error;
}

void IncomingFile::commit()
{
    if (const int error = finish(m_partDirectory + PartName, m_mode)) {
        throw fileFailure(m_shownTarget, qt_error_string(error));
    }
    rename();
    removePart();
}

void IncomingFile::removeAbandoned(const QString &directory)
{
    const QByteArray path = toShell(directory);
    const std::unique_ptr<DIR, int (*)(DIR *)> listing(::opendir(path.constData()), &::closedir);
    if (!listing) {
        return;
    }
    while (const dirent *entry = ::readdir(listing.get())) {
        if (QByteArrayView(entry->d_name).startsWith(PartPrefix)) {
            removeAbandonedPart(path + '/' + entry->d_name);
        }
    }
}

void IncomingFile::syncDirectory(const QString &directory)
{
    // One that can't be opened, or is on a file system that does not know how, is left alone.
    const int descriptor =
        ::open(toShell(directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor == -1) {
        return;
    }
    const int error = ::fsync(descriptor) == 0 || errno == EINVAL ? 0 : errno;
    ::close(descriptor);
    if (error != 0) {
        throw fileFailure(directory, qt_error_string(error));
    }
}

/// Looks at what stands there now. A symbolic link is followed, so that it goes on being one.
void IncomingFile::resolveTarget(bool overwrite)
{
    struct stat found
    {
    };
    if (::lstat(m_target.constData(), &found) != 0) {
        if (errno != ENOENT) {
            throw fileFailure(m_shownTarget, qt_error_string(errno));
        }
        return;
    }
    if (!overwrite) {
        throw fileFailure(m_shownTarget, u"it exists already; --overwrite replaces it"_s);
    }
    const std::unique_ptr<char, void (*)(void *)> resolved(
        ::realpath(m_target.constData(), nullptr), &std::free);
    if (!resolved || ::stat(resolved.get(), &found) != 0) {
        throw fileFailure(m_shownTarget, qt_error_string(errno));
    }
    if (!S_ISREG(found.st_mode)) {
        throw fileFailure(m_shownTarget,
                          S_ISDIR(found.st_mode) ? u"it is a directory"_s
                                                 : u"it is no regular file"_s);
    }
    m_target = resolved.get();
    m_replaces = true;
    m_mode = found.st_mode & 07777;
}

void IncomingFile::makePartDirectory()
{
    const QByteArray directory = directoryOf(m_target);
    if (!isUtf8Name(fromShell(directory))) {
        throw fileFailure(m_shownTarget, u"the directory's name is not UTF-8"_s);
    }
    // Another process may take the fresh one for abandoned before it is locked.
    while (m_lock == -1) {
        QByteArray pattern = directory + '/' + PartPrefix + "XXXXXX";
        if (::mkdtemp(pattern.data()) == nullptr) {
            throw fileFailure(m_shownTarget, qt_error_string(errno));
        }
        m_partDirectory = pattern;
        lockPartDirectory();
    }
}

/// Leaves m_lock at -1 when the directory is gone or about to go.
void IncomingFile::lockPartDirectory()
{
    const int descriptor = openDirectory(m_partDirectory);
    if (descriptor == -1) {
        return;
    }
    // A file system without locks is no reason to fail: what is abandoned there just stays.
    const bool taken = ::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (taken || !isStillThere(descriptor, m_partDirectory)) {
        ::close(descriptor);
        return;
    }
    m_lock = descriptor;
}

void IncomingFile::rename()
{
    const QByteArray part = m_partDirectory + PartName;
    const int error = m_replaces
        ? (::rename(part.constData(), m_target.constData()) == 0 ? 0 : errno)
        : renameNew(part, m_target);
    if (error == EEXIST) {
        throw fileFailure(m_shownTarget, u"it has appeared meanwhile, and is not overwritten"_s);
    }
    if (error != 0) {
        throw fileFailure(m_shownTarget, qt_error_string(error));
    }
}

void IncomingFile::removePart()
{
    if (!m_partDirectory.isEmpty()) {
        ::unlink((m_partDirectory + PartName).constData());
        ::rmdir(m_partDirectory.constData());
        m_partDirectory.clear();
    }
    if (m_lock != -1) {
        ::close(m_lock);
        m_lock = -1;
    }
}

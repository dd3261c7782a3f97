#include "LocalTreeWork.h"

#include <QDir>
#include <QFile>

#include <dirent.h>
#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <tuple>
#include <vector>

#include "QvexFileModel.h"
#include "TemporaryName.h"

namespace {

constexpr int FolderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

/// After so many bytes it is asked again whether to go on.
constexpr size_t ChunkSize = size_t(4) << 20;

/// The coarsest times that a file system in use keeps (FAT).
constexpr time_t TimeStep = 2; // seconds

int outcome(int returned)
{
    return returned == 0 ? 0 : errno;
}

int openAt(int directory, const QByteArray &name, int flags, FileDescriptor &fd, mode_t mode = 0)
{
    fd = FileDescriptor(::openat(directory, name.constData(), flags, mode));
    return fd ? 0 : errno;
}

int statAt(int directory, const QByteArray &name, struct stat &status)
{
    return outcome(::fstatat(directory, name.constData(), &status, AT_SYMLINK_NOFOLLOW));
}

bool isSame(const struct stat &left, const struct stat &right)
{
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

bool isUnchanged(const struct stat &before, const struct stat &after)
{
    return before.st_size == after.st_size && before.st_mtim.tv_sec == after.st_mtim.tv_sec
        && before.st_mtim.tv_nsec == after.st_mtim.tv_nsec;
}

/// Whether an entry and its copy are still as they were right after copying.
bool isCopyOf(const struct stat &copy, const struct stat &original)
{
    if ((copy.st_mode & S_IFMT) != (original.st_mode & S_IFMT)) {
        return false;
    }
    return !S_ISREG(copy.st_mode)
        || (copy.st_size == original.st_size
            && std::abs(copy.st_mtim.tv_sec - original.st_mtim.tv_sec) <= TimeStep);
}

/// All names before anything is done with them: removing entries disturbs a listing under way.
int namesIn(int directory, std::vector<QByteArray> &names)
{
    FileDescriptor own;
    if (const int error = openAt(directory, ".", FolderFlags, own)) {
        return error;
    }
    const std::unique_ptr<DIR, int (*)(DIR *)> stream(::fdopendir(own.get()), ::closedir);
    if (!stream) {
        return errno;
    }
    own.release();
    for (;;) {
        errno = 0;
        const dirent *entry = ::readdir(stream.get());
        if (!entry) {
            return errno;
        }
        if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0) {
            names.emplace_back(entry->d_name);
        }
    }
}

/// Whether @p folder is the one that @p status is of, or anywhere below it.
bool isWithin(int folder, const struct stat &status)
{
    FileDescriptor at;
    struct stat own;
    struct stat above;
    int error = openAt(folder, ".", FolderFlags, at);
    while (error == 0 && ::fstat(at.get(), &own) == 0) {
        if (isSame(own, status)) {
            return true;
        }
        FileDescriptor parent;
        error = openAt(at.get(), "..", FolderFlags, parent);
        if (error != 0 || ::fstat(parent.get(), &above) != 0 || isSame(own, above)) {
            return false;
        }
        at = std::move(parent);
    }
    return false;
}

int writeAll(int to, const char *bytes, size_t size)
{
    while (size > 0) {
        const ssize_t written = ::write(to, bytes, size);
        if (written < 0 && errno != EINTR) {
            return errno;
        }
        bytes += std::max<ssize_t>(written, 0);
        size -= static_cast<size_t>(std::max<ssize_t>(written, 0));
    }
    return 0;
}

/// @return how many bytes were copied, 0 at the end, or -errno.
ssize_t copyThroughMemory(int from, int to)
{
    static thread_local std::vector<char> buffer(size_t(1) << 20);
    const ssize_t got = ::read(from, buffer.data(), buffer.size());
    if (got < 0) {
        return -errno;
    }
    const int error = writeAll(to, buffer.data(), static_cast<size_t>(got));
    return error == 0 ? got : -error;
}

/// Likewise. Some file systems can't, and some say of any file that there is nothing to copy.
ssize_t copyChunk(int from, int to)
{
    const ssize_t copied = ::copy_file_range(from, nullptr, to, nullptr, ChunkSize, 0);
    return copied > 0 ? copied : copyThroughMemory(from, to);
}

int copyLink(int fromFolder, const QByteArray &from, int toFolder, const QByteArray &to,
             const struct stat &status)
{
    QByteArray target(PATH_MAX, Qt::Uninitialized);
    const ssize_t length = ::readlinkat(fromFolder, from.constData(), target.data(), PATH_MAX);
    if (length < 0) {
        return errno;
    }
    target.truncate(length);
    if (::symlinkat(target.constData(), toFolder, to.constData()) != 0) {
        return errno;
    }
    const timespec times[] {status.st_atim, status.st_mtim};
    ::utimensat(toFolder, to.constData(), times, AT_SYMLINK_NOFOLLOW);
    return 0;
}

/// Permissions and times; not every file system has them, so a failure is none.
void dressLike(int fd, const struct stat &status)
{
    const timespec times[] {status.st_atim, status.st_mtim};
    std::ignore = ::fchmod(fd, status.st_mode & 0777);
    std::ignore = ::futimens(fd, times);
}

int renameAt(int fromFolder, const QByteArray &from, int toFolder, const QByteArray &to)
{
    if (::renameat2(fromFolder, from.constData(), toFolder, to.constData(), RENAME_NOREPLACE)
        == 0) {
        return 0;
    }
    struct stat status;
    if (errno != EINVAL) {
        return errno;
    }
    // Network file systems can't promise; a look before is the best there is.
    if (statAt(toFolder, to, status) == 0) {
        return EEXIST;
    }
    return outcome(::renameat(fromFolder, from.constData(), toFolder, to.constData()));
}

/// Whether it is an unfinished copy that nobody works on any more.
bool isLeftover(const QByteArray &name)
{
    if (!name.startsWith('.') || !name.contains(".vexpart")) { // as most of many are not
        return false;
    }
    const auto leftover = TemporaryName::leftover(QFile::decodeName(name));
    return leftover && !leftover->isBackup;
}

} // namespace

LocalTreeWork::LocalTreeWork(const std::atomic<bool> &cancelled)
    : m_cancelled(cancelled)
{
}

QString LocalTreeWork::stoppedAt() const
{
    return QFile::decodeName(m_stoppedAt);
}

LocalTreeWork::Place LocalTreeWork::Place::below(int child, const QByteArray &entry) const
{
    return Place {child, entry, path + '/' + entry};
}

/// Remembers the innermost place only.
int LocalTreeWork::stopAt(const Place &place, int result)
{
    if (result != 0 && m_stoppedAt.isEmpty()) {
        m_stoppedAt = place.path;
    }
    return result;
}

int LocalTreeWork::open(const QString &path, FileDescriptor &folder, Place &place)
{
    const QString clean = QDir::cleanPath(path);
    const qsizetype slash = clean.lastIndexOf(u'/');
    place.path = QFile::encodeName(path);
    place.name = QFile::encodeName(clean.sliced(slash + 1));
    if (!clean.startsWith(u'/') || place.name.isEmpty() || place.name == "..") {
        return stopAt(place, EINVAL);
    }
    // The way to the entry may lead through links.
    const QByteArray above = QFile::encodeName(clean.left(slash + 1));
    const int error = openAt(AT_FDCWD, above, FolderFlags & ~O_NOFOLLOW, folder);
    place.directory = folder.get();
    return stopAt(place, error);
}

int LocalTreeWork::openErrand(const QString &source, const QString &folder, Errand &errand)
{
    if (const int error = open(source, errand.sourceFolder, errand.source)) {
        return error;
    }
    if (!folder.startsWith(u'/')) {
        return stopAt(errand.source, EINVAL);
    }
    int error =
        openAt(AT_FDCWD, QFile::encodeName(folder), FolderFlags & ~O_NOFOLLOW, errand.targetFolder);
    errand.target = Place {errand.targetFolder.get(), errand.source.name, errand.source.path};
    if (error == 0) {
        error = statAt(errand.source.directory, errand.source.name, errand.status);
    }
    if (error == 0 && S_ISDIR(errand.status.st_mode)
        && isWithin(errand.target.directory, errand.status)) {
        error = EINVAL;
    }
    struct stat taken;
    if (error == 0 && statAt(errand.target.directory, errand.target.name, taken) == 0) {
        error = EEXIST;
    }
    return stopAt(errand.source, error);
}

int LocalTreeWork::remove(const QString &path)
{
    FileDescriptor folder;
    Place place;
    const int error = open(path, folder, place);
    return error == 0 ? removeEntry(place) : error;
}

int LocalTreeWork::removeEntry(const Place &place, const Place *copy)
{
    if (isCancelled()) {
        return stopAt(place, QvexFileModel::Cancelled);
    }
    struct stat status;
    if (const int error = statAt(place.directory, place.name, status)) {
        return stopAt(place, error);
    }
    struct stat copied;
    if (copy && (statAt(copy->directory, copy->name, copied) != 0 || !isCopyOf(copied, status))) {
        return stopAt(place, EBUSY);
    }
    if (S_ISDIR(status.st_mode)) {
        return removeFolder(place, copy);
    }
    return stopAt(place, outcome(::unlinkat(place.directory, place.name.constData(), 0)));
}

int LocalTreeWork::removeFolder(const Place &place, const Place *copy)
{
    FileDescriptor folder;
    FileDescriptor copied;
    std::vector<QByteArray> names;
    int error = openAt(place.directory, place.name, FolderFlags, folder);
    if (error == 0 && copy) {
        error = openAt(copy->directory, copy->name, FolderFlags, copied);
    }
    if (error == 0 && m_opensFolders) {
        error = outcome(::fchmod(folder.get(), 0700));
    }
    if (error == 0) {
        error = namesIn(folder.get(), names);
    }
    for (auto name = names.cbegin(); error == 0 && name != names.cend(); ++name) {
        const Place twin = copy ? copy->below(copied.get(), *name) : Place {};
        error = removeEntry(place.below(folder.get(), *name), copy ? &twin : nullptr);
    }
    if (error == 0) {
        error = outcome(::unlinkat(place.directory, place.name.constData(), AT_REMOVEDIR));
    }
    return stopAt(place, error);
}

/// What a copy that came to nothing has made; why it did is told already.
void LocalTreeWork::removeLeftover(const Place &place)
{
    m_isCommitted = true;
    m_opensFolders = true;
    removeEntry(place);
    m_isCommitted = false;
    m_opensFolders = false;
}

/// What processes have left of their copies that were killed over them; a failure is none.
void LocalTreeWork::removeLeftovers(int directory)
{
    struct stat status;
    std::vector<QByteArray> names;
    if (::fstat(directory, &status) != 0 || (m_cleared && isSame(*m_cleared, status))) {
        return;
    }
    m_cleared = status;
    std::ignore = namesIn(directory, names);
    for (const QByteArray &name : names) {
        if (isLeftover(name)) {
            removeLeftover(Place {directory, name, name});
        }
    }
    m_stoppedAt.clear();
}

int LocalTreeWork::copyInto(const QString &source, const QString &folder)
{
    Errand errand;
    const int error = openErrand(source, folder, errand);
    return error == 0 ? copyWhole(errand) : error;
}

int LocalTreeWork::copyWhole(const Errand &errand)
{
    removeLeftovers(errand.target.directory);
    const TemporaryName temporary(QFile::decodeName(errand.target.name));
    const Place hidden {errand.target.directory, QFile::encodeName(temporary.part()),
                        errand.source.path};
    m_flushesFiles = !S_ISDIR(errand.status.st_mode); // else all of them in one go
    int error = copyEntry(errand.source, hidden);
    if (error == 0 && !m_flushesFiles) {
        error = outcome(::syncfs(hidden.directory));
    }
    if (error == 0) {
        error = renameAt(hidden.directory, hidden.name, hidden.directory, errand.target.name);
    }
    stopAt(errand.source, error);
    if (error != 0) {
        removeLeftover(hidden);
        return error;
    }
    ::fsync(hidden.directory);
    return 0;
}

int LocalTreeWork::copyEntry(const Place &from, const Place &to)
{
    struct stat status;
    int error =
        isCancelled() ? int(QvexFileModel::Cancelled) : statAt(from.directory, from.name, status);
    if (error == 0) {
        switch (status.st_mode & S_IFMT) {
        case S_IFREG:
            error = copyFile(from, to);
            break;
        case S_IFDIR:
            error = copyFolder(from, to, status);
            break;
        case S_IFLNK:
            error = copyLink(from.directory, from.name, to.directory, to.name, status);
            break;
        default:
            error = EOPNOTSUPP;
        }
    }
    return stopAt(from, error);
}

int LocalTreeWork::copyFile(const Place &from, const Place &to)
{
    FileDescriptor input;
    FileDescriptor output;
    struct stat before;
    struct stat after;
    struct stat made;
    int error =
        openAt(from.directory, from.name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, input);
    if (error == 0) {
        error = outcome(::fstat(input.get(), &before));
    }
    if (error == 0) {
        error = openAt(to.directory, to.name, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                       output, 0600);
    }
    if (error == 0) {
        error = copyContents(input.get(), output.get());
    }
    if (error != 0) {
        return error;
    }
    dressLike(output.get(), before);
    if ((m_flushesFiles && ::fsync(output.get()) != 0) || ::fstat(input.get(), &after) != 0
        || ::fstat(output.get(), &made) != 0) {
        return errno;
    }
    if (!isUnchanged(before, after)) {
        return EBUSY;
    }
    const bool isWhole = made.st_size == before.st_size;
    return isWhole ? outcome(::close(output.release())) : EIO;
}

int LocalTreeWork::copyContents(int from, int to)
{
    while (!isCancelled()) {
        const ssize_t copied = copyChunk(from, to);
        if (copied == 0) {
            return 0;
        }
        if (copied < 0 && copied != -EINTR) {
            return static_cast<int>(-copied);
        }
    }
    return QvexFileModel::Cancelled;
}

int LocalTreeWork::copyFolder(const Place &from, const Place &to, const struct stat &status)
{
    FileDescriptor input;
    FileDescriptor output;
    std::vector<QByteArray> names;
    int error = openAt(from.directory, from.name, FolderFlags, input);
    if (error == 0) {
        error = namesIn(input.get(), names);
    }
    if (error == 0) {
        error = outcome(::mkdirat(to.directory, to.name.constData(), 0700));
    }
    if (error == 0) {
        error = openAt(to.directory, to.name, FolderFlags, output);
    }
    for (auto name = names.cbegin(); error == 0 && name != names.cend(); ++name) {
        error = copyEntry(from.below(input.get(), *name), to.below(output.get(), *name));
    }
    if (error == 0) {
        dressLike(output.get(), status);
    }
    return error;
}

int LocalTreeWork::moveInto(const QString &source, const QString &folder)
{
    if (isCancelled()) {
        m_stoppedAt = QFile::encodeName(source);
        return QvexFileModel::Cancelled;
    }
    Errand errand;
    if (const int error = openErrand(source, folder, errand)) {
        return error;
    }
    const int error = renameAt(errand.source.directory, errand.source.name, errand.target.directory,
                               errand.target.name);
    return error == EXDEV ? moveAcross(errand) : stopAt(errand.source, error);
}

/// From the copy being whole on, the move is no longer cancelled.
int LocalTreeWork::moveAcross(const Errand &errand)
{
    if (::faccessat(errand.source.directory, ".", W_OK, AT_EACCESS) != 0) {
        return stopAt(errand.source, errno);
    }
    if (const int error = copyWhole(errand)) {
        return error;
    }
    m_isCommitted = true;
    const int error = removeEntry(errand.source, &errand.target);
    m_isCommitted = false;
    return error;
}

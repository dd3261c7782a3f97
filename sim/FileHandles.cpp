#include "FileHandles.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <functional>
#include <mutex>
#include <random>
#include <vector>

#include "Storage.h"

namespace {

/// More than any client asks for in one piece, less than would hurt.
constexpr CORBA::Long MaximumPull = 64 << 20;

bool isSameFile(int fd, int directory, const std::string &name)
{
    struct stat opened = {};
    struct stat named = {};
    return ::fstat(fd, &opened) == 0
        && ::fstatat(directory, name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0
        && opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

bool writeAll(int fd, const CORBA::Octet *data, size_t size)
{
    while (size > 0) {
        const ssize_t written = ::write(fd, data, size);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        data += written;
        size -= static_cast<size_t>(written);
    }
    return true;
}

} // namespace

struct OpenFile
{
    std::uint64_t connection = 0;
    std::mutex mutex;
    UniqueFd fd;

    // An upload's
    Storage::Place target;
    std::string partial; ///< empty for a download
    bool overwrite = false;
    bool failed = false;

    // A download's
    off_t offset = 0;
    off_t size = 0;

    FileSystemResult openDownload(const Storage &storage, const std::string &path);
    FileSystemResult openUpload(const Storage &storage, const std::string &path);
    FileSystemResult openPartial();
    FileSystemResult finish(bool sync);
    bool atEnd();
};

FileSystemResult OpenFile::openDownload(const Storage &storage, const std::string &path)
{
    struct stat status = {};
    if (storage.openAt(path, O_RDONLY | O_NONBLOCK, fd) != 0 || ::fstat(fd.get(), &status) != 0
        || !S_ISREG(status.st_mode)) {
        return FS_ERROR;
    }
    size = status.st_size;
    return FS_OK;
}

FileSystemResult OpenFile::openUpload(const Storage &storage, const std::string &path)
{
    if (storage.locate(path, target) != 0) {
        return FS_ERROR;
    }
    struct stat status = {};
    if (::fstatat(target.directory.get(), target.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0) {
        if (!overwrite) {
            return FS_EXISTS;
        }
        if (S_ISDIR(status.st_mode)) {
            return FS_ERROR;
        }
    } else if (errno != ENOENT) {
        return FS_ERROR;
    }
    partial = temporaryName(target.name, ".part");
    return openPartial();
}

/// Opens the partial file for this upload alone, emptied of what an earlier one may have left.
FileSystemResult OpenFile::openPartial()
{
    constexpr int flags = O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    // Uploads of one name go through here one after the other, so a new file is locked at once.
    static std::array<std::mutex, 64> mutexes;
    const std::lock_guard lock(mutexes[std::hash<std::string>()(partial) % mutexes.size()]);

    const int directory = target.directory.get();
    fd = UniqueFd(::openat(directory, partial.c_str(), flags | O_CREAT | O_EXCL, 0644));
    const bool isNew = bool(fd);
    if (!isNew) {
        fd = UniqueFd(::openat(directory, partial.c_str(), flags));
    }
    if (!fd || ::flock(fd.get(), LOCK_EX | LOCK_NB) != 0) {
        return FS_ERROR; // another upload to the same target is under way, for instance
    }
    // An upload that has just ended may have given what was opened its final name.
    const bool isOurs =
        isNew || (isSameFile(fd.get(), directory, partial) && ::ftruncate(fd.get(), 0) == 0);
    return isOurs ? FS_OK : FS_ERROR;
}

/// Gives an upload its final name. The lock is kept until that is done.
FileSystemResult OpenFile::finish(bool sync)
{
    const UniqueFd lock(::fcntl(fd.get(), F_DUPFD_CLOEXEC, 0));
    if (failed || !lock || (sync && ::fdatasync(fd.get()) != 0) || ::close(fd.release()) != 0) {
        return FS_ERROR;
    }
    const int directory = target.directory.get();
    if (!isSameFile(lock.get(), directory, partial)) {
        return FS_ERROR; // it was renamed or removed meanwhile
    }
    if (overwrite) {
        if (::renameat(directory, partial.c_str(), directory, target.name.c_str()) != 0) {
            return FS_ERROR;
        }
    } else if (const int error =
                   renameNoReplace(directory, partial.c_str(), directory, target.name.c_str());
               error != 0) {
        if (error == EEXIST) {
            ::unlinkat(directory, partial.c_str(), 0);
        }
        return error == EEXIST ? FS_EXISTS : FS_ERROR;
    }
    if (sync) {
        const UniqueFd flushed(::openat(directory, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        return ::fsync(flushed.get()) == 0 ? FS_OK : FS_ERROR;
    }
    return FS_OK;
}

/// Whether everything was read, of a file that may have grown since it was opened.
bool OpenFile::atEnd()
{
    struct stat status = {};
    if (offset >= size && ::fstat(fd.get(), &status) == 0) {
        size = status.st_size;
    }
    return offset >= size;
}

FileHandles::FileHandles(const Storage &storage, bool sync)
    : m_storage(storage)
    , m_sync(sync)
    , m_next(std::random_device()())
{
}

FileHandles::~FileHandles() = default;

FileSystemResult FileHandles::open(std::uint64_t connection, const std::string &path, bool write,
                                   bool overwrite, CORBA::Long &handle)
{
    handle = 0;
    auto file = std::make_shared<OpenFile>();
    file->connection = connection;
    file->overwrite = overwrite;
    const FileSystemResult result =
        write ? file->openUpload(m_storage, path) : file->openDownload(m_storage, path);
    if (result == FS_OK) {
        handle = add(std::move(file));
    }
    return result;
}

FileSystemResult FileHandles::close(std::uint64_t connection, CORBA::Long handle)
{
    std::shared_ptr<OpenFile> file;
    {
        const std::unique_lock lock(m_mutex);
        const auto found = m_files.find(handle);
        if (found == m_files.end() || found->second->connection != connection) {
            return FS_ERROR;
        }
        file = std::move(found->second);
        m_files.erase(found);
    }
    const std::lock_guard lock(file->mutex);
    if (!file->partial.empty()) {
        return file->finish(m_sync);
    }
    file->fd.reset();
    return FS_OK;
}

FileSystemResult FileHandles::push(std::uint64_t connection, CORBA::Long handle,
                                   const CORBA::Octet *data, CORBA::ULong size)
{
    const std::shared_ptr<OpenFile> file = find(connection, handle);
    if (!file) {
        return FS_ERROR;
    }
    const std::lock_guard lock(file->mutex);
    if (file->partial.empty() || file->failed || !file->fd) {
        return FS_ERROR;
    }
    file->failed = !writeAll(file->fd.get(), data, size);
    return file->failed ? FS_ERROR : FS_OK;
}

FileSystemResult FileHandles::pull(std::uint64_t connection, CORBA::Long handle, CORBA::Long wanted,
                                   OctetSequence &bytes)
{
    static thread_local std::vector<CORBA::Octet> buffer;

    const std::shared_ptr<OpenFile> file = find(connection, handle);
    if (!file || wanted <= 0 || wanted > MaximumPull) {
        return FS_ERROR;
    }
    const std::lock_guard lock(file->mutex);
    if (!file->partial.empty() || !file->fd) {
        return FS_ERROR;
    }
    if (buffer.size() < static_cast<size_t>(wanted)) {
        buffer.resize(static_cast<size_t>(wanted));
    }
    ssize_t got = 0;
    do {
        got = ::read(file->fd.get(), buffer.data(), static_cast<size_t>(wanted));
    } while (got < 0 && errno == EINTR);
    if (got < 0) {
        return FS_ERROR;
    }
    const auto length = static_cast<CORBA::ULong>(got);
    bytes.replace(length, length, buffer.data(), false);
    file->offset += got;
    return got < wanted || file->atEnd() ? FS_NOMORE : FS_OK;
}

void FileHandles::abandon(std::uint64_t connection)
{
    const std::unique_lock lock(m_mutex);
    std::erase_if(m_files, [&](const auto &item) { return item.second->connection == connection; });
}

std::shared_ptr<OpenFile> FileHandles::find(std::uint64_t connection, CORBA::Long handle) const
{
    const std::shared_lock lock(m_mutex);
    const auto found = m_files.find(handle);
    return found != m_files.end() && found->second->connection == connection ? found->second
                                                                             : nullptr;
}

CORBA::Long FileHandles::add(std::shared_ptr<OpenFile> file)
{
    const std::unique_lock lock(m_mutex);
    for (;;) {
        const auto handle = static_cast<CORBA::Long>(m_next++ & 0x7FFFFFFF);
        if (handle != 0 && m_files.try_emplace(handle, file).second) {
            return handle;
        }
    }
}

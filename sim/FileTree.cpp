#include "FileTree.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <climits>
#include <cstring>
#include <memory>
#include <vector>

#include "UniqueFd.h"

namespace {

constexpr int DirectoryFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

int openFile(int directory, const char *name, int flags, mode_t mode, UniqueFd &fd)
{
    fd = UniqueFd(::openat(directory, name, flags | O_CLOEXEC, mode));
    return fd ? 0 : errno;
}

/// For file systems that can't copy by themselves.
int copyThroughMemory(int from, int to)
{
    std::vector<char> buffer(1 << 20);
    for (;;) {
        const ssize_t got = ::read(from, buffer.data(), buffer.size());
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            return got < 0 ? errno : 0;
        }
        for (ssize_t done = 0; done < got;) {
            const ssize_t written =
                ::write(to, buffer.data() + done, static_cast<size_t>(got - done));
            if (written < 0 && errno != EINTR) {
                return errno;
            }
            done += written > 0 ? written : 0;
        }
    }
}

int copyContents(int from, int to)
{
    bool copied = false;
    for (;;) {
        const ssize_t done = ::copy_file_range(from, nullptr, to, nullptr, size_t(1) << 30, 0);
        if (done > 0) {
            copied = true;
        } else if (done == 0 && copied) {
            return 0;
        } else if (done < 0 && errno == EINTR) {
            continue;
        } else if (done < 0 && copied) {
            return errno;
        } else {
            // Unsupported, or "nothing to copy", which some file systems say of any file.
            return copyThroughMemory(from, to);
        }
    }
}

int copyFile(int fromDirectory, const char *from, int toDirectory, const char *to,
             const struct stat &source)
{
    UniqueFd input;
    UniqueFd output;
    int error = openFile(fromDirectory, from, O_RDONLY | O_NOFOLLOW | O_NONBLOCK, 0, input);
    if (error == 0) {
        error = openFile(toDirectory, to, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW,
                         source.st_mode & 0777, output);
    }
    if (error == 0) {
        error = copyContents(input.get(), output.get());
    }
    if (error == 0) {
        const timespec times[2] = {source.st_atim, source.st_mtim};
        ::futimens(output.get(), times);
        error = ::close(output.release()) == 0 ? 0 : errno;
    }
    return error;
}

int copyLink(int fromDirectory, const char *from, int toDirectory, const char *to)
{
    char target[PATH_MAX];
    const ssize_t length = ::readlinkat(fromDirectory, from, target, sizeof target - 1);
    if (length < 0) {
        return errno;
    }
    target[length] = '\0';
    return ::symlinkat(target, toDirectory, to) == 0 ? 0 : errno;
}

int copyDirectory(int fromDirectory, const char *from, int toDirectory, const char *to,
                  const struct stat &source)
{
    UniqueFd input;
    UniqueFd output;
    int error = openFile(fromDirectory, from, DirectoryFlags, 0, input);
    if (error == 0) {
        error = ::mkdirat(toDirectory, to, 0700) == 0 ? 0 : errno;
    }
    if (error == 0) {
        error = openFile(toDirectory, to, DirectoryFlags, 0, output);
    }
    if (error == 0) {
        error = forEachEntry(input.get(), [&](const char *name) {
            return copyTree(input.get(), name, output.get(), name);
        });
    }
    if (error == 0) {
        error = ::fchmod(output.get(), source.st_mode & 0777) == 0 ? 0 : errno;
    }
    return error;
}

} // namespace

int forEachEntry(int directory, const std::function<int(const char *)> &visit)
{
    const int own = ::openat(directory, ".", DirectoryFlags);
    if (own < 0) {
        return errno;
    }
    const std::unique_ptr<DIR, int (*)(DIR *)> stream(::fdopendir(own), ::closedir);
    if (!stream) {
        const int error = errno;
        ::close(own);
        return error;
    }
    for (;;) {
        errno = 0;
        const dirent *entry = ::readdir(stream.get());
        if (!entry) {
            return errno;
        }
        if (std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0) {
            continue;
        }
        if (const int error = visit(entry->d_name); error != 0) {
            return error;
        }
    }
}

int copyTree(int fromDirectory, const std::string &from, int toDirectory, const std::string &to)
{
    struct stat source = {};
    if (::fstatat(fromDirectory, from.c_str(), &source, AT_SYMLINK_NOFOLLOW) != 0) {
        return errno;
    }
    switch (source.st_mode & S_IFMT) {
    case S_IFREG:
        return copyFile(fromDirectory, from.c_str(), toDirectory, to.c_str(), source);
    case S_IFDIR:
        return copyDirectory(fromDirectory, from.c_str(), toDirectory, to.c_str(), source);
    case S_IFLNK:
        return copyLink(fromDirectory, from.c_str(), toDirectory, to.c_str());
    default:
        return EOPNOTSUPP;
    }
}

int removeTree(int directory, const std::string &name)
{
    if (::unlinkat(directory, name.c_str(), 0) == 0) {
        return 0;
    }
    if (errno != EISDIR && errno != EPERM) {
        return errno;
    }
    // Entries may come while the directory is emptied: try a few times before giving up.
    for (int attempt = 0;; ++attempt) {
        UniqueFd inner;
        int error = openFile(directory, name.c_str(), DirectoryFlags, 0, inner);
        if (error == 0) {
            error = forEachEntry(inner.get(), [&](const char *entry) {
                const int failure = removeTree(inner.get(), entry);
                return failure == ENOENT ? 0 : failure;
            });
        }
        if (error != 0) {
            return error;
        }
        if (::unlinkat(directory, name.c_str(), AT_REMOVEDIR) == 0) {
            return 0;
        }
        if (errno != ENOTEMPTY || attempt == 3) {
            return errno;
        }
    }
}

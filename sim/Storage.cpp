#include "Storage.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <functional>
#include <vector>

#include "FileTree.h"

namespace {

constexpr std::string_view StorageRoots[] = {"Internal", "Remote"};

bool isStorageRoot(std::string_view path)
{
    return path == StorageRoots[0] || path == StorageRoots[1];
}

std::vector<std::string_view> split(std::string_view path)
{
    std::vector<std::string_view> components;
    while (!path.empty()) {
        const size_t slash = std::min(path.find('/'), path.size());
        if (slash > 0) {
            components.push_back(path.substr(0, slash));
        }
        path.remove_prefix(std::min(slash + 1, path.size()));
    }
    return components;
}

/// The part of @p path before its last slash; empty without one.
std::string parentOf(const std::string &path)
{
    const size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

std::string nameOf(const std::string &path)
{
    const size_t slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

/// What openat2() does but for links: one component after the other, links refused.
int openByComponent(int root, std::string_view path, int flags, UniqueFd &fd)
{
    UniqueFd directory;
    int at = root;
    const std::vector<std::string_view> components = split(path);
    for (size_t i = 0; i + 1 < components.size(); ++i) {
        const std::string name(components[i]);
        UniqueFd next(::openat(at, name.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!next) {
            return errno;
        }
        directory = std::move(next);
        at = directory.get();
    }
    const std::string last(components.empty() ? std::string_view(".") : components.back());
    fd = UniqueFd(::openat(at, last.c_str(), flags | O_NOFOLLOW | O_CLOEXEC));
    return fd ? 0 : errno;
}

bool exists(int directory, const char *name)
{
    struct stat status = {};
    return ::fstatat(directory, name, &status, AT_SYMLINK_NOFOLLOW) == 0;
}

bool sameFile(const struct stat &a, const struct stat &b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

} // namespace

int Storage::open(const std::string &root)
{
    m_root = UniqueFd(::open(root.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!m_root) {
        return errno;
    }
    for (size_t i = 0; i < m_storageRoots.size(); ++i) {
        const std::string name(StorageRoots[i]);
        if (::mkdirat(m_root.get(), name.c_str(), 0755) != 0 && errno != EEXIST) {
            return errno;
        }
        m_storageRoots[i] = UniqueFd(
            ::openat(m_root.get(), name.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!m_storageRoots[i]) {
            return errno;
        }
    }
    return 0;
}

std::optional<std::string> Storage::normalised(std::string_view path)
{
    std::vector<std::string_view> kept;
    for (const std::string_view component : split(path)) {
        if (component == "..") {
            if (kept.empty()) {
                return std::nullopt;
            }
            kept.pop_back();
        } else if (component != ".") {
            kept.push_back(component);
        }
    }
    if (!kept.empty() && !isStorageRoot(kept.front())) {
        return std::nullopt;
    }
    std::string result;
    for (const std::string_view component : kept) {
        result.append(result.empty() ? "" : "/").append(component);
    }
    return result;
}

bool Storage::isName(std::string_view name)
{
    return !name.empty() && name != "." && name != ".." && name.find('/') == name.npos;
}

int Storage::openAt(const std::string &path, int flags, UniqueFd &fd) const
{
    if (path.empty()) {
        fd = UniqueFd(::openat(m_root.get(), ".", flags | O_CLOEXEC));
        return fd ? 0 : errno;
    }
    const size_t slash = path.find('/');
    const bool isFirst = std::string_view(path).substr(0, slash) == StorageRoots[0];
    const int storageRoot = m_storageRoots[isFirst ? 0 : 1].get();
    const char *inner = slash == path.npos ? "." : path.c_str() + slash + 1;

    static std::atomic<bool> hasOpenat2 = true;
    while (hasOpenat2) {
        open_how how = {};
        how.flags = static_cast<unsigned>(flags | O_CLOEXEC);
        how.resolve = RESOLVE_BENEATH | RESOLVE_NO_MAGICLINKS;
        fd = UniqueFd(
            static_cast<int>(::syscall(SYS_openat2, storageRoot, inner, &how, sizeof how)));
        if (fd) {
            return 0;
        }
        if (errno == ENOSYS || errno == EPERM) {
            // An old kernel, or a container that does not let it through.
            hasOpenat2 = false;
        } else if (errno != EAGAIN) { // EAGAIN: something was renamed underneath
            return errno;
        }
    }
    return openByComponent(storageRoot, inner, flags, fd);
}

int Storage::locate(const std::string &path, Place &place) const
{
    if (path.empty() || isStorageRoot(path)) {
        return EPERM;
    }
    place.name = nameOf(path);
    return openAt(parentOf(path), O_PATH | O_DIRECTORY, place.directory);
}

int Storage::makeDirectory(const std::string &parent, std::string &createdPath) const
{
    if (parent.empty()) {
        return EPERM;
    }
    UniqueFd directory;
    if (const int error = openAt(parent, O_PATH | O_DIRECTORY, directory); error != 0) {
        return error;
    }
    for (int number = 1; number < 100000; ++number) {
        const std::string name =
            number == 1 ? "New Folder" : "New Folder " + std::to_string(number);
        if (::mkdirat(directory.get(), name.c_str(), 0755) == 0) {
            createdPath = parent;
            createdPath.append("/").append(name);
            return 0;
        }
        if (errno != EEXIST) {
            return errno;
        }
    }
    return EEXIST;
}

int Storage::rename(const std::string &directory, const std::string &oldName,
                    const std::string &newName) const
{
    if (directory.empty()) {
        return EPERM;
    }
    if (!isName(oldName) || !isName(newName)) {
        return EINVAL;
    }
    UniqueFd fd;
    if (const int error = openAt(directory, O_PATH | O_DIRECTORY, fd); error != 0) {
        return error;
    }
    return renameNoReplace(fd.get(), oldName.c_str(), fd.get(), newName.c_str());
}

int Storage::locateTarget(const std::string &source, const std::string &destination, Place &from,
                          Place &to) const
{
    if (const int error = locate(source, from); error != 0) {
        return error;
    }
    if (destination.empty()) {
        return EPERM;
    }
    const int error = openAt(destination, O_PATH | O_DIRECTORY, to.directory);
    if (error == 0) {
        to.name = from.name;
        return 0;
    }
    return error == ENOENT || error == ENOTDIR ? locate(destination, to) : error;
}

bool Storage::contains(const Place &directory, const UniqueFd &inner) const
{
    struct stat outer = {};
    struct stat root = {};
    struct stat current = {};
    if (::fstatat(directory.directory.get(), directory.name.c_str(), &outer, AT_SYMLINK_NOFOLLOW)
            != 0
        || !S_ISDIR(outer.st_mode) || ::fstat(m_root.get(), &root) != 0) {
        return false;
    }
    UniqueFd at(::openat(inner.get(), ".", O_PATH | O_CLOEXEC));
    struct stat below = {};
    while (at && ::fstat(at.get(), &current) == 0 && !sameFile(current, root)
           && !sameFile(current, below)) { // the file system's own root: moved out meanwhile
        if (sameFile(current, outer)) {
            return true;
        }
        below = current;
        at = UniqueFd(::openat(at.get(), "..", O_PATH | O_CLOEXEC));
    }
    return false;
}

int Storage::move(const std::string &source, const std::string &destination) const
{
    Place from;
    Place to;
    int error = locateTarget(source, destination, from, to);
    if (error == 0) {
        error = renameNoReplace(from.directory.get(), from.name.c_str(), to.directory.get(),
                                to.name.c_str());
    }
    if (error == EXDEV) {
        error = copy(source, destination);
        if (error == 0) {
            error = removeTree(from.directory.get(), from.name);
        }
    }
    return error;
}

int Storage::copy(const std::string &source, const std::string &destination) const
{
    Place from;
    Place to;
    if (const int error = locateTarget(source, destination, from, to); error != 0) {
        return error;
    }
    if (exists(to.directory.get(), to.name.c_str())) {
        return EEXIST;
    }
    if (contains(from, to.directory)) {
        return EINVAL;
    }
    std::string partial = temporaryName(to.name, ".copying");
    int error = EEXIST;
    for (int number = 2; error == EEXIST && number < 100; ++number) {
        error = copyTree(from.directory.get(), from.name, to.directory.get(), partial);
        if (error == EEXIST) { // another copy is under way, or was cut off
            partial = temporaryName(to.name, '.' + std::to_string(number) + ".copying");
        }
    }
    if (error == EEXIST) {
        return error;
    }
    if (error == 0) {
        error = renameNoReplace(to.directory.get(), partial.c_str(), to.directory.get(),
                                to.name.c_str());
    }
    if (error != 0) {
        removeTree(to.directory.get(), partial);
    }
    return error;
}

int Storage::remove(const std::string &path) const
{
    Place place;
    const int error = locate(path, place);
    return error == 0 ? removeTree(place.directory.get(), place.name) : error;
}

int renameNoReplace(int oldDirectory, const char *oldName, int newDirectory, const char *newName)
{
    if (::renameat2(oldDirectory, oldName, newDirectory, newName, RENAME_NOREPLACE) == 0) {
        return 0;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return errno;
    }
    // EINVAL: a directory into itself, or a file system that can't promise it.
    if (exists(newDirectory, newName)) {
        return EEXIST;
    }
    return ::renameat(oldDirectory, oldName, newDirectory, newName) == 0 ? 0 : errno;
}

std::string temporaryName(const std::string &name, const std::string &suffix)
{
    if (name.size() + suffix.size() <= 255) {
        return name + suffix;
    }
    char hash[20];
    std::snprintf(hash, sizeof hash, "~%016zx", std::hash<std::string>()(name));
    size_t length = 255 - suffix.size() - 17;
    while (length > 0 && (static_cast<unsigned char>(name[length]) & 0xC0) == 0x80) {
        --length; // not inside a UTF-8 sequence
    }
    return name.substr(0, length) + hash + suffix;
}

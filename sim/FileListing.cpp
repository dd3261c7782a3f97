#include "FileListing.h"

#include <QRegularExpression>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ctime>

#include "Storage.h"

namespace {

struct Entry
{
    std::string name;
    time_t modified = 0;
    off_t size = 0;
    bool isDirectory = false;
    int count = 0;
};

struct Kind
{
    struct stat status = {}; ///< of what a link points to
    bool isLink = false;
    bool exists = false;
};

void writeDigits(char *end, int value, int digits)
{
    for (; digits > 0; --digits, value /= 10) {
        *--end = static_cast<char>('0' + value % 10);
    }
}

/// Writes "yyyy-MM-dd HH:mm:ss"; strftime() takes as long as all the rest of an entry.
char *dateText(time_t time)
{
    tm parts = {};
    ::localtime_r(&time, &parts);
    char *text = CORBA::string_alloc(19);
    std::memcpy(text, "0000-00-00 00:00:00", 20);
    writeDigits(text + 4, parts.tm_year + 1900, 4);
    writeDigits(text + 7, parts.tm_mon + 1, 2);
    writeDigits(text + 10, parts.tm_mday, 2);
    writeDigits(text + 13, parts.tm_hour, 2);
    writeDigits(text + 16, parts.tm_min, 2);
    writeDigits(text + 19, parts.tm_sec, 2);
    return text;
}

bool isDot(const char *name)
{
    return std::strcmp(name, ".") == 0;
}

bool isDotDot(const char *name)
{
    return std::strcmp(name, "..") == 0;
}

/// Calls @p visit with the name and type of every entry, "." and ".." among them.
template<typename Visit>
int readNames(int directory, Visit visit)
{
    alignas(8) char buffer[64 * 1024];
    for (;;) {
        const long got = ::syscall(SYS_getdents64, directory, buffer, sizeof buffer);
        if (got <= 0) {
            return got < 0 ? errno : 0;
        }
        for (long at = 0; at < got;) {
            const auto *entry = reinterpret_cast<const dirent64 *>(buffer + at);
            visit(static_cast<const char *>(entry->d_name), entry->d_type);
            at += entry->d_reclen;
        }
    }
}

class Lister
{
public:
    Lister(const Storage &storage, const std::string &directory, QDir::Filters filters,
           const std::vector<std::string> &patterns)
        : m_storage(storage)
        , m_path(directory)
        , m_filters(filters == QDir::NoFilter ? QDir::Filters(QDir::AllEntries) : filters)
    {
        const auto sensitivity =
            m_filters & QDir::CaseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive;
        m_allNames =
            patterns.empty() || std::find(patterns.begin(), patterns.end(), "*") != patterns.end();
        for (const std::string &pattern : patterns) {
            m_patterns.push_back(
                QRegularExpression::fromWildcard(QString::fromStdString(pattern), sensitivity));
        }
    }

    int run(std::vector<Entry> &entries)
    {
        if (const int error = m_storage.openAt(m_path, O_RDONLY | O_DIRECTORY, m_directory);
            error != 0) {
            return error;
        }
        return readNames(m_directory.get(), [&](const char *name, unsigned char type) {
            if ((!m_path.empty() || isDot(name) || isDotDot(name) || Storage::normalised(name))
                && !isExcludedByName(name) && !isExcludedByType(type)) {
                add(name, entries);
            }
        });
    }

private:
    bool isExcludedByName(const char *name) const
    {
        if (isDot(name)) {
            return m_filters & QDir::NoDot;
        }
        if (isDotDot(name)) {
            return m_filters & QDir::NoDotDot;
        }
        return name[0] == '.' && !(m_filters & QDir::Hidden);
    }

    /// What is known without looking at the entry itself, which takes most of the time.
    bool isExcludedByType(unsigned char type) const
    {
        return (type == DT_REG && !(m_filters & QDir::Files))
            || (type == DT_DIR && !(m_filters & (QDir::Dirs | QDir::AllDirs)));
    }

    void add(const char *name, std::vector<Entry> &entries) const
    {
        Kind kind;
        if (!look(name, kind) || isExcludedByKind(kind) || !matchesPatterns(name, kind)
            || !hasPermissions(name)) {
            return;
        }
        Entry &entry = entries.emplace_back();
        entry.name = name;
        entry.modified = kind.status.st_mtime;
        entry.isDirectory = S_ISDIR(kind.status.st_mode);
        entry.size = entry.isDirectory ? 0 : kind.status.st_size;
        entry.count = entry.isDirectory ? countEntries(name) : 0;
    }

    /// What stands for @p name on disk: the storage's root has nothing above it.
    const char *real(const char *name) const
    {
        return m_path.empty() && isDotDot(name) ? "." : name;
    }

    std::string pathOf(const char *name) const
    {
        return m_path.empty() ? name : m_path + '/' + name;
    }

    bool look(const char *name, Kind &kind) const
    {
        if (::fstatat(m_directory.get(), real(name), &kind.status, AT_SYMLINK_NOFOLLOW) != 0) {
            return false; // gone meanwhile
        }
        kind.isLink = S_ISLNK(kind.status.st_mode);
        kind.exists = true;
        if (kind.isLink) {
            UniqueFd target;
            kind.exists = m_storage.openAt(pathOf(name), O_PATH, target) == 0
                && ::fstat(target.get(), &kind.status) == 0 && !S_ISLNK(kind.status.st_mode);
        }
        return true;
    }

    bool isExcludedByKind(const Kind &kind) const
    {
        const bool isBroken = kind.isLink && !kind.exists;
        const bool wantsSystem = m_filters & QDir::System;
        if (kind.isLink && (m_filters & QDir::NoSymLinks) && !(isBroken && wantsSystem)) {
            return true;
        }
        const bool isDirectory = kind.exists && S_ISDIR(kind.status.st_mode);
        const bool isFile = kind.exists && S_ISREG(kind.status.st_mode);
        if (!wantsSystem && !isDirectory && !isFile) {
            return true;
        }
        return (isDirectory && !(m_filters & (QDir::Dirs | QDir::AllDirs)))
            || (isFile && !(m_filters & QDir::Files));
    }

    bool matchesPatterns(const char *name, const Kind &kind) const
    {
        if (m_allNames
            || ((m_filters & QDir::AllDirs) && kind.exists && S_ISDIR(kind.status.st_mode))) {
            return true;
        }
        const QString text = QString::fromUtf8(name);
        return std::any_of(m_patterns.begin(), m_patterns.end(), [&](const auto &pattern) {
            return pattern.isValid() && pattern.match(text).hasMatch();
        });
    }

    bool hasPermissions(const char *name) const
    {
        const QDir::Filters wanted = m_filters & QDir::PermissionMask;
        if (!wanted || wanted == QDir::PermissionMask) {
            return true;
        }
        const int mode = (wanted & QDir::Readable ? R_OK : 0) | (wanted & QDir::Writable ? W_OK : 0)
            | (wanted & QDir::Executable ? X_OK : 0);
        return ::faccessat(m_directory.get(), real(name), mode, AT_EACCESS) == 0;
    }

    int countEntries(const char *name) const
    {
        const bool isRoot = (m_path.empty() || m_path.find('/') == m_path.npos) && isDotDot(name);
        if (isRoot || (m_path.empty() && isDot(name))) {
            return 2;
        }
        UniqueFd directory(::openat(m_directory.get(), real(name),
                                    O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!directory) { // most likely a link
            m_storage.openAt(pathOf(name), O_RDONLY | O_DIRECTORY, directory);
        }
        int count = 0;
        if (directory) {
            readNames(directory.get(), [&](const char *entry, unsigned char) {
                count += isDot(entry) || isDotDot(entry) ? 0 : 1;
            });
        }
        return count;
    }

    const Storage &m_storage;
    const std::string m_path;
    const QDir::Filters m_filters;
    bool m_allNames = true;
    std::vector<QRegularExpression> m_patterns;
    UniqueFd m_directory;
};

} // namespace

int listDirectory(const Storage &storage, const std::string &directory, QDir::Filters filters,
                  const std::vector<std::string> &patterns, FileSystemItemCORBASeq &items)
{
    std::vector<Entry> entries;
    if (const int error = Lister(storage, directory, filters, patterns).run(entries); error != 0) {
        return error;
    }
    std::sort(entries.begin(), entries.end(),
              [](const Entry &a, const Entry &b) { return a.name < b.name; });
    items.length(static_cast<CORBA::ULong>(entries.size()));
    for (CORBA::ULong i = 0; i < items.length(); ++i) {
        const Entry &entry = entries[i];
        FileSystemItemCORBA &item = items[i];
        item.name = entry.name.c_str();
        item.date = dateText(entry.modified);
        item.size = entry.size;
        item.isdir = entry.isDirectory;
        item.dircount = entry.count;
    }
    return 0;
}

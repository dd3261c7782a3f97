#include "LogJournal.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr size_t largest = 128 * 1024 * 1024; ///< of what is read back

} // namespace

LogJournal::Lock LogJournal::lock(const QString &path, bool create)
{
    const QByteArray file = QFile::encodeName(path);
    for (;;) {
        const int flags = O_RDWR | O_CLOEXEC | O_NOFOLLOW | (create ? O_CREAT : 0);
        const int descriptor = ::open(file.constData(), flags, 0600);
        if (descriptor < 0) {
            const bool missing = errno == ENOENT && !create;
            return {missing ? Found::Missing : Found::Failed, nullptr};
        }
        std::unique_ptr<LogJournal> journal(new LogJournal(file, descriptor));
        if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
            return {errno == EWOULDBLOCK ? Found::Held : Found::Failed, nullptr};
        }
        // Who had it may have deleted it between opening and locking.
        if (journal->isInPlace()) {
            return {Found::Locked, std::move(journal)};
        }
    }
}

LogJournal::LogJournal(const QByteArray &path, int descriptor)
    : m_path(path)
    , m_descriptor(descriptor)
{
}

LogJournal::~LogJournal()
{
    if (!m_memory.empty()) {
        ::munmap(m_memory.data(), m_memory.size());
    }
    ::close(m_descriptor);
}

bool LogJournal::isInPlace() const
{
    struct stat opened
    {
    };
    struct stat named
    {
    };
    return ::fstat(m_descriptor, &opened) == 0 && ::stat(m_path.constData(), &named) == 0
        && opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}

LogRing::Rest LogJournal::rest() const
{
    struct stat status
    {
    };
    if (::fstat(m_descriptor, &status) != 0 || status.st_size <= 0
        || size_t(status.st_size) > largest) {
        return {};
    }
    const size_t size = size_t(status.st_size);
    void *memory = ::mmap(nullptr, size, PROT_READ, MAP_SHARED, m_descriptor, 0);
    if (memory == MAP_FAILED) {
        return {};
    }
    const LogRing::Rest rest = LogRing::read({static_cast<const std::byte *>(memory), size});
    ::munmap(memory, size);
    return rest;
}

std::span<std::byte> LogJournal::map(int size)
{
    // A page without room on the disk would end the process when it is written to.
    if (::ftruncate(m_descriptor, 0) != 0 || ::posix_fallocate(m_descriptor, 0, size) != 0) {
        return {};
    }
    void *memory = ::mmap(nullptr, size_t(size), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_POPULATE,
                          m_descriptor, 0);
    if (memory != MAP_FAILED) {
        m_memory = {static_cast<std::byte *>(memory), size_t(size)};
    }
    return m_memory;
}

void LogJournal::remove()
{
    ::unlink(m_path.constData());
}

#include "HeadReader.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

#include <chrono>
#include <memory>
#include <utility>

#include "FileDescriptor.h"

using namespace std::chrono_literals;

namespace {

/// How often rows are shown of a folder that takes long. Each time all of them are looked at.
constexpr auto Interval = 500ms;

struct CloseFolder
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};

/// Opens regular files only: opening something else may do anything.
FileDescriptor openEntry(DIR *folder, const dirent &entry)
{
    struct stat status;
    const bool isRegular = entry.d_type == DT_REG
        || (::fstatat(::dirfd(folder), entry.d_name, &status, 0) == 0 && S_ISREG(status.st_mode));
    return FileDescriptor(isRegular ? ::openat(::dirfd(folder), entry.d_name,
                                               O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)
                                    : -1);
}

/// @return whether it is a regular file.
bool lookUp(int fd, FileVersion &file)
{
    struct stat status;
    if (::fstat(fd, &status) != 0 || !S_ISREG(status.st_mode)) {
        return false;
    }
    file.size = status.st_size;
    file.time = qint64(status.st_mtim.tv_sec) * 1000 + status.st_mtim.tv_nsec / 1'000'000;
    return true;
}

} // namespace

HeadReader::HeadReader(std::function<void()> notify)
    : m_notify(std::move(notify))
{
}

HeadReader::~HeadReader()
{
    {
        const std::lock_guard lock(m_mutex);
        m_ends = true;
        m_isLeft = true;
        m_jobs.clear();
    }
    m_hasJobs.notify_one();
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void HeadReader::readFolder(const QString &folder, const IsWanted &isWanted)
{
    {
        const std::lock_guard lock(m_mutex);
        m_jobs.clear();
        m_isLeft = true;
    }
    add({{folder, 0, 0}, isWanted});
}

void HeadReader::readFile(const FileVersion &file)
{
    add({file, nullptr});
}

void HeadReader::add(Job job)
{
    {
        const std::lock_guard lock(m_mutex);
        m_jobs.push_back(std::move(job));
    }
    m_hasJobs.notify_one();
    if (!m_thread.joinable()) {
        m_thread = std::thread([this] { run(); });
    }
}

std::vector<HeadReader::Result> HeadReader::takeResults(bool *isIdle)
{
    const std::lock_guard lock(m_mutex);
    *isIdle = !m_isAtWork && m_jobs.empty();
    return std::exchange(m_results, {});
}

void HeadReader::run()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        m_hasJobs.wait(lock, [this] { return m_ends || !m_jobs.empty(); });
        if (m_ends) {
            return;
        }
        const Job job = std::move(m_jobs.front());
        m_jobs.pop_front();
        m_isAtWork = true;
        m_isLeft = false;
        lock.unlock();
        read(job);
        lock.lock();
        m_isAtWork = false;
        if (m_jobs.empty() && !m_ends) {
            lock.unlock();
            m_notify();
            lock.lock();
        }
    }
}

void HeadReader::read(const Job &job)
{
    if (job.isWanted) {
        readFilesOf(job.file.path, job.isWanted);
    } else {
        FileData data;
        const bool isValid = m_header.getFileInfo(job.file.path, &data);
        keep({job.file, {isValid, data.AppType, data.AppTech}});
    }
}

void HeadReader::readFilesOf(const QString &folder, const IsWanted &isWanted)
{
    const std::unique_ptr<DIR, CloseFolder> entries(
        ::opendir(QFile::encodeName(folder).constData()));
    auto last = std::chrono::steady_clock::now();
    while (const dirent *entry = entries && !isLeft() ? ::readdir(entries.get()) : nullptr) {
        const QString name = QFile::decodeName(entry->d_name);
        if (isWanted(name)) {
            readEntry(entries.get(), *entry, {folder + name, 0, 0});
        }
        if (const auto now = std::chrono::steady_clock::now(); now - last > Interval) {
            last = now;
            m_notify();
        }
    }
}

/// What can't be opened is left to readFile().
void HeadReader::readEntry(DIR *folder, const dirent &entry, FileVersion file)
{
    const FileDescriptor fd = openEntry(folder, entry);
    FileData data;
    if (fd && lookUp(fd.get(), file)) {
        const bool isValid = m_header.getFileInfo(fd.get(), &data);
        keep({std::move(file), {isValid, data.AppType, data.AppTech}});
    }
}

void HeadReader::keep(Result result)
{
    const std::lock_guard lock(m_mutex);
    m_results.push_back(std::move(result));
}

bool HeadReader::isLeft()
{
    const std::lock_guard lock(m_mutex);
    return m_isLeft;
}

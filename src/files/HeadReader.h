#pragma once

#include <QString>

#include <dirent.h>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include "XmlFileHeader.h"

/** What the head of a file tells. */
struct FileHead
{
    bool isValid = false;
    QString appType;
    QString appTech;
};

/** A file as it was, or was said to be, when its head was read. */
struct FileVersion
{
    QString path;
    qint64 size = 0;
    qint64 time = 0; ///< of its last change, in ms since 1970

    bool operator==(const FileVersion &) const = default;
};

/** Reads the heads of files on a thread of its own, which starts with the first of them. */
class HeadReader
{
public:
    using IsWanted = std::function<bool(const QString &name)>;
    struct Result
    {
        FileVersion file;
        FileHead head;
    };

    /**
     * @p notify is called on the reader's thread, after some heads were read and after the last
     * one.
     */
    explicit HeadReader(std::function<void()> notify);
    /** Leaves unread what was not read yet; waits for the file at hand. */
    ~HeadReader();

    HeadReader(const HeadReader &) = delete;
    HeadReader &operator=(const HeadReader &) = delete;

    /**
     * Instead of all that was to be read before. @p folder ends in "/", @p isWanted is called on
     * the reader's thread.
     */
    void readFolder(const QString &folder, const IsWanted &isWanted);
    void readFile(const FileVersion &file);

    /** What was read since the last call; @p isIdle: nothing is left to be read. */
    std::vector<Result> takeResults(bool *isIdle);

private:
    struct Job
    {
        FileVersion file; ///< of a folder: its path alone
        IsWanted isWanted; ///< null: a file
    };

    void add(Job job);
    void run();
    void read(const Job &job);
    void readFilesOf(const QString &folder, const IsWanted &isWanted);
    void readEntry(DIR *folder, const dirent &entry, FileVersion file);
    void keep(Result result);
    bool isLeft();

    const std::function<void()> m_notify;
    XmlFileHeader m_header;
    std::thread m_thread;

    std::mutex m_mutex; ///< of all below
    std::condition_variable m_hasJobs;
    std::deque<Job> m_jobs;
    std::vector<Result> m_results;
    bool m_isAtWork = false;
    bool m_isLeft = false; ///< the job at hand is not wanted any more
    bool m_ends = false;
};

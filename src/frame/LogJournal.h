#pragma once

#include <QString>

#include <memory>

#include "LogRing.h"

/**
 * The file in which the ring of a log lies, locked by the process that has it. The lock goes with
 * the process, however it ends: a journal that can be locked belongs to nobody or to a dead one.
 */
class LogJournal
{
public:
    enum class Found { Locked, Held, Missing, Failed };

    /// A journal, or why there is none.
    struct Lock
    {
        Found found = Found::Failed;
        std::unique_ptr<LogJournal> journal; ///< if locked
    };

    /** @p create: makes the file when it is missing. */
    static Lock lock(const QString &path, bool create);
    ~LogJournal();

    LogJournal(const LogJournal &) = delete;
    LogJournal &operator=(const LogJournal &) = delete;

    /** What the process that had it last has left. */
    LogRing::Rest rest() const;
    /** The file as memory, with @p size bytes; empty when there is no room for it on the disk. */
    std::span<std::byte> map(int size);
    /** Deletes the file. */
    void remove();

private:
    LogJournal(const QByteArray &path, int descriptor);

    bool isInPlace() const;

    const QByteArray m_path;
    const int m_descriptor;
    std::span<std::byte> m_memory;
};

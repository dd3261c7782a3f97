#pragma once

#include <QStringList>

#include <memory>

#include "LogFile.h"
#include "LogJournal.h"

/**
 * The log file of this process among those of all that were given the same path, with its journal.
 * On the way the journals of dead processes are carried over to their log files.
 */
class LogSlot
{
public:
    /** @p path may be empty: no file then. */
    LogSlot(const QString &path, qint64 maxFileSize, int fileCount);

    /** The path that this process has: NAME.log, NAME.2.log, ... */
    QString path() const { return m_path; }
    std::unique_ptr<LogFile> makeFile(const QString &path) const;
    /** Memory of @p size bytes in the journal; empty when there is none. */
    std::span<std::byte> map(int size);
    /** All is written: the journal goes. */
    void close();
    /** What is to be said of all this in the log. */
    QStringList remarks() const { return m_remarks; }

private:
    bool visit(const QString &path);
    bool carryOver(const LogJournal &journal, const QString &path);

    const qint64 m_maxFileSize;
    const int m_fileCount;
    QString m_path;
    std::unique_ptr<LogJournal> m_journal;
    QStringList m_remarks;
};

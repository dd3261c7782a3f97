#pragma once

#include <QStringList>

#include <memory>

#include "FwLog.h"
#include "LogFile.h"
#include "LogJournal.h"

/**
 * The log file of this process among those of all that were given the same path, with its journal.
 * On the way the journals of dead processes are carried over to their log files.
 */
class LogSlot
{
public:
    /** Without a file path there is no file. */
    explicit LogSlot(const FwLog::Options &options);

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
    QString journalPath(const QString &path) const;
    bool visit(const QString &path);
    bool carryOver(const LogJournal &journal, const QString &path);

    const FwLog::Options m_options;
    QString m_path;
    std::unique_ptr<LogJournal> m_journal;
    QStringList m_remarks;
};

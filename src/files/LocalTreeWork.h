#pragma once

#include <QByteArray>
#include <QString>

#include <sys/stat.h>

#include <atomic>
#include <optional>

#include "FileDescriptor.h"

/**
 * Deletes, copies and moves single entries of the local disk with everything in them, below
 * directories that it holds open: no link is followed and no path is looked up twice.
 *
 * A copy is made under a TemporaryName and gets its own when it is whole. What a process that was
 * killed has left of one is removed when something is next copied into that folder.
 *
 * Methods return a result of LocalHelperThread; stoppedAt() is the path that one other than 0 is
 * about.
 */
class LocalTreeWork
{
public:
    /** Work ends soon after @p cancelled has become true. */
    explicit LocalTreeWork(const std::atomic<bool> &cancelled);

    int remove(const QString &path);
    int copyInto(const QString &source, const QString &folder);
    int moveInto(const QString &source, const QString &folder);

    QString stoppedAt() const;

private:
    /// An entry of an open directory.
    struct Place
    {
        int directory;
        QByteArray name;
        QByteArray path; ///< for a person

        Place below(int child, const QByteArray &entry) const;
    };
    /// The entry that an operation is asked for, and where it is to go.
    struct Errand
    {
        FileDescriptor sourceFolder;
        FileDescriptor targetFolder;
        Place source;
        Place target;
        struct stat status;
    };

    int open(const QString &path, FileDescriptor &folder, Place &place);
    int openErrand(const QString &source, const QString &folder, Errand &errand);
    /// With a @p copy only what is there as well, unchanged since, is removed.
    int removeEntry(const Place &place, const Place *copy = nullptr);
    int removeFolder(const Place &place, const Place *copy);
    void removeLeftover(const Place &place);
    void removeLeftovers(int directory);
    int copyWhole(const Errand &errand);
    int copyEntry(const Place &from, const Place &to);
    int copyFile(const Place &from, const Place &to);
    int copyContents(int from, int to);
    int copyFolder(const Place &from, const Place &to, const struct stat &status);
    int moveAcross(const Errand &errand);
    int stopAt(const Place &place, int result);
    bool isCancelled() const { return m_cancelled && !m_isCommitted; }

    const std::atomic<bool> &m_cancelled;
    bool m_isCommitted = false; ///< what is under way is no longer to be cancelled
    bool m_flushesFiles = true; ///< each by itself
    bool m_opensFolders = false; ///< makes the folders that it empties writable first
    QByteArray m_stoppedAt;
    std::optional<struct stat> m_cleared; ///< the folder without leftovers
};

#pragma once

#include <QString>
#include <QThread>
#include <QVector>

#include <atomic>

#include "VexExport.h"

/**
 * Deletes, copies or moves entries of the local disk, one list of paths in each run.
 *
 * Sources are copied or moved into the destination folder, each under its own name; the
 * destination must be there. What is there already is never overwritten. An entry is copied whole,
 * or not at all: it is built under a hidden name beside its target, written to the medium, and gets
 * its name only then. Permissions and times of change are kept, owners are not. Symbolic links are
 * copied and deleted as links, never followed. A move within a file system renames; to another one
 * it copies, with every size compared, and deletes the source afterwards.
 *
 * The list is worked off in order and ends at the first failure; what was done before stays.
 *
 * | result | meaning |
 * |---|---|
 * | 0 | all was done |
 * | QvexFileModel::Cancelled | cancel() was called; the entry at hand was not copied or moved, or
 * not wholly deleted | | EEXIST | the destination has an entry of that name | | EINVAL | a path is
 * not absolute or names the root, or a folder would go into itself | | EOPNOTSUPP | a device, pipe
 * or socket can't be copied | | EBUSY | a file was written to while it was copied, or is a mount
 * point | | another errno | what the system said |
 *
 * Each run ends in exactly one of the signals, emitted on the worker thread. Their second argument
 * is the path that the run stopped at, empty when it is done.
 */
class VEX_EXPORT LocalHelperThread : public QThread
{
    Q_OBJECT

public:
    enum class Operation { Remove, Copy, Move };

    explicit LocalHelperThread(QObject *parent = nullptr);
    /** Cancels and waits. */
    ~LocalHelperThread() override;

    /** Says what start() is to do, and takes a cancel() back. Not while it runs. */
    void setTask(Operation operation, const QVector<QString> &sources,
                 const QString &destination = QString());
    /** Any thread. A run ends soon then, within a file; what is half there is removed. */
    void cancel();

    /** A result for a person; empty for 0. */
    static QString resultText(long result);

Q_SIGNALS:
    void removeComplete(long result, const QString &more);
    void copyComplete(long result, const QString &more);
    void moveComplete(long result, const QString &more);

protected:
    void run() override;

private:
    Operation m_operation = Operation::Remove;
    QVector<QString> m_sources;
    QString m_destination;
    std::atomic<bool> m_cancelled = false;
};

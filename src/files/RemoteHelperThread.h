#pragma once

#include <QString>
#include <QThread>
#include <QVector>

#include <atomic>

#include "VexExport.h"

class FcpAppCORBA;

/**
 * Removes, copies or moves files of the instrument, one after another, on a thread; or makes a
 * folder or gives one entry another name there.
 *
 * Every completion signal is emitted on that thread. Each item done gives one with result 0 and
 * @c final false; then comes exactly one with @c final true: 0 and empty paths at the end of the
 * list, -5 and empty paths after cancel(), or what stopped the run and the item it stopped at.
 * A folder made and a new name give exactly one signal, whatever happens.
 */
class VEX_EXPORT RemoteHelperThread : public QThread
{
    Q_OBJECT

public:
    enum class Kind { Remove, Copy, Move, MakeFolder, Rename };

    /** @p controller is not owned and must outlive the thread. */
    explicit RemoteHelperThread(FcpAppCORBA *controller, QObject *parent = nullptr);
    /** Cancels, and waits for the call under way. */
    ~RemoteHelperThread() override;

    /**
     * Fills in what start() is to do, and forgets a cancel(). Not while it runs. To make a folder
     * takes one source, which it is made in; to rename one, and its new name as @p destination.
     */
    void setTask(Kind kind, const QVector<QString> &sources, const QString &destination = {});
    /** Ends the run before its next item. From any thread. */
    void cancel();

Q_SIGNALS:
    void removeComplete(long result, const QString &more, bool final);
    void copyComplete(long result, const QString &src, const QString &dst, bool final);
    void moveComplete(long result, const QString &src, const QString &dst, bool final);
    /** @p path is empty unless @p result is 0. */
    void makeFolderComplete(long result, const QString &parent, const QString &path);
    void renameComplete(long result, const QString &path, const QString &newName);

protected:
    void run() override;

private:
    void runOne();
    long carryOut(const QString &source);
    long call(const QString &source);
    long makeFolder(const QString &parent);
    long rename(const QString &path) const;
    void report(long result, const QString &source, const QString &destination, bool final);

    FcpAppCORBA *const m_controller;
    Kind m_kind = Kind::Remove;
    QVector<QString> m_sources;
    QString m_destination;
    QString m_made; ///< a folder's path
    std::atomic<bool> m_cancelled = false;
};

#pragma once

#include <QMutex>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVector>

#include <atomic>
#include <memory>

#include "VexExport.h"

class FcpAppCORBA;
class QThread;
class QvexFileMover;

/**
 * Moves a list of files into one folder on a thread of its own.
 *
 * The result that complete() reports is that of the last file carried (see QvexFileMover), 3 after
 * cancelThread(), and 1 for an empty list. A file that fails does not stop the run.
 *
 * For the time of a run the object lives on the worker thread; it must not have a parent.
 */
class VEX_EXPORT QvexFileMoverThread : public QObject
{
    Q_OBJECT

public:
    /** @p controller is not owned and must outlive the run. */
    explicit QvexFileMoverThread(FcpAppCORBA *controller);
    /** Waits for a run that is under way; it ends after the file that is being carried. */
    ~QvexFileMoverThread() override;

    /**
     * Starts carrying local files into a folder of the instrument. Refused while a run goes on;
     * from complete() on, another one may be started. Not from a slot on the worker thread.
     */
    void uploadFiles(const QVector<QString> &localSources, const QString &remoteFolder,
                     bool overwrite);
    /** Starts carrying files of the instrument into a local folder. Refused while a run goes on. */
    void downloadFiles(const QVector<QString> &remoteSources, const QString &localFolder,
                       bool overwrite);

    /**
     * Whether the file that a transfer of @p src into @p folder would write is already there.
     *
     * On the instrument this is asked by opening the file for writing: some controllers leave an
     * empty file behind when it was not there.
     */
    bool exists(const QString &src, const QString &folder, bool local);

    /**
     * Ends the file that is being carried at its next chunk, and the run with it, with result 3.
     * Without a run it does nothing. From any thread.
     */
    void abort();
    /** QvexFileMover::lastError() of the last file carried. From any thread. */
    QString lastError() const;

public Q_SLOTS:
    /** The body of a run; uploadFiles() has it called on the worker thread. */
    void runUpload();
    void runDownload();
    /**
     * Ends the run before the next file, with result 3; before a start, that run. From any thread.
     */
    void cancelThread();
    /** The worker thread has ended. */
    void finished();

Q_SIGNALS:
    /** The run has ended; emitted once, on the worker thread. */
    void complete(int result);
    /** As QvexFileMover::progress(), for the file being carried. */
    void progress(const QString &file, qint64 done, qint64 total);

private:
    void start(const QVector<QString> &sources, const QString &folder, bool overwrite,
               void (QvexFileMoverThread::*body)());
    bool begin();
    void end();
    void run(int (QvexFileMover::*transfer)(const QString &, const QString &, bool));

    FcpAppCORBA *m_controller;
    QVector<QString> m_sources;
    QString m_folder;
    bool m_overwrite = false;
    std::atomic<bool> m_cancelled = false;
    QMutex m_activeMutex; ///< a run ends, or is aborted, but not half of each
    bool m_active = false;
    const std::unique_ptr<QvexFileMover> m_mover;
    QPointer<QThread> m_thread;
    QThread *m_home = nullptr;
};

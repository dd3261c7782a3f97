#pragma once

#include <QMutex>
#include <QObject>
#include <QString>

#include <atomic>

#include "VexExport.h"

class FcpAppCORBA;
class QFile;

/**
 * Moves one file between the local disk and the instrument, in chunks of 131072 bytes.
 *
 * | result | meaning |
 * |---|---|
 * | 0 | the file was carried: every byte was accepted, and the target was closed without an error |
 * | 1 | failure, on either side or of the link |
 * | 2 | the destination exists, or has appeared meanwhile, and overwriting was not allowed |
 * | 3 | aborted |
 *
 * A transfer blocks the calling thread; one at a time for each mover. What a failed or aborted one
 * has written stays where it is, under the destination's name, and is not whole. The remote handle
 * and the local file are closed on every way out.
 */
class VEX_EXPORT QvexFileMover : public QObject
{
    Q_OBJECT

public:
    /** The size of the blocks in which contents travel, in bytes. */
    static constexpr long ChunkSize = 0x20000;

    /** @p controller is not owned and must outlive the mover. */
    explicit QvexFileMover(FcpAppCORBA *controller);
    QvexFileMover(FcpAppCORBA *controller, const QString &src, const QString &dst);
    QvexFileMover(FcpAppCORBA *controller, const QString &src, const QString &dst, bool overwrite);
    ~QvexFileMover() override;

    QString getSrc() const;
    QString getDst() const;
    void setDst(const QString &dst);
    bool getOverwrite() const;
    void setOverwrite(bool overwrite);

    /** Carries a local file to the instrument. @return the result, see the table above. */
    int uploadFile(const QString &localSrc, const QString &remoteDst, bool overwrite);
    /**
     * Carries a file of the instrument to the local disk; makes missing folders. A controller that
     * answers a thousand times in a row without a byte counts as broken.
     */
    int downloadFile(const QString &remoteSrc, const QString &localDst, bool overwrite);

    /** Why the last transfer of this mover did not end with 0, in words; empty when it did. Any
     * thread. */
    QString lastError() const;

    /**
     * Ends the running transfer at the next chunk with result 3. From any thread. Without a running
     * transfer it does nothing: the next one is not affected.
     */
    void abort();

public Q_SLOTS:
    /** Uploads with the stored source, destination and overwrite flag; ends in complete(). */
    void runUpload();
    /** Downloads likewise. */
    void runDownload();

Q_SIGNALS:
    /** The transfer that runUpload() or runDownload() began has ended. */
    void complete(int result);
    /**
     * @p done bytes of @p total (-1: unknown, as for every download, since the controller tells the
     * size in listings only) of @p file, the source's path, were carried. At most
     * 20 times a second, and once when the transfer has ended, whatever its result.
     */
    void progress(const QString &file, qint64 done, qint64 total);

private:
    enum class State { Idle, Running, Aborting };
    class Transfer;

    template<typename Body>
    int guarded(const QString &source, Body &&body);
    void setError(const QString &reason);
    int fail(const QString &reason);
    /// Likewise, but the link's own reason counts when it is lost.
    int failRemotely(const QString &reason);
    int abortedAt(const Transfer &transfer);
    int finishUpload(Transfer &transfer, qint64 expectedSize);
    int openLocalTarget(QFile &target, bool overwrite);
    int pushContents(Transfer &transfer);
    int pullContents(Transfer &transfer);

    FcpAppCORBA *m_controller;
    QString m_src;
    QString m_dst;
    bool m_overwrite = false;
    qint64 m_done = 0;
    qint64 m_total = -1;
    std::atomic<State> m_state = State::Idle;
    mutable QMutex m_errorMutex;
    QString m_lastError;
};

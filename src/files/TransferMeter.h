#pragma once

#include <QMutex>

#include "FileTransfer.h"
#include "TransferRate.h"

/** Counts how far a transfer is: told by its worker, read from any thread. */
class TransferMeter
{
public:
    void begin(int fileCount, qint64 bytesTotal);
    /** The file at hand was planned with @p size bytes. */
    void beginFile(const QString &name, qint64 size);
    /** So many bytes of it are done; one that has grown adds to the total. */
    void setFileDone(qint64 bytes);
    /** What was planned and did not come is no longer waited for. */
    void endFile();

    TransferProgress progress() const;
    /** Bytes of the file at hand. */
    qint64 fileDone() const;

private:
    void growTotal(qint64 bytes);

    mutable QMutex m_mutex;
    TransferProgress m_progress;
    mutable TransferRate m_rate; ///< sinks by itself while nothing comes
    qint64 m_fileSize = 0; ///< as the total counts it
    qint64 m_fileDone = 0;
};

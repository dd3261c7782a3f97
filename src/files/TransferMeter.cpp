#include "TransferMeter.h"

#include <algorithm>

void TransferMeter::begin(int fileCount, qint64 bytesTotal)
{
    const QMutexLocker locker(&m_mutex);
    m_progress = {};
    m_progress.fileCount = fileCount;
    m_progress.bytesTotal = bytesTotal;
    m_rate.add(TransferRate::Clock::now(), 0);
}

void TransferMeter::beginFile(const QString &name, qint64 size)
{
    const QMutexLocker locker(&m_mutex);
    m_progress.file = name;
    ++m_progress.fileNumber;
    m_fileSize = size;
    m_fileDone = 0;
}

void TransferMeter::setFileDone(qint64 bytes)
{
    const QMutexLocker locker(&m_mutex);
    const qint64 more = std::max<qint64>(bytes - m_fileDone, 0);
    m_fileDone += more;
    m_progress.bytesDone += more;
    if (m_fileDone > m_fileSize) {
        growTotal(m_fileDone - m_fileSize);
    }
    m_rate.add(TransferRate::Clock::now(), m_progress.bytesDone);
}

void TransferMeter::endFile()
{
    const QMutexLocker locker(&m_mutex);
    growTotal(m_fileDone - m_fileSize);
}

TransferProgress TransferMeter::progress() const
{
    const QMutexLocker locker(&m_mutex);
    TransferProgress progress = m_progress;
    if (progress.fileCount > 0) {
        m_rate.add(TransferRate::Clock::now(), progress.bytesDone);
    }
    progress.bytesPerSecond = m_rate.bytesPerSecond();
    progress.remaining = m_rate.remaining(progress.bytesTotal - progress.bytesDone);
    return progress;
}

qint64 TransferMeter::fileDone() const
{
    const QMutexLocker locker(&m_mutex);
    return m_fileDone;
}

void TransferMeter::growTotal(qint64 bytes)
{
    m_progress.bytesTotal += bytes;
    m_fileSize += bytes;
}

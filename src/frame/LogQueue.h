#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>
#include <vector>

#include "LogRing.h"

/**
 * Hands messages from the threads that log to the one that writes. Who logs waits for no more than
 * the copying of another message or of a batch. Thread-safe.
 */
class LogQueue
{
public:
    /** @p memory for the ring; the queue has some of its own if that is empty. */
    void open(std::span<std::byte> memory, int size);
    /** Lets waitForWork() return false when nothing is left. */
    void close();
    /** After close() and the writer's end: the ring is gone, and append() does nothing. */
    void release();

    /** False when the queue is not open. */
    bool append(QtMsgType level, QByteArrayView category, QByteArrayView thread,
                QByteArrayView text);
    /** Until everything that was appended before is written; false after @p timeoutMs. */
    bool flush(int timeoutMs);
    quint64 dropped() const;

    /** For the writer: returns when there is something to write, false when there never will be. */
    bool waitForWork();
    LogRing::Batch take();
    void commit(const LogRing::Batch &batch, quint64 fileSize);
    void setFileSize(quint64 size);
    /** The batch has reached all destinations. */
    void setWritten(const LogRing::Batch &batch);

private:
    bool isHurried() const;

    mutable std::mutex m_mutex;
    std::condition_variable m_work;
    std::condition_variable m_done;
    std::vector<std::byte> m_memory;
    std::unique_ptr<LogRing> m_ring;
    quint64 m_written = 0;
    quint64 m_lastNumber = 0; ///< of the ring before
    quint64 m_dropped = 0;
    int m_flushers = 0;
    bool m_idle = false;
    bool m_closing = false;
};

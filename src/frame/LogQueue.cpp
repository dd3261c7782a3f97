#include "LogQueue.h"

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr quint64 batchSize = 64 * 1024;
/// For which the writer lets messages gather, so that a burst doesn't wake it for each.
constexpr auto gathering = 10ms;

} // namespace

void LogQueue::open(std::span<std::byte> memory, int size)
{
    const std::lock_guard lock(m_mutex);
    if (memory.empty()) {
        m_memory.resize(size_t(size));
        memory = m_memory;
    }
    m_ring = std::make_unique<LogRing>(memory, m_lastNumber);
    m_written = 0;
    m_dropped = 0;
    m_closing = false;
}

void LogQueue::close()
{
    const std::lock_guard lock(m_mutex);
    m_closing = true;
    m_work.notify_all();
}

void LogQueue::release()
{
    const std::lock_guard lock(m_mutex);
    if (m_ring) {
        m_lastNumber = m_ring->lastNumber();
    }
    m_ring.reset();
    m_memory = {};
    m_done.notify_all();
}

bool LogQueue::append(QtMsgType level, QByteArrayView category, QByteArrayView thread,
                      QByteArrayView text)
{
    bool wake = false;
    {
        const std::lock_guard lock(m_mutex);
        if (!m_ring) {
            return false;
        }
        m_ring->append(level, category, thread, text);
        wake = m_idle || m_ring->isPressed();
        m_idle = false;
    }
    if (wake) {
        m_work.notify_one();
    }
    return true;
}

bool LogQueue::flush(int timeoutMs)
{
    std::unique_lock lock(m_mutex);
    if (!m_ring) {
        return true;
    }
    const quint64 target = m_ring->head();
    ++m_flushers;
    m_work.notify_one();
    const bool done = m_done.wait_for(lock, std::chrono::milliseconds(timeoutMs),
                                      [&] { return !m_ring || m_written >= target; });
    --m_flushers;
    return done;
}

quint64 LogQueue::dropped() const
{
    const std::lock_guard lock(m_mutex);
    return m_dropped;
}

bool LogQueue::waitForWork()
{
    std::unique_lock lock(m_mutex);
    if (m_ring->isEmpty()) {
        m_idle = true;
        m_work.wait(lock, [this] { return !m_ring->isEmpty() || m_closing; });
        m_idle = false;
    }
    m_work.wait_for(lock, gathering, [this] { return isHurried(); });
    return !m_ring->isEmpty();
}

bool LogQueue::isHurried() const
{
    return m_closing || m_flushers > 0 || m_ring->isPressed();
}

LogRing::Batch LogQueue::take()
{
    const std::lock_guard lock(m_mutex);
    return m_ring->take(batchSize);
}

void LogQueue::commit(const LogRing::Batch &batch, quint64 fileSize)
{
    const std::lock_guard lock(m_mutex);
    m_ring->commit(batch, fileSize);
    m_dropped += batch.dropped;
}

void LogQueue::setFileSize(quint64 size)
{
    const std::lock_guard lock(m_mutex);
    m_ring->setFileSize(size);
}

void LogQueue::setWritten(const LogRing::Batch &batch)
{
    const std::lock_guard lock(m_mutex);
    m_written = batch.end;
    m_done.notify_all();
}

#include "UpcallQueue.h"

#include "AppFcpCORBAImpl.h"

void UpcallQueue::post(AppFcpCORBAImpl *target, Kind kind, int value)
{
    target->_add_ref();
    bool wasEmpty = false;
    {
        const std::lock_guard lock(m_mutex);
        wasEmpty = m_upcalls.empty();
        m_upcalls.push_back({target, kind, value});
    }
    if (wasEmpty) {
        m_changed.notify_one();
    }
}

void UpcallQueue::run()
{
    std::vector<Upcall> batch;
    std::unique_lock lock(m_mutex);
    while (true) {
        m_changed.wait(lock, [this] { return m_stopped || !m_upcalls.empty(); });
        const bool stopped = m_stopped;
        batch.swap(m_upcalls);
        lock.unlock();
        for (const Upcall &upcall : batch) {
            if (!stopped && upcall.kind == Kind::Event) {
                Q_EMIT upcall.target->fcpEventReceived(upcall.value);
            } else if (!stopped) {
                Q_EMIT upcall.target->fcpShutDownReceived(upcall.value != 0);
            }
            upcall.target->_remove_ref();
        }
        batch.clear();
        if (stopped) {
            return;
        }
        lock.lock();
    }
}

void UpcallQueue::stop()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopped = true;
    }
    m_changed.notify_one();
}

void UpcallQueue::reset()
{
    const std::lock_guard lock(m_mutex);
    m_stopped = false;
}

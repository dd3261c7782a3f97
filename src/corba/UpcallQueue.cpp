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

void UpcallQueue::expectRun()
{
    const std::lock_guard lock(m_mutex);
    m_expected = true;
    m_stopped = false;
}

void UpcallQueue::run()
{
    std::vector<Upcall> batch;
    std::unique_lock lock(m_mutex);
    while (!m_stopped) {
        m_changed.wait(lock, [this] { return m_stopped || !m_upcalls.empty(); });
        batch.swap(m_upcalls);
        const bool deliver = !m_stopped;
        lock.unlock();
        for (const Upcall &upcall : batch) {
            if (deliver && upcall.kind == Kind::Event) {
                Q_EMIT upcall.target->fcpEventReceived(upcall.value);
            } else if (deliver) {
                Q_EMIT upcall.target->fcpShutDownReceived(upcall.value != 0);
            }
            upcall.target->_remove_ref();
        }
        batch.clear();
        lock.lock();
    }
    m_expected = false;
    m_changed.notify_all();
}

void UpcallQueue::stop()
{
    std::unique_lock lock(m_mutex);
    m_stopped = true;
    m_changed.notify_all();
    m_changed.wait(lock, [this] { return !m_expected; });
}

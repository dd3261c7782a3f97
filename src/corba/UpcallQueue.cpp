#include "UpcallQueue.h"

#include "AppFcpCORBAImpl.h"

void UpcallQueue::post(AppFcpCORBAImpl *target, Kind kind, int value)
{
    bool wasEmpty = false;
    {
        const std::lock_guard lock(m_mutex);
        if (m_stopped) {
            return;
        }
        target->_add_ref();
        wasEmpty = m_upcalls.empty();
        m_upcalls.push_back({target, kind, value});
    }
    if (wasEmpty) {
        m_changed.notify_all();
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
    m_runner = std::this_thread::get_id();
    while (!m_stopped) {
        m_changed.wait(lock, [this] { return m_stopped || !m_upcalls.empty(); });
        batch.swap(m_upcalls);
        const bool dropped = m_stopped;
        lock.unlock();
        for (const Upcall &upcall : batch) {
            if (!dropped) {
                deliver(upcall);
            }
            upcall.target->_remove_ref();
        }
        batch.clear();
        lock.lock();
    }
    // What came while the last batch was delivered.
    batch.swap(m_upcalls);
    lock.unlock();
    for (const Upcall &upcall : batch) {
        upcall.target->_remove_ref();
    }
    lock.lock();
    m_runner = {};
    m_expected = false;
    m_changed.notify_all();
}

void UpcallQueue::deliver(const Upcall &upcall)
{
    switch (upcall.kind) {
    case Kind::Event:
        Q_EMIT upcall.target->fcpEventReceived(upcall.value);
        break;
    case Kind::ShutDown:
        Q_EMIT upcall.target->fcpShutDownReceived(upcall.value != 0);
        break;
    }
}

void UpcallQueue::stop()
{
    std::unique_lock lock(m_mutex);
    m_stopped = true;
    m_changed.notify_all();
    if (m_runner != std::this_thread::get_id()) {
        m_changed.wait(lock, [this] { return !m_expected; });
    }
}

#include "ClientChannel.h"

#include <thread>

void ThreadCount::add(int change)
{
    const std::lock_guard lock(m_mutex);
    m_count += change;
    m_condition.notify_all();
}

bool ThreadCount::waitForNone(std::chrono::milliseconds limit)
{
    std::unique_lock lock(m_mutex);
    return m_condition.wait_for(lock, limit, [this] { return m_count == 0; });
}

ClientChannel::ClientChannel(AppFcpInterfaceCORBA_ptr callback, std::function<void()> failed)
    : m_callback(AppFcpInterfaceCORBA::_duplicate(callback))
    , m_failed(std::move(failed))
{
}

void ClientChannel::start(const std::shared_ptr<ThreadCount> &threads)
{
    threads->add(1);
    std::thread([self = shared_from_this(), threads] {
        self->run();
        threads->add(-1);
    }).detach();
}

void ClientChannel::sendEvent(AppFcpEvent event, unsigned count)
{
    push({false, false, event, count});
}

void ClientChannel::sendShutDown(bool canCancel)
{
    push({true, canCancel, TEST_STATUS, 1});
}

void ClientChannel::stop()
{
    const std::lock_guard lock(m_mutex);
    m_stopped = true;
    m_condition.notify_all();
}

void ClientChannel::push(const Run &run)
{
    const std::lock_guard lock(m_mutex);
    if (m_stopped || m_overrun) {
        return;
    }
    if (!m_runs.empty() && !run.isShutDown && !m_runs.back().isShutDown
        && m_runs.back().event == run.event) {
        m_runs.back().count += run.count;
    } else if (m_runs.size() < MaximumRuns) {
        m_runs.push_back(run);
    } else {
        m_overrun = true;
    }
    m_condition.notify_all();
}

bool ClientChannel::pop(Run &run)
{
    std::unique_lock lock(m_mutex);
    m_condition.wait(lock, [this] { return m_stopped || m_overrun || !m_runs.empty(); });
    if (m_stopped || m_overrun) {
        return false;
    }
    run = m_runs.front();
    m_runs.pop_front();
    return true;
}

bool ClientChannel::isStopped()
{
    const std::lock_guard lock(m_mutex);
    return m_stopped || m_overrun;
}

void ClientChannel::send(const Run &run)
{
    if (run.isShutDown) {
        m_callback->ShutDown(run.canCancel);
        return;
    }
    for (unsigned i = 0; i < run.count && !isStopped(); ++i) {
        m_callback->Event(run.event);
    }
}

void ClientChannel::run()
{
    bool failed = false;
    try {
        Run next;
        while (pop(next)) {
            send(next);
        }
    } catch (const CORBA::Exception &) {
        failed = true;
    }
    // The last reference to the client goes here, not when the last user of the channel does: that
    // may be a thread that holds a lock.
    m_callback = AppFcpInterfaceCORBA::_nil();
    {
        const std::lock_guard lock(m_mutex);
        failed = !m_stopped && (failed || m_overrun);
        m_stopped = true;
        m_runs.clear();
    }
    if (failed) {
        m_failed();
    }
}

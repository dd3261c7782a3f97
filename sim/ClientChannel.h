#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>

#include <FcpInterfaces.hh>

/** Counts threads that nobody joins. */
class ThreadCount
{
public:
    void add(int change);
    bool waitForNone(std::chrono::milliseconds limit);

private:
    std::mutex m_mutex;
    std::condition_variable m_condition;
    int m_count = 0;
};

/**
 * Calls one client back, in order, on a thread of its own.
 *
 * What waits is kept as runs of equal events, up to a million runs. A client that falls behind
 * further, or that can't be called, is given up: the failure handler is called once, and nothing is
 * sent any more. No event is ever left out for a client that is kept.
 */
class ClientChannel : public std::enable_shared_from_this<ClientChannel>
{
public:
    /** @p failed is called on the channel's thread. */
    ClientChannel(AppFcpInterfaceCORBA_ptr callback, std::function<void()> failed);

    /** Starts the thread, which keeps the channel alive until it ends. */
    void start(const std::shared_ptr<ThreadCount> &threads);
    void sendEvent(AppFcpEvent event, unsigned count);
    void sendShutDown(bool canCancel);
    /** Ends the thread after the call that it may be in; what waits is not sent any more. */
    void stop();

private:
    struct Run
    {
        bool isShutDown = false;
        bool canCancel = false;
        AppFcpEvent event = TEST_STATUS;
        unsigned count = 1;
    };

    void push(const Run &run);
    bool pop(Run &run);
    bool isStopped();
    void run();
    void send(const Run &run);

    static constexpr size_t MaximumRuns = 1000000;

    AppFcpInterfaceCORBA_var m_callback;
    const std::function<void()> m_failed;
    std::mutex m_mutex;
    std::condition_variable m_condition;
    std::deque<Run> m_runs;
    bool m_stopped = false;
    bool m_overrun = false;
};

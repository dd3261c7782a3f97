#pragma once

#include <chrono>
#include <utility>

#include <omniORB4/CORBA.h>

/**
 * While it lives, calls of this thread fail after the given time instead of the ORB's round-trip
 * time-out. Nested, the inner one counts until it goes.
 */
class ThreadCallTimeOut
{
public:
    explicit ThreadCallTimeOut(std::chrono::milliseconds timeOut)
        : m_outer(std::exchange(t_timeOut, timeOut))
    {
        apply();
    }
    ~ThreadCallTimeOut()
    {
        t_timeOut = m_outer;
        apply();
    }

    ThreadCallTimeOut(const ThreadCallTimeOut &) = delete;
    ThreadCallTimeOut &operator=(const ThreadCallTimeOut &) = delete;

private:
    static void apply()
    {
        omniORB::setClientThreadCallTimeout(static_cast<CORBA::ULong>(t_timeOut.count()));
    }

    // 0 is the ORB's word for its own time-out.
    inline static thread_local std::chrono::milliseconds t_timeOut {0};

    // The ORB keeps the time-out in its own notion of a thread, which threads of Qt lack.
    const omni_thread::ensure_self m_orbThread;
    const std::chrono::milliseconds m_outer;
};

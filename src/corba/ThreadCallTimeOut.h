#pragma once

#include <chrono>

#include <omniORB4/CORBA.h>

/**
 * While it lives, calls of this thread fail after the given time instead of the ORB's round-trip
 * time-out. Does not nest.
 */
class ThreadCallTimeOut
{
public:
    explicit ThreadCallTimeOut(std::chrono::milliseconds timeOut)
    {
        omniORB::setClientThreadCallTimeout(static_cast<CORBA::ULong>(timeOut.count()));
    }
    ~ThreadCallTimeOut() { omniORB::setClientThreadCallTimeout(0); }

    ThreadCallTimeOut(const ThreadCallTimeOut &) = delete;
    ThreadCallTimeOut &operator=(const ThreadCallTimeOut &) = delete;

private:
    // The ORB keeps the time-out in its own notion of a thread, which threads of Qt lack.
    omni_thread::ensure_self m_orbThread;
};

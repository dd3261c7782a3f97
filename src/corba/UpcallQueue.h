#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

class AppFcpCORBAImpl;

/**
 * Hands the controller's calls from the ORB's reader of the connection to the ORB thread.
 *
 * The reader must come back at once: it also reads the replies to this client's own calls, so one
 * made from a slot on the reader's thread would wait for itself.
 */
class UpcallQueue
{
public:
    enum class Kind { Event, ShutDown };

    /**
     * Has @p target emit its signal for the call; keeps a reference to it until then. After stop()
     * it does nothing.
     */
    void post(AppFcpCORBAImpl *target, Kind kind, int value);
    /** Says that a thread is about to run(). */
    void expectRun();
    /** Delivers on the calling thread, in the order of the posts, until stop(). */
    void run();
    /**
     * Ends run() and waits until it has returned, but not for itself on the thread of run(). What
     * was not delivered is dropped.
     */
    void stop();

private:
    struct Upcall
    {
        AppFcpCORBAImpl *target;
        Kind kind;
        int value;
    };

    static void deliver(const Upcall &upcall);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Upcall> m_upcalls;
    std::thread::id m_runner;
    bool m_expected = false; ///< from expectRun() to the end of run()
    bool m_stopped = false;
};

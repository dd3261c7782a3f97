#pragma once

#include <chrono>

/**
 * Wakes a thread that waits for something to happen, or for a peer to hang up.
 *
 * A ring is kept until the next wait, so none is missed.
 */
class Bell
{
public:
    enum class Woken { Rung, HungUp, TimedOut };

    Bell();
    ~Bell();

    Bell(const Bell &) = delete;
    Bell &operator=(const Bell &) = delete;

    /** From any thread, at any time. */
    void ring();
    /**
     * Waits until the bell is rung, the peer of @p socket (-1: none) has closed the connection or
     * is gone, or @p timeOut is over (negative: never). One thread at a time.
     */
    Woken wait(std::chrono::milliseconds timeOut, int socket = -1);

private:
    const int m_event;
};

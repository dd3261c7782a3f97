#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>

#include "VexHidDriver.h"

/**
 * A keypad that a program plays, for tests and demonstrations. Its own methods may be called from
 * any thread.
 */
class VEX_EXPORT ScriptedHidDriver : public VexHidDriver
{
public:
    ScriptedHidDriver();
    ~ScriptedHidDriver() override;

    void press();
    void release();
    /** @p detents may be negative; more than 16 bits hold come as several reports. */
    void turn(int detents);
    /** Any report, also one that no keypad sends. */
    void send(const Report &report);
    /** Lets listen() fail with @p code after what was sent so far. */
    void fail(int code);
    /** Lets open() fail from now on. */
    void setPresent(bool present);
    bool isActive() const;

    int prepare() override;
    int open() override;
    int setActive(bool on) override;
    int listen(Report &report) override;
    int close() override;

private:
    struct Step
    {
        int result = Success;
        Report report;
    };

    void add(const Step &step);

    mutable std::mutex m_mutex;
    std::condition_variable m_added;
    std::deque<Step> m_steps;
    bool m_isPresent = true;
    bool m_isActive = false;
};

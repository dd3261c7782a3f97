#pragma once

#include <atomic>
#include <chrono>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/** One way to misbehave. */
struct Fault
{
    enum class Action {
        Delay, ///< carries the call out and answers later
        Hang, ///< neither carries it out nor answers, ever
        Mute, ///< carries it out and never answers
        Close, ///< closes the connection instead of carrying the call out
        CloseAfter, ///< carries it out and closes the connection instead of answering
        Reset, ///< like Close, with a TCP reset
        ResetAfter,
        Exception, ///< answers a CORBA system exception instead of carrying it out
        Fail, ///< answers the operation's own kind of failure instead of carrying it out
        Garbage, ///< carries it out and answers bytes that are no message
        HugeLength, ///< ... the beginning of a reply of 2 GiB
        Truncated, ///< ... the beginning of a reply, and closes the connection
    };

    Action action = Action::Delay;
    std::chrono::milliseconds delay {0};
    std::string exception; ///< the name of a system exception
};

/**
 * The rules by which the simulator misbehaves. From any thread.
 *
 * A rule is written OPERATION:CALL:ACTION, see help(). Each counts the calls it matches from when
 * it was set; of several that strike, the first one counts.
 */
class Faults
{
public:
    /** @return what is wrong with @p rule; empty when it was added */
    std::string add(const std::string &rule);
    void clear();
    std::vector<std::string> rules() const;

    /** Counts a call and tells whether something shall go wrong with it. */
    std::optional<Fault> next(std::string_view operation);

    /** By how much every answer is delayed. */
    void setLatency(std::chrono::milliseconds latency) { m_latency = latency; }
    std::chrono::milliseconds latency() const { return m_latency; }

    /** How rules are written. */
    static const char *help();

private:
    struct Rule
    {
        std::string text;
        std::string operation; ///< empty: all
        unsigned first = 1;
        unsigned last = 0;
        Fault fault;
        unsigned calls = 0;
    };

    static std::string parse(const std::string &text, Rule &rule);

    std::atomic<std::chrono::milliseconds> m_latency {std::chrono::milliseconds(0)};
    std::atomic<bool> m_any = false;
    mutable std::mutex m_mutex;
    std::vector<Rule> m_rules;
};

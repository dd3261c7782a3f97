#pragma once

#include <QVector>

#include <compare>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

class PropertiesListener;

/**
 * Who is to be told of which property or group, and who is being told at this moment.
 *
 * From any thread. Listeners are called without the lock held; what PropertiesManager says of
 * threads and of unregistering is done here.
 */
class PropertiesNotifier
{
public:
    enum class Scope { Property, Group };

    /** What a listener is registered for. */
    struct Place
    {
        Scope scope;
        long key; ///< an id or a group

        // clang-tidy 14 takes the result for a pointer.
        auto operator<=>(const Place &) const = default; // NOLINT(modernize-use-nullptr)
    };

    /** @return false when the listener is null or is there already. */
    bool add(const Place &place, PropertiesListener *listener);
    /** Waits for calls on other threads; see PropertiesManager. */
    void remove(const Place &place, PropertiesListener *listener);
    void removeEverywhere(PropertiesListener *listener);

    /** Calls the listeners of the property, then those of the group. */
    void notify(long id, long group);

private:
    struct Registration
    {
        Place place;
        PropertiesListener *listener;
        bool isActive = true;
    };
    using Registrations = QVector<std::shared_ptr<Registration>>;

    /// A listener that a thread is calling.
    struct Call
    {
        std::shared_ptr<Registration> registration;
        std::thread::id thread;
    };

    /// Registrations that have ended: of a listener, at one place or everywhere.
    struct Ended
    {
        PropertiesListener *listener;
        std::optional<Place> place;

        bool includes(const Registration &registration) const;
    };

    /// A thread that waits for the calls of ended registrations.
    struct Wait
    {
        std::thread::id thread;
        Ended ended;
    };

    static Registrations::const_iterator find(const Registrations &registrations,
                                              const PropertiesListener *listener);
    static void end(Registrations &registrations, PropertiesListener *listener);
    void call(std::unique_lock<std::mutex> &lock,
              const std::shared_ptr<Registration> &registration);
    void finishCall(const Registration &registration);
    void awaitCalls(std::unique_lock<std::mutex> &lock, const Ended &ended);
    std::vector<std::thread::id> othersCalling(const Ended &ended, std::thread::id thread) const;
    bool isAwaitedBy(std::vector<std::thread::id> threads, std::thread::id thread) const;

    std::mutex m_mutex;
    std::map<Place, Registrations> m_registrations;
    std::vector<Call> m_calls;
    std::vector<Wait> m_waits;
    std::condition_variable m_callEnded;
};

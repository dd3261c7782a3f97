#include "PropertiesNotifier.h"

#include <QScopeGuard>

#include <algorithm>

#include "PropertiesListener.h"

bool PropertiesNotifier::Ended::includes(const Registration &registration) const
{
    return registration.listener == listener && !registration.isActive
        && (!place || *place == registration.place);
}

bool PropertiesNotifier::add(const Place &place, PropertiesListener *listener)
{
    if (!listener) {
        return false;
    }
    const std::lock_guard lock(m_mutex);
    Registrations &registrations = m_registrations[place];
    if (find(registrations, listener) != registrations.cend()) {
        return false;
    }
    registrations.append(std::make_shared<Registration>(Registration {place, listener}));
    return true;
}

void PropertiesNotifier::remove(const Place &place, PropertiesListener *listener)
{
    std::unique_lock lock(m_mutex);
    const auto found = m_registrations.find(place);
    if (found != m_registrations.end()) {
        end(found->second, listener);
    }
    // Also when it was not there: another thread may have removed it, and still be waiting.
    awaitCalls(lock, {listener, place});
}

void PropertiesNotifier::removeEverywhere(PropertiesListener *listener)
{
    std::unique_lock lock(m_mutex);
    for (auto &[place, registrations] : m_registrations) {
        end(registrations, listener);
    }
    awaitCalls(lock, {listener, {}});
}

PropertiesNotifier::Registrations::const_iterator
PropertiesNotifier::find(const Registrations &registrations, const PropertiesListener *listener)
{
    return std::find_if(registrations.cbegin(), registrations.cend(),
                        [&](const auto &other) { return other->listener == listener; });
}

/// A round of calls that has a copy of the list sees that the registration is not active any more.
void PropertiesNotifier::end(Registrations &registrations, PropertiesListener *listener)
{
    const auto found = find(registrations, listener);
    if (found != registrations.cend()) {
        (*found)->isActive = false;
        registrations.erase(found);
    }
}

void PropertiesNotifier::notify(long id, long group)
{
    std::unique_lock lock(m_mutex);
    for (const Place &place : {Place {Scope::Property, id}, Place {Scope::Group, group}}) {
        const auto found = m_registrations.find(place);
        if (found == m_registrations.end()) {
            continue;
        }
        const Registrations round = found->second; // callbacks change the original
        for (const std::shared_ptr<Registration> &registration : round) {
            call(lock, registration);
        }
    }
}

void PropertiesNotifier::call(std::unique_lock<std::mutex> &lock,
                              const std::shared_ptr<Registration> &registration)
{
    if (!registration->isActive) {
        return;
    }
    m_calls.push_back({registration, std::this_thread::get_id()});
    lock.unlock();
    const auto finish = qScopeGuard([&] {
        lock.lock();
        finishCall(*registration);
    });
    const auto [scope, key] = registration->place;
    if (scope == Scope::Property) {
        registration->listener->PropertyChanged(key);
    } else {
        registration->listener->PropertyGroupChanged(key);
    }
}

void PropertiesNotifier::finishCall(const Registration &registration)
{
    const auto finished = std::find_if(m_calls.crbegin(), m_calls.crend(), [&](const Call &call) {
        return call.registration.get() == &registration
            && call.thread == std::this_thread::get_id();
    });
    m_calls.erase(std::next(finished).base());
    if (!m_waits.empty()) {
        m_callEnded.notify_all();
    }
}

void PropertiesNotifier::awaitCalls(std::unique_lock<std::mutex> &lock, const Ended &ended)
{
    const auto self = std::this_thread::get_id();
    if (isAwaitedBy(othersCalling(ended, self), self)) {
        return; // they would wait for each other
    }
    m_waits.push_back({self, ended});
    m_callEnded.wait(lock, [&] { return othersCalling(ended, self).empty(); });
    m_waits.erase(std::find_if(m_waits.cbegin(), m_waits.cend(),
                               [&](const Wait &wait) { return wait.thread == self; }));
}

std::vector<std::thread::id> PropertiesNotifier::othersCalling(const Ended &ended,
                                                               std::thread::id thread) const
{
    std::vector<std::thread::id> others;
    for (const Call &call : m_calls) {
        if (call.thread != thread && ended.includes(*call.registration)) {
            others.push_back(call.thread);
        }
    }
    return others;
}

/// Whether one of @p threads waits for a call of @p thread, directly or through further threads.
bool PropertiesNotifier::isAwaitedBy(std::vector<std::thread::id> threads,
                                     std::thread::id thread) const
{
    for (size_t i = 0; i < threads.size(); ++i) { // grows meanwhile
        for (const Wait &wait : m_waits) {
            if (wait.thread != threads[i]) {
                continue;
            }
            for (const std::thread::id other : othersCalling(wait.ended, wait.thread)) {
                if (other == thread) {
                    return true;
                }
                if (std::find(threads.cbegin(), threads.cend(), other) == threads.cend()) {
                    threads.push_back(other);
                }
            }
        }
    }
    return false;
}

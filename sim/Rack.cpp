#include "Rack.h"

#include <algorithm>

Rack::Rack(const Instrument &instrument)
    : m_instrument(instrument)
{
}

QVector<Module> Rack::modules() const
{
    const std::lock_guard lock(m_mutex);
    QVector<Module> present;
    for (const Module &module : m_instrument.modules) {
        if (!m_missing.contains(module.id)) {
            present.append(module);
        }
    }
    return present;
}

bool Rack::setPresent(int moduleId, bool present)
{
    const auto isIt = [&](const Module &module) { return module.id == moduleId; };
    if (std::none_of(m_instrument.modules.begin(), m_instrument.modules.end(), isIt)) {
        return false;
    }
    const std::lock_guard lock(m_mutex);
    return present ? m_missing.erase(moduleId) > 0 : m_missing.insert(moduleId).second;
}

int Rack::request(std::uint64_t connection, const std::vector<ResourceKey> &resources)
{
    const std::lock_guard lock(m_mutex);
    if (!std::all_of(resources.begin(), resources.end(),
                     [this](const ResourceKey &key) { return exists(key); })) {
        return -1;
    }
    const int id = m_next++;
    m_requests[id] = {connection, resources, false};
    grant();
    return id;
}

Rack::RequestStatus Rack::requestStatus(int request) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_requests.find(request);
    if (found == m_requests.end()) {
        return Unknown;
    }
    return found->second.isGranted ? Granted : Waiting;
}

std::vector<Rack::ResourceStatus> Rack::statuses() const
{
    std::vector<ResourceStatus> result;
    const QVector<Module> present = modules();
    const std::lock_guard lock(m_mutex);
    for (const Module &module : present) {
        for (const Port &port : module.ports) {
            for (const Resource &resource : port.resources) {
                const ResourceKey key(module.id, resource.id);
                const auto holder = m_holders.find(key);
                result.push_back({key, holder == m_holders.end() ? 0 : holder->second});
            }
        }
    }
    return result;
}

bool Rack::release(std::uint64_t connection)
{
    const std::lock_guard lock(m_mutex);
    const auto isTheirs = [&](int request) {
        return m_requests.at(request).connection == connection;
    };
    std::erase_if(m_holders, [&](const auto &item) { return isTheirs(item.second); });
    const bool any =
        std::erase_if(m_requests,
                      [&](const auto &item) { return item.second.connection == connection; })
        > 0;
    grant();
    return any;
}

bool Rack::exists(const ResourceKey &key) const
{
    for (const Module &module : m_instrument.modules) {
        if (module.id != key.first || m_missing.contains(module.id)) {
            continue;
        }
        for (const Port &port : module.ports) {
            for (const Resource &resource : port.resources) {
                if (resource.id == key.second) {
                    return true;
                }
            }
        }
    }
    return false;
}

bool Rack::canGrant(const Request &request) const
{
    return std::all_of(request.resources.begin(), request.resources.end(), [&](const auto &key) {
        const auto holder = m_holders.find(key);
        return holder == m_holders.end()
            || m_requests.at(holder->second).connection == request.connection;
    });
}

/// Serves the requests that wait, the oldest first.
void Rack::grant()
{
    for (auto &[id, request] : m_requests) {
        if (!request.isGranted && canGrant(request)) {
            request.isGranted = true;
            for (const ResourceKey &key : request.resources) {
                m_holders[key] = id;
            }
        }
    }
}

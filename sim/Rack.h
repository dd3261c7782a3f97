#pragma once

#include <cstdint>
#include <map>
#include <mutex>
#include <set>
#include <utility>
#include <vector>

#include "Instrument.h"

/**
 * The modules that are plugged in, and who holds their resources. From any thread.
 *
 * A request is granted when all its resources are free, or held by the same client already, which
 * then moves them to the new request. Requests are served in the order in which they came.
 */
class Rack
{
public:
    /** A resource by its module's and its own id. */
    using ResourceKey = std::pair<int, int>;

    enum RequestStatus { Unknown = -1, Waiting = 0, Granted = 1 };

    struct ResourceStatus
    {
        ResourceKey key;
        int holder = 0; ///< the request that it is granted to; 0: free
    };

    explicit Rack(const Instrument &instrument);

    /** The modules that are plugged in. */
    QVector<Module> modules() const;
    /** Plugs a module of the instrument in or out. @return whether that changed anything */
    bool setPresent(int moduleId, bool present);

    /** @return the request's id, from 1; -1 when a resource does not exist */
    int request(std::uint64_t connection, const std::vector<ResourceKey> &resources);
    RequestStatus requestStatus(int request) const;
    std::vector<ResourceStatus> statuses() const;
    /** Gives back what a connection's requests hold. @return whether there was any */
    bool release(std::uint64_t connection);

private:
    struct Request
    {
        std::uint64_t connection = 0;
        std::vector<ResourceKey> resources;
        bool isGranted = false;
    };

    bool exists(const ResourceKey &key) const;
    bool canGrant(const Request &request) const;
    void grant();

    const Instrument &m_instrument;
    mutable std::mutex m_mutex;
    std::set<int> m_missing;
    std::map<int, Request> m_requests;
    std::map<ResourceKey, int> m_holders;
    int m_next = 1;
};

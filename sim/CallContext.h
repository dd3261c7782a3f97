#pragma once

#include <memory>

#include "Connections.h"

/** What the servants know of the call that the current thread carries out. */
struct CallContext
{
    std::shared_ptr<Connection> connection;
    bool mustFail = false; ///< a fault wants the operation to answer its own kind of failure

    /** The current thread's. Null outside of a call. */
    static CallContext *current();

    /** Makes a context the current one for its life. */
    class Scope
    {
    public:
        explicit Scope(CallContext &context);
        ~Scope();
        Scope(const Scope &) = delete;
        Scope &operator=(const Scope &) = delete;
    };
};

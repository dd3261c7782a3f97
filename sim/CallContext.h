#pragma once

#include <chrono>
#include <memory>

#include "Connections.h"

/** What is known of the call that the current thread carries out. */
class CallContext
{
public:
    CallContext(std::shared_ptr<Connection> connection, omni::giopConnection *giopConnection);
    ~CallContext();
    CallContext(const CallContext &) = delete;
    CallContext &operator=(const CallContext &) = delete;

    /** Has the ORB tell contexts when answers are sent; after it was made. */
    static void install();

    /** The current thread's; null outside of a call. */
    static CallContext *current();

    const std::shared_ptr<Connection> connection;
    bool mustFail = false; ///< a fault wants the operation to answer its own kind of failure
    std::chrono::milliseconds delay {0}; ///< a fault wants the answer to come later

    /**
     * Lets calls that come meanwhile over the same connection start on other threads at once;
     * otherwise they would wait for up to 50 ms. To be called by operations that may take long,
     * once their arguments were read. (It takes longer than a quick operation itself.)
     */
    void expectToTakeLong();

    /** Called by the ORB when the operation is over, before the answer is sent. */
    void beforeAnswer();

private:
    omni::giopConnection *m_giopConnection;
    bool m_takesLong = false;
};

#pragma once

#include <corba/FcpAppCORBA.h>

#include "Failure.h"

#include <chrono>
#include <optional>
#include <type_traits>

/// Where the controller is, and how long an answer is waited for.
struct Address
{
    QString host;
    int port = 0;
    std::optional<std::chrono::milliseconds> timeOut; ///< the library's own when not given

    QString toString() const;
};

/**
 * The link to the controller for the time of one command. A command never makes a second one: what
 * it had begun could be half done.
 */
class Session
{
public:
    /// Throws Failure with Exit::NoLink when the controller can not be reached.
    explicit Session(const Address &address);
    /// Unregisters and takes the ORB down.
    ~Session();
    Q_DISABLE_COPY_MOVE(Session)

    const Address &address() const { return m_address; }
    FcpAppCORBA *controller() const { return m_controller; }

    /**
     * Makes a call to the controller, as `session.ask([](FcpAppCORBA &fcp) { ... })`, and returns
     * its result. A zero result means what it says: a lost link throws instead.
     */
    template<typename Call>
    std::invoke_result_t<Call, FcpAppCORBA &> ask(Call call) const
    {
        if constexpr (std::is_void_v<std::invoke_result_t<Call, FcpAppCORBA &>>) {
            call(*m_controller);
            requireLink();
        } else {
            auto result = call(*m_controller);
            requireLink();
            return result;
        }
    }

    bool isLinkUp() const;
    /// The link is lost: what to throw.
    Failure linkLost() const;
    void requireLink() const;

private:
    Address m_address;
    FcpAppCORBA *m_controller = nullptr;
    quint64 m_linkSerial = 0;
};

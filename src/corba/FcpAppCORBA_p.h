#pragma once

#include <QMutex>

#include <atomic>
#include <chrono>
#include <memory>

#include "ConnectionGate.h"
#include "CorbaLogging.h"
#include "FcpAppCORBA.h"
#include "FcpLink.h"
#include "WireConversion.h"

class AppFcpCORBAImpl;
class UpcallQueue;

/** When the controller was last heard of. */
class SignOfLife
{
public:
    void note() { m_last.store(now(), std::memory_order_relaxed); }
    /** Milliseconds; -1 when nothing was noted yet. */
    qint64 age() const
    {
        const qint64 last = m_last.load(std::memory_order_relaxed);
        return last == 0 ? -1 : now() - last;
    }

private:
    static qint64 now()
    {
        const auto time = std::chrono::steady_clock::now().time_since_epoch();
        return std::chrono::duration_cast<std::chrono::milliseconds>(time).count();
    }

    std::atomic<qint64> m_last = 0;
};

struct FcpAppCORBA::Private
{
    Private(FcpAppCORBA *proxy, BiDirectionalCORBA *orb, std::shared_ptr<UpcallQueue> upcalls);
    ~Private();

    std::shared_ptr<FcpLink> currentLink() const;
    enum class Connected { Yes, No, LinkDropped };
    /**
     * Connects, registers and makes that the current link. On failure the link that was there is
     * dropped (LinkDropped: who calls this says so) and the reason is in m_lastError. With
     * @p onlyIfLost it does nothing when there is a link.
     */
    Connected connectTo(const QString &host, int port, bool onlyIfLost);
    struct Controller
    {
        FcpAppInterfaceCORBA_var object;
        FcpContentsCORBA_var contents;
    };
    /// Finds the controller's object, or throws.
    Controller findController(const QByteArray &address);
    /// Makes a registered link, or throws.
    std::shared_ptr<FcpLink> makeLink(const QString &host, int port);
    /// Puts @p fresh in the place of the link that was there, which is let go.
    void replaceLink(const std::shared_ptr<FcpLink> &fresh);
    /// Takes @p link away if it is still the current one. @return whether it was.
    bool dropLink(const std::shared_ptr<FcpLink> &link, const QString &reason);
    /// Likewise, and says so: once for each link.
    void linkFailed(const std::shared_ptr<FcpLink> &link, const QString &reason);
    /// Unregisters a link that others have replaced; what comes of it does not matter any more.
    void letGo(const std::shared_ptr<FcpLink> &link);

    void activateCallback();
    void deactivateCallback();

    /// Whether the arguments of a call fit the wire; says so in the log when they don't.
    template<typename... Arguments>
    bool admits(const Arguments &...arguments) const
    {
        const bool fit = (WireConversion::canTravel(arguments) && ...);
        if (!fit) {
            qCWarning(lcCorba) << "not sent to the controller: a text with a NUL character, or a "
                                  "number beyond 32 bits";
        }
        return fit;
    }

    /**
     * The way of every call: @p call is made on @p link, and when it throws anything the link is
     * lost and @p failure the result.
     */
    template<typename Result, typename Call>
    Result callOn(const std::shared_ptr<FcpLink> &link, Result failure, Call &&call)
    {
        try {
            const ConnectionGate::BoundCall bound(link->connection());
            Result result = call(*link);
            signOfLife->note();
            return result;
        } catch (...) {
            linkFailed(link, describeCurrentException(true));
            return failure;
        }
    }

    /// A call on the current link; without one the result is @p zero.
    template<typename Result, typename Call>
    Result call(Result zero, Call &&call)
    {
        const std::shared_ptr<FcpLink> link = currentLink();
        return link ? callOn(link, zero, std::forward<Call>(call)) : zero;
    }

    /// A call that returns nothing but what it assigns.
    template<typename Call>
    void callVoid(Call &&call)
    {
        this->call(false, [&call](FcpLink &link) {
            call(link);
            return true;
        });
    }

    /// The exception being handled, of a call on a link or of one that was to make a link, in
    /// words.
    static QString describeCurrentException(bool onLink);

    FcpAppCORBA *const q;
    BiDirectionalCORBA *const corba;
    AppFcpCORBAImpl *const callback;

    /// One connectToFCP() at a time.
    QMutex connecting;
    PortableServer::ObjectId_var callbackId;
    bool callbackIdWasRegistered = false;

    /// Guards what follows; never held across a call.
    mutable QMutex mutex;
    std::shared_ptr<FcpLink> m_link;
    QString m_host;
    int m_port = 0;
    quint64 m_lossCount = 0; ///< links that were lost, not replaced
    QString m_lastError;

    std::atomic<quint64> linkCount = 0;
    /// Shared with the connection to the callback object, whose signal the ORB thread may be
    /// emitting while the proxy goes.
    const std::shared_ptr<SignOfLife> signOfLife = std::make_shared<SignOfLife>();
};

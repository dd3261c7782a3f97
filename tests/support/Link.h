#pragma once

#include <QMutex>
#include <QObject>
#include <QVector>

#include <atomic>
#include <chrono>

#include <corba/BiDirectionalCORBA.h>
#include <corba/FcpAppCORBA.h>

/**
 * The client's side of a link for as long as it exists: ORB, proxy, and what the proxy reported.
 *
 * It listens on ports that other test programs don't use. When the ORB can not be made, the test
 * program ends with qFatal.
 */
class Link
{
public:
    /** @p callTimeOut is the round-trip time-out; the default is never reached on the loopback. */
    explicit Link(std::chrono::milliseconds callTimeOut = std::chrono::seconds(20),
                  const QVector<QString> &orbArguments = {});
    ~Link();

    Link(const Link &) = delete;
    Link &operator=(const Link &) = delete;

    FcpAppCORBA *proxy() const { return FcpAppCORBA::instance(); }
    FcpAppCORBA *operator->() const { return proxy(); }
    bool connectTo(quint16 port)
    {
        return proxy()->connectToFCP(QStringLiteral("127.0.0.1"), port);
    }

    /** How often disconnectCatched was emitted; each time with -1, or this is negative. */
    int losses() const;
    /** The events that arrived on the GUI thread, in order. */
    QVector<int> events() const { return m_events; }
    void clearEvents() { m_events.clear(); }

private:
    QObject m_context;
    std::atomic<int> m_losses = 0;
    std::atomic<bool> m_otherReason = false;
    QVector<int> m_events;
};

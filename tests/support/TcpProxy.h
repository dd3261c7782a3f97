#pragma once

#include <QByteArray>
#include <QVector>

#include <chrono>
#include <memory>

#include "Giop.h"

/**
 * Stands between a client and a controller on the loopback interface and can do to the messages
 * what networks and dying peers do.
 *
 * It runs on a thread of its own; all methods may be called from any thread and take effect at
 * once. The controller must publish this proxy's address in its references, else the client goes
 * around it.
 */
class TcpProxy
{
public:
    enum class Direction { ToController, ToClient };

    /** What happens to a message. All but Delay strike every message on the connection. */
    enum class Action {
        ResetBefore, ///< both sides get a RST, the message does not go through
        CloseBefore, ///< likewise, with a FIN
        ResetAfter, ///< the message goes through, then both sides get a RST
        CloseAfter, ///< likewise, with a FIN
        ResetInside, ///< half of the message, then RST
        CloseInside, ///< half of the message, then FIN
        Swallow, ///< it vanishes; the connection stays
        BreakMagic, ///< its first bytes are not "GIOP"
        FlipLastByte, ///< the last byte of its payload has all bits inverted
        AnnounceTwoGigabytes, ///< its header announces 2 GB more than there is
        Delay, ///< it, and what follows it, waits for Strike::delay
    };

    /** Which messages an action strikes. */
    struct Strike
    {
        Action action = Action::ResetBefore;
        Direction direction = Direction::ToController;
        /** That of the request, or of the request that a reply answers; empty means any. */
        QByteArray operation = {};
        int passFirst = 0; ///< so many matching messages go through before
        int times = 1; ///< and so many are struck then; -1: all
        std::chrono::milliseconds delay = {};
    };

    struct Message
    {
        int connection = 0; ///< counted from 1
        Direction direction = Direction::ToController;
        Giop::MessageType type = Giop::MessageType::Request;
        QByteArray operation;
        QByteArray bytes; ///< no more than RecordedBytes of them
    };
    static constexpr qsizetype RecordedBytes = 4096;

    enum class Ending { Close, Reset };

    /** Listens on a free port of 127.0.0.1; nothing is forwarded before setController(). */
    TcpProxy();
    /** Cuts what is open. */
    ~TcpProxy();

    quint16 port() const;
    /** Where connections accepted from now on lead to. */
    void setController(quint16 port);

    void strike(const Strike &strike);
    /** How often the strike that was given last has struck. */
    int struck() const;
    /** Forgets the strike, lifts the hole and the limit, and accepts connections. */
    void behave();

    void cutConnections(Ending ending);
    /** Without listening, a client is refused. */
    void setListening(bool listening);
    /** A black hole forwards nothing and keeps the sockets open; what came goes on afterwards. */
    void setHole(bool hole);
    /** Limits each direction of each connection; 0 means unlimited. */
    void setRate(qint64 bytesPerSecond);

    int acceptedConnections() const;
    int openConnections() const;
    /** What has gone through since the start or clearRecord(), in order. */
    QVector<Message> recorded() const;
    void clearRecord();

private:
    class Worker;
    const std::unique_ptr<Worker> m_worker;
};

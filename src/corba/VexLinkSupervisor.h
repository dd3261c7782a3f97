#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>

#include <chrono>
#include <memory>

#include "VexExport.h"

class FcpAppCORBA;

/**
 * Keeps the link to the controller up, for applications that want that.
 *
 * It asks the controller for a sign of life (isMaximumClientCountOK) when nothing else was heard of
 * it for interval(), and at once when the connection was closed at the other end. After a loss it
 * connects and registers anew, with delays that grow from one attempt to the next and are jittered
 * so that many clients don't come back in step.
 *
 * All calls to the controller are made on a thread of its own: no method blocks, but for the
 * destructor, which waits for what is under way there. A sign of life takes answerTimeOut() at
 * most; an attempt to connect makes several calls, after looking up the host's name and after a
 * connectToFCP() of somebody else. Methods belong to the thread that the object lives on, signals
 * are emitted there.
 *
 * @code
 * auto *supervisor = new VexLinkSupervisor(FcpAppCORBA::instance(), this);
 * connect(supervisor, &VexLinkSupervisor::stateChanged, statusBar, &StatusBar::showLink);
 * connect(supervisor, &VexLinkSupervisor::restored, this, &Application::reload);
 * supervisor->start(host, port);
 * @endcode
 */
class VEX_EXPORT VexLinkSupervisor : public QObject
{
    Q_OBJECT
    Q_PROPERTY(VexLinkSupervisor::State state READ state NOTIFY stateChanged)

public:
    /**
     * @dot
     * digraph { Stopped -> Restoring [label="start"]; Stopped -> Connected [label="start, link
     * up"]; Restoring -> Connected; Restoring -> Lost [label="attempt failed"]; Lost -> Restoring
     * [label="delay over, retryNow"]; Connected -> Suspect [label="no answer yet"]; Suspect ->
     * Connected [label="heard"]; Connected -> Lost; Suspect -> Lost; }
     * @enddot
     * stop() leads from any state to Stopped.
     */
    enum class State {
        Stopped, ///< not watching; the link is left as it is
        Connected, ///< the controller answers
        Suspect, ///< the controller owes an answer for longer than suspectAfter()
        Lost, ///< there is no link; the next attempt is waited for
        Restoring, ///< an attempt to connect and register is under way
    };
    Q_ENUM(State)

    /** @p controller is not owned and must outlive this object. */
    explicit VexLinkSupervisor(FcpAppCORBA *controller, QObject *parent = nullptr);
    ~VexLinkSupervisor() override;

    State state() const;
    /** Why the state is what it is, in words for a person. */
    QString reason() const;
    /** When the state was entered. */
    QDateTime since() const;

    /** How long the link may be quiet before a sign of life is asked for; 5 s by default. */
    std::chrono::milliseconds interval() const;
    void setInterval(std::chrono::milliseconds interval);
    /**
     * How long a sign of life, or the answer to a registration, is waited for before the link
     * counts as lost; 5 s by default. A time-out takes everything on the connection with it: a
     * controller that answers one call of a client after the other must finish each within
     * interval() and this time together.
     */
    std::chrono::milliseconds answerTimeOut() const;
    void setAnswerTimeOut(std::chrono::milliseconds timeOut);
    /** How long an answer may be owed before the link is Suspect; 1 s by default. */
    std::chrono::milliseconds suspectAfter() const;
    void setSuspectAfter(std::chrono::milliseconds delay);
    /**
     * The delay before the second attempt to restore the link, which doubles with each further one
     * up to @p longest; 1 s and 10 s by default. The first attempt comes at once. Each delay is
     * shortened at random by up to a quarter.
     */
    void setRetryDelays(std::chrono::milliseconds first, std::chrono::milliseconds longest);

public Q_SLOTS:
    /**
     * Watches the link to @p host and @p port, and makes it first if there is none. A link to
     * another address that the proxy may have is replaced.
     */
    void start(const QString &host, int port);
    /**
     * Stops watching and reconnecting. The link stays as it is. To be called before the
     * application's own FcpAppCORBA::disconnectFromFCP(), after which no events come.
     */
    void stop();
    /** Makes the next attempt now instead of after the delay; only matters while Lost. */
    void retryNow();

Q_SIGNALS:
    /** The state changed to @p state at @p since, for @p reason. */
    void stateChanged(VexLinkSupervisor::State state, const QString &reason,
                      const QDateTime &since);
    /**
     * A lost link is up again and this client is registered: events flow from here on. What was
     * missed meanwhile is to be fetched now. Once for each link lost; not after start().
     */
    void restored();

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

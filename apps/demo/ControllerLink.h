#pragma once

#include <QObject>
#include <QThread>

#include <corba/VexLinkSupervisor.h>

#include <memory>

#include "TestPhase.h"

class FcpAppCORBA;

/**
 * Owns the link to the controller, and makes this application's calls to it.
 *
 * A call blocks until the controller answers, which a controller in trouble does not, so none is
 * made on the GUI thread: each runs on a thread of this object's, one after the other, and its
 * answer comes as a signal. When the link is lost before the answer, there is none: lost() tells
 * then what there is to tell.
 */
class ControllerLink : public QObject
{
    Q_OBJECT

public:
    using State = VexLinkSupervisor::State;

    /// Starts the ORB. Without one isReady() is false and there will never be a link.
    explicit ControllerLink(QObject *parent = nullptr);
    /// Unregisters and takes the ORB down. Waits for a call that is under way.
    ~ControllerLink() override;

    bool isReady() const { return m_controller != nullptr; }
    /// The proxy, for file dialogs and transfers; null when the ORB did not start.
    FcpAppCORBA *controller() const { return m_controller; }

    /// Connects, and connects again whenever the link is lost.
    void start(const QString &host, int port);
    void retryNow();

    State state() const { return m_state; }
    bool isUp() const { return m_state == State::Connected || m_state == State::Suspect; }
    /// Why the state is what it is, for a person.
    QString reason() const { return m_reason; }
    /// "host:port", empty before start().
    QString address() const { return m_address; }
    /// Of this client at the controller; 0 without a link.
    qint32 clientId() const;

public Q_SLOTS:
    void listTests();
    void launch(const QString &testName);
    void terminate(qint32 testId);
    void askPhase(qint32 testId);

Q_SIGNALS:
    void stateChanged(ControllerLink::State state, const QString &reason);
    /// There is a link, for the first time or again.
    void up();
    /// There is none any more.
    void lost(const QString &reason);

    /// Answers to the slots. Of tests only those are listed that can be launched.
    void testsListed(const QStringList &names);
    /// 0 or less when it was refused.
    void launched(qint32 testId);
    void phaseKnown(qint32 testId, TestPhase phase);
    /// The id that the controller goes by, for the heads of files.
    void controllerKnown(const QString &model, const QString &serial);

    /// A test has begun, come up or gone: the controller does not say which.
    void testsChanged();
    void shutdownRequested(bool canCancel);

private:
    template<typename Call, typename Then>
    void ask(Call call, Then then);
    void connectController();
    void followState(State state, const QString &reason);
    void askController();

    FcpAppCORBA *m_controller = nullptr;
    std::unique_ptr<VexLinkSupervisor> m_supervisor;
    QThread m_thread;
    QObject m_worker; ///< lives on the thread, where calls are posted to it
    State m_state = State::Stopped;
    QString m_reason;
    QString m_address;
};

#pragma once

#include <QString>
#include <QStringList>

#include <memory>

#include "corba/FcpAppCORBA.h"
#include "harness/ChildProcess.h"

/** The simulated controller, in a process of its own. */
class Simulator
{
public:
    explicit Simulator(const QString &root);

    quint16 port() const { return m_port; }
    qint64 id() const { return m_process.id(); }
    /** Has it send @p count events to its clients, and returns when it has begun. */
    void sendEvents(int count);
    /** The kinds that sendEvents() has it send, in their order. */
    static QVector<int> eventsOf(int count);

private:
    ChildProcess m_process;
    quint16 m_port = 0;
};

/** The library's ORB and proxy, as an application sets them up. */
class VexConnection
{
public:
    explicit VexConnection(quint16 port);
    ~VexConnection();

    VexConnection(const VexConnection &) = delete;
    VexConnection &operator=(const VexConnection &) = delete;

    FcpAppCORBA &controller() { return *m_controller; }
    /** What the library passes to its ORB, the listen endpoint left out. */
    QStringList orbArguments() const { return m_orbArguments; }

private:
    QStringList m_orbArguments;
    std::unique_ptr<FcpAppCORBA> m_controller;
};

/** The generated stub without the library, in a process of its own, its ORB set up alike. */
class BareStub
{
public:
    BareStub(quint16 port, const QStringList &orbArguments);

    /** The seconds that a listing takes; throws when it does not have @p entries. */
    double list(const QString &directory, int filterFlags, int entries);
    double ping(int count);
    /** Counts events from 0 on, until there are @p count. */
    void awaitEvents(int count);
    /** Waits for the last of them, and returns how many came. */
    int awaitedEvents();
    qint64 id() const { return m_process.id(); }

private:
    double timed(const QString &command, int expectedCount);

    ChildProcess m_process;
};

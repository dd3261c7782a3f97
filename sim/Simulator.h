#pragma once

#include <QString>
#include <QTemporaryDir>

#include <memory>

#include "CallLog.h"
#include "ClientRegistry.h"
#include "Connections.h"
#include "ControllerServer.h"
#include "Faults.h"
#include "FcpServant.h"
#include "FileHandles.h"
#include "Instrument.h"
#include "Options.h"
#include "Rack.h"
#include "Storage.h"
#include "TestRunner.h"

/** The whole simulated controller, put together. */
class Simulator
{
public:
    enum ExitCode { Done = 0, CannotRun = 1, BadInput = 2 };

    explicit Simulator(const Options &options);

    /** Starts serving. On a failure error() says why. */
    ExitCode start();
    const QString &error() const { return m_error; }

    QString rootDirectory() const { return m_rootPath; }
    unsigned short port() const { return m_server.port(); }

    ClientRegistry &clients() { return m_clients; }
    Faults &faults() { return m_faults; }
    Rack &rack() { return m_rack; }

    /**
     * Stops serving, within two seconds whatever the clients do.
     * @return false when threads of the ORB are still busy, so that only leaving the process ends
     * them
     */
    bool stop();

private:
    ExitCode fail(ExitCode code, const QString &error);
    ExitCode openFiles();
    ExitCode startServer();

    const Options m_options;
    QString m_error;
    QString m_rootPath;
    std::unique_ptr<QTemporaryDir> m_ownRoot;
    Instrument m_instrument;
    CallLog m_log;
    Storage m_storage;
    FileHandles m_files;
    Rack m_rack;
    Connections m_connections;
    ClientRegistry m_clients;
    TestRunner m_tests;
    Faults m_faults;
    FcpServant m_servant;
    ControllerServer m_server;
};

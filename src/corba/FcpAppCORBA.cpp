#include "FcpAppCORBA.h"

#include "AppFcpCORBAImpl.h"
#include "BiDirectionalCORBA.h"
#include "FcpAppCORBA_p.h"

using namespace WireConversion;
using namespace Qt::StringLiterals;

FcpAppCORBA *FcpAppCORBA::m_Instance = nullptr;

void FcpAppCORBA::initializeInstance(BiDirectionalCORBA *corba)
{
    m_Instance = new FcpAppCORBA(corba);
}

FcpAppCORBA *FcpAppCORBA::instance()
{
    return m_Instance;
}

FcpAppCORBA::FcpAppCORBA(BiDirectionalCORBA *corba)
    : d(std::make_unique<Private>(this, corba, corba->upcalls()))
{
    registerFcpRecordTypes();
    connect(d->callback, &AppFcpCORBAImpl::fcpEventReceived, this, &FcpAppCORBA::fcpEvent,
            Qt::QueuedConnection);
    // On the ORB thread: the queue of the GUI thread is no sign of life.
    connect(
        d->callback, &AppFcpCORBAImpl::fcpEventReceived, this,
        [clock = d->signOfLife] { clock->note(); }, Qt::DirectConnection);
}

FcpAppCORBA::~FcpAppCORBA()
{
    Q_EMIT ending();
    if (const auto link = d->currentLink()) {
        d->letGo(link);
    }
    disconnect(d->callback, nullptr, this, nullptr);
    if (m_Instance == this) {
        m_Instance = nullptr;
    }
}

bool FcpAppCORBA::connectToFCP(const QString &host, int port)
{
    if (d->connectTo(host, port, false) == Private::Connected::Yes) {
        return true;
    }
    Q_EMIT disconnectCatched(-1);
    return false;
}

void FcpAppCORBA::disconnectFromFCP()
{
    d->callVoid([](FcpLink &link) {
        link.takeRegistration();
        link.controller()->unregisterApp(link.clientId());
    });
}

bool FcpAppCORBA::isConnected() const
{
    return d->currentLink() != nullptr;
}

bool FcpAppCORBA::isLocal() const
{
    return getHost() == "localhost"_L1;
}

QString FcpAppCORBA::getHost() const
{
    const QMutexLocker locker(&d->mutex);
    return d->m_host;
}

int FcpAppCORBA::getPort() const
{
    const QMutexLocker locker(&d->mutex);
    return d->m_port;
}

BiDirectionalCORBA *FcpAppCORBA::getCorba() const
{
    return d->corba;
}

AppFcpCORBAImpl *FcpAppCORBA::getCallback() const
{
    return d->callback;
}

void FcpAppCORBA::communicationError()
{
    d->dropLink(d->currentLink(), tr("the link to %1 was given up").arg(getHost()));
    Q_EMIT disconnectCatched(-1);
}

QString FcpAppCORBA::lastError() const
{
    const QMutexLocker locker(&d->mutex);
    return d->m_lastError;
}

qint32 FcpAppCORBA::clientId() const
{
    const auto link = d->currentLink();
    return link ? link->clientId() : 0;
}

quint64 FcpAppCORBA::linkSerial() const
{
    const auto link = d->currentLink();
    return link ? link->serial() : 0;
}

qint64 FcpAppCORBA::millisecondsSinceHeard() const
{
    return d->signOfLife->age();
}

void FcpAppCORBA::fcpEvent(int event)
{
    Q_EMIT fcpEventReceived(event);
}

void FcpAppCORBA::getAvailableTests(QVector<AvailableTestInformation> &tests)
{
    d->callVoid([&tests](FcpLink &link) {
        AvailableTestInformationCORBASeq_var wire;
        link.controller()->getAvailableTests(wire.out());
        tests = vectorFromWire<AvailableTestInformation>(wire.in());
    });
}

void FcpAppCORBA::getController(ControllerInformation &controller)
{
    d->callVoid([&controller](FcpLink &link) {
        ControllerInformationCORBA_var wire;
        link.controller()->getController(wire.out());
        controller = fromWire(wire.in());
    });
}

void FcpAppCORBA::getControllerStatus(ControllerStatusInformation &status)
{
    d->callVoid([&status](FcpLink &link) {
        ControllerStatusInformationCORBA wire = {};
        link.controller()->getControllerStatus(wire);
        status = fromWire(wire);
    });
}

void FcpAppCORBA::getPorts(QVector<PortInformation> &ports)
{
    d->callVoid([&ports](FcpLink &link) {
        PortInformationCORBASeq_var wire;
        link.controller()->getPorts(wire.out());
        ports = vectorFromWire<PortInformation>(wire.in());
    });
}

void FcpAppCORBA::getModules(QVector<ModuleInformation> &modules)
{
    d->callVoid([&modules](FcpLink &link) {
        ModuleInformationCORBASeq_var wire;
        link.controller()->getModules(wire.out());
        modules = vectorFromWire<ModuleInformation>(wire.in());
    });
}

void FcpAppCORBA::getActiveTests(QVector<TestInformation> &tests, const QString &testName)
{
    if (!d->admits(testName)) {
        return;
    }
    d->callVoid([&](FcpLink &link) {
        TestInformationCORBASeq_var wire;
        link.controller()->getActiveTests(wire.out(), toWire(testName).constData());
        tests = vectorFromWire<TestInformation>(wire.in());
    });
}

void FcpAppCORBA::getActiveClients(long testId, QVector<ClientInformation> &clients)
{
    if (!d->admits(testId)) {
        return;
    }
    d->callVoid([&](FcpLink &link) {
        ClientInformationCORBASeq_var wire;
        link.controller()->getActiveClients(toWire(testId), wire.out());
        clients = vectorFromWire<ClientInformation>(wire.in());
    });
}

void FcpAppCORBA::setActiveClientReadWrite(long testId, long clientId)
{
    if (!d->admits(testId, clientId)) {
        return;
    }
    d->callVoid([&](FcpLink &link) {
        link.controller()->setActiveClientReadWrite(toWire(testId), toWire(clientId));
    });
}

long FcpAppCORBA::isMaximumClientCountOK()
{
    return d->call(
        0L, [](FcpLink &link) -> long { return link.controller()->isMaximumClientCountOK(); });
}

void FcpAppCORBA::getResources(QVector<ResourceInformation> &resources)
{
    d->callVoid([&resources](FcpLink &link) {
        ResourceInformationCORBASeq_var wire;
        link.controller()->getResources(wire.out());
        resources = vectorFromWire<ResourceInformation>(wire.in());
    });
}

void FcpAppCORBA::getResourcesStatus(QVector<ResourceStatusInformation> &statuses)
{
    d->callVoid([&statuses](FcpLink &link) {
        ResourceStatusInformationCORBASeq_var wire;
        link.controller()->getResourcesStatus(wire.out());
        statuses = vectorFromWire<ResourceStatusInformation>(wire.in());
    });
}

long FcpAppCORBA::launchTest(const QString &testName, const QVector<QString> &arguments)
{
    if (!d->admits(testName, arguments)) {
        return 0;
    }
    return d->call(0L, [&](FcpLink &link) -> long {
        return link.controller()->launchTest(toWire(testName).constData(),
                                             argumentsToWire(arguments));
    });
}

bool FcpAppCORBA::terminateTest(long testId, bool flag)
{
    if (!d->admits(testId)) {
        return false;
    }
    return d->call(false, [&](FcpLink &link) -> bool {
        return link.controller()->terminateTest(toWire(testId), flag);
    });
}

TestStatus FcpAppCORBA::getTestStatus(long testId)
{
    if (!d->admits(testId)) {
        return TEST_NA;
    }
    return d->call(TEST_NA,
                   [&](FcpLink &link) { return link.controller()->getTestStatus(toWire(testId)); });
}

long FcpAppCORBA::requestResources(const QVector<ResourceRequestInformation> &resources, long value)
{
    if (!d->admits(value)) {
        return 0;
    }
    return d->call(0L, [&](FcpLink &link) -> long {
        return link.controller()->requestResources(requestsToWire(resources), toWire(value));
    });
}

long FcpAppCORBA::getResourceRequestStatus(long requestId)
{
    if (!d->admits(requestId)) {
        throw CORBA::BAD_PARAM(0, CORBA::COMPLETED_NO);
    }
    const auto link = d->currentLink();
    if (!link) {
        return FcpAppInterfaceCORBA::_nil()->getResourceRequestStatus(toWire(requestId));
    }
    const ConnectionGate::BoundCall bound(link->connection());
    const long status = link->controller()->getResourceRequestStatus(toWire(requestId));
    d->signOfLife->note();
    return status;
}

int FcpAppCORBA::getTestTcpPort(long testId)
{
    if (!d->admits(testId)) {
        return 0;
    }
    return d->call(
        0, [&](FcpLink &link) -> int { return link.controller()->getTestTcpPort(toWire(testId)); });
}

#include "FcpServant.h"

#include <cstring>

#include <omniORB4/callHandle.h>

#include "ClientRegistry.h"
#include "FaultInjection.h"
#include "Faults.h"
#include "FileHandles.h"
#include "Instrument.h"
#include "LoggedCall.h"
#include "Rack.h"
#include "TestRunner.h"

namespace {

CORBA::ULong lengthOf(qsizetype size)
{
    return static_cast<CORBA::ULong>(size);
}

/// Pictures live as long as the instrument, so the sequence need not have bytes of its own.
void setImage(CharSequence &sequence, const QByteArray &image)
{
    sequence.replace(lengthOf(image.size()), lengthOf(image.size()),
                     reinterpret_cast<CORBA::Char *>(const_cast<char *>(image.constData())), false);
}

/// Appends one element; the sequences that are filled so have a handful.
template<typename Sequence>
auto &appendTo(Sequence &sequence)
{
    sequence.length(sequence.length() + 1);
    return sequence[sequence.length() - 1];
}

} // namespace

FcpServant::FcpServant(const ControllerParts &parts)
    : m_parts(parts)
    , m_contents(parts.files, parts.log)
{
}

void FcpServant::connectionGone(std::uint64_t connection)
{
    m_parts.files.abandon(connection);
    m_parts.clients.removeConnection(connection);
    if (m_parts.rack.release(connection)) {
        m_parts.clients.sendEvent(RESOURCE_STATUS);
    }
}

CORBA::Boolean FcpServant::_dispatch(omniCallHandle &call)
{
    const std::shared_ptr<Connection> connection = m_parts.connections.find(call.connection());
    if (!connection) {
        throw CORBA::NO_PERMISSION(); // a call from within this process
    }
    CallContext context(connection, call.connection());
    context.delay = m_parts.faults.latency();
    const std::optional<Fault> fault = m_parts.faults.next(call.operation_name());
    const bool known =
        fault ? injectFault(*fault, call, context, [&] { return execute(call); }) : execute(call);
    // The connection may have gone while the call took something for it.
    if (connection->gone) {
        connectionGone(connection->id);
    }
    return known;
}

bool FcpServant::execute(omniCallHandle &call)
{
    const char *operation = call.operation_name();
    const bool carriesContents = std::strcmp(operation, "pushFileContents") == 0
        || std::strcmp(operation, "pullFileContents") == 0;
    return carriesContents ? m_contents._dispatch(call) : POA_FcpAppInterfaceCORBA::_dispatch(call);
}

CORBA::Long FcpServant::registerApp(AppFcpInterfaceCORBA_ptr callback)
{
    LoggedCall call(m_parts.log, "registerApp");
    if (CORBA::is_nil(callback)) {
        throw CORBA::BAD_PARAM();
    }
    const Connection &connection = *CallContext::current()->connection;
    return call.result(CORBA::Long(m_parts.clients.add(connection.id, connection.host, callback)));
}

void FcpServant::unregisterApp(CORBA::Long clientId)
{
    LoggedCall call(m_parts.log, "unregisterApp", clientId);
    m_parts.clients.remove(clientId, CallContext::current()->connection->id);
    call.done();
}

void FcpServant::getAvailableTests(AvailableTestInformationCORBASeq_out tests)
{
    LoggedCall call(m_parts.log, "getAvailableTests");
    tests = new AvailableTestInformationCORBASeq;
    for (const AvailableTest &test : m_parts.instrument.tests) {
        AvailableTestInformationCORBA &information = appendTo(*tests.ptr());
        information.testName = test.name.constData();
        information.runnableState = test.runnableState;
        information.expOptions = test.options.constData();
    }
    call.done();
}

void FcpServant::getController(ControllerInformationCORBA_out controller)
{
    LoggedCall call(m_parts.log, "getController");
    CallContext::current()->expectToTakeLong(); // pictures may be of any size
    controller = new ControllerInformationCORBA;
    controller->controllerModel = m_parts.instrument.model.constData();
    controller->controllerSerial = m_parts.instrument.serial.constData();
    setImage(controller->controllerImage, m_parts.instrument.image);
    call.done();
}

void FcpServant::getControllerStatus(ControllerStatusInformationCORBA &status)
{
    LoggedCall call(m_parts.log, "getControllerStatus");
    status.bogusInformation = 0;
    call.done();
}

void FcpServant::getPorts(PortInformationCORBASeq_out ports)
{
    LoggedCall call(m_parts.log, "getPorts");
    CallContext::current()->expectToTakeLong();
    ports = new PortInformationCORBASeq;
    for (const Module &module : m_parts.rack.modules()) {
        for (const Port &port : module.ports) {
            PortInformationCORBA &information = appendTo(*ports.ptr());
            information.portID = port.id;
            information.moduleID = module.id;
            setImage(information.portImage, port.image);
        }
    }
    call.done();
}

void FcpServant::getModules(ModuleInformationCORBASeq_out modules)
{
    LoggedCall call(m_parts.log, "getModules");
    CallContext::current()->expectToTakeLong();
    modules = new ModuleInformationCORBASeq;
    for (const Module &module : m_parts.rack.modules()) {
        ModuleInformationCORBA &information = appendTo(*modules.ptr());
        information.moduleID = module.id;
        information.moduleType = module.type.constData();
        information.moduleName = module.name.constData();
        information.moduleSerialNumber = module.serial.constData();
        for (const QByteArray &option : module.options) {
            appendTo(information.moduleGenOptions).option = option.constData();
        }
        setImage(information.moduleImage, module.image);
    }
    call.done();
}

void FcpServant::getActiveTests(TestInformationCORBASeq_out tests, const char *testName)
{
    LoggedCall call(m_parts.log, "getActiveTests", testName);
    tests = new TestInformationCORBASeq;
    for (const TestRunner::Test &test : m_parts.tests.tests(testName)) {
        TestInformationCORBA &information = appendTo(*tests.ptr());
        information.testID = test.id;
        information.testTcpPort = test.port;
        information.testName = test.name.constData();
    }
    call.done();
}

void FcpServant::getActiveClients(CORBA::Long testId, ClientInformationCORBASeq_out clients)
{
    LoggedCall call(m_parts.log, "getActiveClients", testId);
    clients = new ClientInformationCORBASeq;
    const TestRunner::Test test = m_parts.tests.test(testId);
    const bool isKnown = testId == 0 || test.id != 0;
    for (const ClientRegistry::Client &client :
         isKnown ? m_parts.clients.clients() : std::vector<ClientRegistry::Client>()) {
        ClientInformationCORBA &information = appendTo(*clients.ptr());
        information.clientId = client.id;
        information.clientName = ("client " + std::to_string(client.id)).c_str();
        information.clientHost = client.host.c_str();
        information.clientReadOnly = testId != 0 && client.id != test.readWriteClient;
    }
    call.done();
}

void FcpServant::setActiveClientReadWrite(CORBA::Long testId, CORBA::Long clientId)
{
    LoggedCall call(m_parts.log, "setActiveClientReadWrite", testId, clientId);
    if (m_parts.tests.setReadWriteClient(testId, clientId)) {
        m_parts.clients.sendEvent(CLIENT_STATUS);
    }
    call.done();
}

CORBA::Long FcpServant::isMaximumClientCountOK()
{
    LoggedCall call(m_parts.log, "isMaximumClientCountOK");
    return call.result(CORBA::Long(m_parts.clients.count() < m_parts.instrument.maxClients));
}

void FcpServant::getResources(ResourceInformationCORBASeq_out resources)
{
    LoggedCall call(m_parts.log, "getResources");
    resources = new ResourceInformationCORBASeq;
    for (const Module &module : m_parts.rack.modules()) {
        for (const Port &port : module.ports) {
            for (const Resource &resource : port.resources) {
                ResourceInformationCORBA &information = appendTo(*resources.ptr());
                information.portID = port.id;
                information.moduleID = module.id;
                information.resourceID = resource.id;
                information.resourceType = resource.type.constData();
                information.resourceName = resource.name.constData();
            }
        }
    }
    call.done();
}

void FcpServant::getResourcesStatus(ResourceStatusInformationCORBASeq_out statuses)
{
    LoggedCall call(m_parts.log, "getResourcesStatus");
    statuses = new ResourceStatusInformationCORBASeq;
    for (const Rack::ResourceStatus &status : m_parts.rack.statuses()) {
        ResourceStatusInformationCORBA &information = appendTo(*statuses.ptr());
        information.moduleID = status.key.first;
        information.resourceID = status.key.second;
        information.serverID = status.holder;
        information.status = status.holder != 0;
    }
    call.done();
}

CORBA::Long FcpServant::launchTest(const char *testName,
                                   const TestArgInformationCORBASeq &arguments)
{
    LoggedCall call(m_parts.log, "launchTest", testName, arguments.length());
    if (CallContext::current()->mustFail) {
        return call.result(CORBA::Long(TestRunner::NotStarted));
    }
    CallContext::current()->expectToTakeLong();
    QStringList words;
    for (CORBA::ULong i = 0; i < arguments.length(); ++i) {
        words.append(QString::fromUtf8(arguments[i].arg.in()));
    }
    const std::vector<int> clients =
        m_parts.clients.clientsOf(CallContext::current()->connection->id);
    return call.result(
        CORBA::Long(m_parts.tests.launch(testName, words, clients.empty() ? 0 : clients.front())));
}

CORBA::Boolean FcpServant::terminateTest(CORBA::Long testId, CORBA::Boolean flag)
{
    LoggedCall call(m_parts.log, "terminateTest", testId, bool(flag));
    return call.result(!CallContext::current()->mustFail && m_parts.tests.terminate(testId, flag));
}

TestStatus FcpServant::getTestStatus(CORBA::Long testId)
{
    LoggedCall call(m_parts.log, "getTestStatus", testId);
    return call.result(m_parts.tests.test(testId).status);
}

CORBA::Long FcpServant::requestResources(const ResourceRequestInformationCORBASeq &resources,
                                         CORBA::Long value)
{
    LoggedCall call(m_parts.log, "requestResources", resources.length(), value);
    std::vector<Rack::ResourceKey> keys;
    for (CORBA::ULong i = 0; i < resources.length(); ++i) {
        keys.emplace_back(resources[i].moduleID, resources[i].resourceID);
    }
    if (CallContext::current()->mustFail) {
        return call.result(CORBA::Long(-1));
    }
    const std::uint64_t connection = CallContext::current()->connection->id;
    // There is no operation to give resources back: a request for nothing does it.
    const int request = keys.empty() ? 0 : m_parts.rack.request(connection, keys);
    if (request > 0 || (request == 0 && m_parts.rack.release(connection))) {
        m_parts.clients.sendEvent(RESOURCE_STATUS);
    }
    return call.result(CORBA::Long(request));
}

CORBA::Long FcpServant::getResourceRequestStatus(CORBA::Long requestId)
{
    LoggedCall call(m_parts.log, "getResourceRequestStatus", requestId);
    return call.result(CORBA::Long(m_parts.rack.requestStatus(requestId)));
}

CORBA::Long FcpServant::getTestTcpPort(CORBA::Long testId)
{
    LoggedCall call(m_parts.log, "getTestTcpPort", testId);
    return call.result(CORBA::Long(m_parts.tests.test(testId).port));
}

FileSystemResult FcpServant::pushFileContents(CORBA::Long, const CharSequence &)
{
    throw CORBA::NO_IMPLEMENT();
}

FileSystemResult FcpServant::pullFileContents(CORBA::Long, CORBA::Long, CharSequence_out)
{
    throw CORBA::NO_IMPLEMENT();
}

#include "FakeServant.h"

#include <QCryptographicHash>
#include <QMutexLocker>

#include <omniORB4/callHandle.h>
#include <omniORB4/giopEndpoint.h>

using namespace Qt::StringLiterals;

namespace {

/// A callback into a client that does not answer is given up after this time.
constexpr CORBA::ULong CallbackTimeOutMs = 2000;

QJsonValue bytesOf(const char *text)
{
    return QString::fromLatin1(text);
}

template<typename Sequence, typename Entry>
Sequence *makeSequence(const Answer &answer, Entry &&fillEntry)
{
    const QVector<Answer> entries = answer.list("list");
    auto *sequence = new Sequence;
    sequence->length(CORBA::ULong(entries.size()));
    for (int i = 0; i < int(entries.size()); ++i) {
        fillEntry(entries.at(i), (*sequence)[CORBA::ULong(i)]);
    }
    return sequence;
}

/// Adds @p count files "file0000000.txt" and so on, in the order of their names.
void addFiles(FileSystemItemCORBASeq &items, CORBA::Long count)
{
    const CORBA::ULong before = items.length();
    items.length(before + CORBA::ULong(count));
    for (CORBA::Long i = 0; i < count; ++i) {
        FileSystemItemCORBA &item = items[before + CORBA::ULong(i)];
        item.name = u"file%1.txt"_s.arg(i, 7, 10, QChar(u'0')).toLatin1().constData();
        item.date = u"2026-11-21 10:00:%1"_s.arg(i % 60, 2, 10, QChar(u'0')).toLatin1().constData();
        item.size = i;
        item.isdir = false;
        item.dircount = 0;
    }
}

void fillModule(const Answer &entry, ModuleInformationCORBA &module)
{
    module.moduleID = entry.number("moduleID");
    module.moduleType = entry.text("moduleType");
    module.moduleName = entry.text("moduleName");
    module.moduleSerialNumber = entry.text("moduleSerialNumber");
    const QVector<Answer> options = entry.list("moduleGenOptions");
    module.moduleGenOptions.length(CORBA::ULong(options.size()));
    for (int i = 0; i < int(options.size()); ++i) {
        module.moduleGenOptions[CORBA::ULong(i)].option = options.at(i).text("option");
    }
    entry.fill("moduleImage", module.moduleImage);
}

} // namespace

template<typename Call>
int FakeServant::callClients(Call &&call)
{
    QMutexLocker lock(&m_mutex);
    const QHash<CORBA::Long, AppFcpInterfaceCORBA_var> clients = m_clients;
    lock.unlock();
    int failures = 0;
    for (const AppFcpInterfaceCORBA_var &client : clients) {
        try {
            call(client.in());
        } catch (const CORBA::SystemException &) {
            ++failures;
        }
    }
    return failures;
}

int FakeServant::sendEvents(AppFcpEvent event, int count)
{
    int failures = 0;
    for (int i = 0; i < count; ++i) {
        failures += callClients([event](AppFcpInterfaceCORBA_ptr client) { client->Event(event); });
    }
    return failures;
}

int FakeServant::sendShutDown(bool canCancel)
{
    return callClients(
        [canCancel](AppFcpInterfaceCORBA_ptr client) { client->ShutDown(canCancel); });
}

CORBA::Long FakeServant::registerApp(AppFcpInterfaceCORBA_ptr callback)
{
    const Answer answer = m_script.play("registerApp", {});
    AppFcpInterfaceCORBA_var client = AppFcpInterfaceCORBA::_duplicate(callback);
    omniORB::setClientCallTimeout(client, CallbackTimeOutMs);
    const QMutexLocker lock(&m_mutex);
    static CORBA::Long lastId = 0;
    const CORBA::Long id = answer.has("result") ? answer.number() : ++lastId;
    m_clients.insert(id, client);
    return id;
}

void FakeServant::unregisterApp(CORBA::Long clientId)
{
    m_script.play("unregisterApp", {qint64(clientId)});
    const QMutexLocker lock(&m_mutex);
    m_clients.remove(clientId);
}

void FakeServant::getAvailableTests(AvailableTestInformationCORBASeq_out tests)
{
    tests = makeSequence<AvailableTestInformationCORBASeq>(
        m_script.play("getAvailableTests", {}),
        [](const Answer &entry, AvailableTestInformationCORBA &test) {
            test.testName = entry.text("testName");
            test.runnableState = entry.number("runnableState");
            test.expOptions = entry.text("expOptions");
        });
}

void FakeServant::getController(ControllerInformationCORBA_out controller)
{
    const Answer answer = m_script.play("getController", {});
    controller = new ControllerInformationCORBA;
    controller->controllerModel = answer.text("controllerModel");
    controller->controllerSerial = answer.text("controllerSerial");
    answer.fill("controllerImage", controller->controllerImage);
}

void FakeServant::getControllerStatus(ControllerStatusInformationCORBA &status)
{
    status.bogusInformation = m_script.play("getControllerStatus", {}).number("bogusInformation");
}

void FakeServant::getPorts(PortInformationCORBASeq_out ports)
{
    ports = makeSequence<PortInformationCORBASeq>(
        m_script.play("getPorts", {}), [](const Answer &entry, PortInformationCORBA &port) {
            port.portID = entry.number("portID");
            port.moduleID = entry.number("moduleID");
            entry.fill("portImage", port.portImage);
        });
}

void FakeServant::getModules(ModuleInformationCORBASeq_out modules)
{
    modules = makeSequence<ModuleInformationCORBASeq>(m_script.play("getModules", {}), fillModule);
}

void FakeServant::getActiveTests(TestInformationCORBASeq_out tests, const char *testName)
{
    tests =
        makeSequence<TestInformationCORBASeq>(m_script.play("getActiveTests", {bytesOf(testName)}),
                                              [](const Answer &entry, TestInformationCORBA &test) {
                                                  test.testID = entry.number("testID");
                                                  test.testTcpPort = entry.number("testTcpPort");
                                                  test.testName = entry.text("testName");
                                              });
}

void FakeServant::getActiveClients(CORBA::Long testId, ClientInformationCORBASeq_out clients)
{
    clients = makeSequence<ClientInformationCORBASeq>(
        m_script.play("getActiveClients", {qint64(testId)}),
        [](const Answer &entry, ClientInformationCORBA &client) {
            client.clientId = entry.number("clientId");
            client.clientName = entry.text("clientName");
            client.clientHost = entry.text("clientHost");
            client.clientReadOnly = entry.flag("clientReadOnly");
        });
}

void FakeServant::setActiveClientReadWrite(CORBA::Long testId, CORBA::Long clientId)
{
    m_script.play("setActiveClientReadWrite", {qint64(testId), qint64(clientId)});
}

CORBA::Long FakeServant::isMaximumClientCountOK()
{
    return m_script.play("isMaximumClientCountOK", {}).number();
}

void FakeServant::getResources(ResourceInformationCORBASeq_out resources)
{
    resources = makeSequence<ResourceInformationCORBASeq>(
        m_script.play("getResources", {}),
        [](const Answer &entry, ResourceInformationCORBA &resource) {
            resource.portID = entry.number("portID");
            resource.moduleID = entry.number("moduleID");
            resource.resourceID = entry.number("resourceID");
            resource.resourceType = entry.text("resourceType");
            resource.resourceName = entry.text("resourceName");
        });
}

void FakeServant::getResourcesStatus(ResourceStatusInformationCORBASeq_out statuses)
{
    statuses = makeSequence<ResourceStatusInformationCORBASeq>(
        m_script.play("getResourcesStatus", {}),
        [](const Answer &entry, ResourceStatusInformationCORBA &status) {
            status.moduleID = entry.number("moduleID");
            status.resourceID = entry.number("resourceID");
            status.serverID = entry.number("serverID");
            status.status = entry.number("status");
        });
}

CORBA::Long FakeServant::launchTest(const char *testName,
                                    const TestArgInformationCORBASeq &arguments)
{
    QJsonArray texts;
    for (CORBA::ULong i = 0; i < arguments.length(); ++i) {
        texts.append(bytesOf(arguments[i].arg));
    }
    return m_script.play("launchTest", {bytesOf(testName), texts}).number();
}

CORBA::Boolean FakeServant::terminateTest(CORBA::Long testId, CORBA::Boolean flag)
{
    return m_script.play("terminateTest", {qint64(testId), bool(flag)}).flag();
}

TestStatus FakeServant::getTestStatus(CORBA::Long testId)
{
    return TestStatus(m_script.play("getTestStatus", {qint64(testId)}).number());
}

CORBA::Long FakeServant::requestResources(const ResourceRequestInformationCORBASeq &resources,
                                          CORBA::Long value)
{
    QJsonArray requests;
    for (CORBA::ULong i = 0; i < resources.length(); ++i) {
        requests.append(
            QJsonArray {qint64(resources[i].moduleID), qint64(resources[i].resourceID)});
    }
    return m_script.play("requestResources", {requests, qint64(value)}).number();
}

CORBA::Long FakeServant::getResourceRequestStatus(CORBA::Long requestId)
{
    return m_script.play("getResourceRequestStatus", {qint64(requestId)}).number();
}

CORBA::Long FakeServant::getTestTcpPort(CORBA::Long testId)
{
    return m_script.play("getTestTcpPort", {qint64(testId)}).number();
}

char *FakeServant::newDirectory(const char *path)
{
    return m_script.play("newDirectory", {bytesOf(path)}).text();
}

CORBA::Long FakeServant::renameFileDirectory(const char *directory, const char *oldName,
                                             const char *newName)
{
    return m_script
        .play("renameFileDirectory", {bytesOf(directory), bytesOf(oldName), bytesOf(newName)})
        .number();
}

CORBA::Long FakeServant::moveFileDirectory(const char *source, const char *destination)
{
    return m_script.play("moveFileDirectory", {bytesOf(source), bytesOf(destination)}).number();
}

CORBA::Long FakeServant::copyFileDirectory(const char *source, const char *destination)
{
    return m_script.play("copyFileDirectory", {bytesOf(source), bytesOf(destination)}).number();
}

CORBA::Long FakeServant::deleteFileDirectory(const char *path)
{
    return m_script.play("deleteFileDirectory", {bytesOf(path)}).number();
}

CORBA::Boolean FakeServant::getFileSystemItems(const char *directory, CORBA::Long filterFlags,
                                               const FileSystemFilterCORBASeq &patterns,
                                               FileSystemItemCORBASeq_out items)
{
    QJsonArray texts;
    for (CORBA::ULong i = 0; i < patterns.length(); ++i) {
        texts.append(bytesOf(patterns[i].filter));
    }
    const Answer answer =
        m_script.play("getFileSystemItems", {bytesOf(directory), qint64(filterFlags), texts});
    items = makeSequence<FileSystemItemCORBASeq>(
        answer, [](const Answer &entry, FileSystemItemCORBA &item) {
            item.name = entry.text("name");
            item.date = entry.text("date");
            item.size = entry.longNumber("size");
            item.isdir = entry.flag("isdir");
            item.dircount = entry.number("dircount");
        });
    addFiles(*items.operator->(), answer.number("files"));
    return answer.flag();
}

FileSystemResult FakeServant::openFile(const char *path, CORBA::Boolean write,
                                       CORBA::Boolean overwrite, CORBA::Long &handle)
{
    const Answer answer = m_script.play("openFile", {bytesOf(path), bool(write), bool(overwrite)});
    handle = answer.number("handle");
    return answer.fileResult();
}

FileSystemResult FakeServant::closeFile(CORBA::Long handle)
{
    return m_script.play("closeFile", {qint64(handle)}).fileResult();
}

CORBA::Boolean FakeServant::_dispatch(omniCallHandle &handle)
{
    Script::noteConnection(QString::fromLatin1(handle.connection()->peeraddress()));
    const QByteArrayView operation(handle.operation_name());
    if (operation == "pushFileContents" || operation == "pullFileContents") {
        return m_contents._dispatch(handle);
    }
    return POA_FcpAppInterfaceCORBA::_dispatch(handle);
}

FileSystemResult FakeServant::pushFileContents(CORBA::Long, const CharSequence &)
{
    throw CORBA::NO_IMPLEMENT();
}

FileSystemResult FakeServant::pullFileContents(CORBA::Long, CORBA::Long, CharSequence_out)
{
    throw CORBA::NO_IMPLEMENT();
}

FileSystemResult FakeContents::pushFileContents(CORBA::Long handle, const OctetSequence &bytes)
{
    m_pushedBytes += bytes.length();
    const auto arguments = [&]() -> QJsonArray {
        const auto *data = reinterpret_cast<const char *>(bytes.get_buffer());
        QCryptographicHash hash(QCryptographicHash::Sha256);
        hash.addData(QByteArrayView(data, qsizetype(bytes.length())));
        return {qint64(handle), qint64(bytes.length()), QString::fromLatin1(hash.result().toHex())};
    };
    return m_script.playLazily("pushFileContents", arguments).fileResult();
}

FileSystemResult FakeContents::pullFileContents(CORBA::Long handle, CORBA::Long wanted,
                                                OctetSequence_out bytes)
{
    const Answer answer = m_script.play("pullFileContents", {qint64(handle), qint64(wanted)});
    bytes = new OctetSequence;
    answer.fill("bytes", *bytes.ptr());
    return answer.fileResult();
}

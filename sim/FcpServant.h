#pragma once

#include <string>

#include <FcpInterfaces.hh>

#include "ContentsServant.h"

class CallLog;
class ClientRegistry;
class Connections;
class Faults;
class FileHandles;
class LoggedCall;
class Rack;
class Storage;
class TestRunner;
struct Instrument;

/** What the controller's operations work on. */
struct ControllerParts
{
    const Instrument &instrument;
    Rack &rack;
    ClientRegistry &clients;
    Connections &connections;
    Storage &storage;
    FileHandles &files;
    TestRunner &tests;
    Faults &faults;
    CallLog &log;
};

/** The controller's object. */
class FcpServant : public POA_FcpAppInterfaceCORBA
{
public:
    explicit FcpServant(const ControllerParts &parts);

    /** Forgets what belonged to a connection. */
    void connectionGone(std::uint64_t connection);

    CORBA::Boolean _dispatch(omniCallHandle &call) override;

    CORBA::Long registerApp(AppFcpInterfaceCORBA_ptr callback) override;
    void unregisterApp(CORBA::Long clientId) override;

    void getAvailableTests(AvailableTestInformationCORBASeq_out tests) override;
    void getController(ControllerInformationCORBA_out controller) override;
    void getControllerStatus(ControllerStatusInformationCORBA &status) override;
    void getPorts(PortInformationCORBASeq_out ports) override;
    void getModules(ModuleInformationCORBASeq_out modules) override;
    void getActiveTests(TestInformationCORBASeq_out tests, const char *testName) override;
    void getActiveClients(CORBA::Long testId, ClientInformationCORBASeq_out clients) override;
    void setActiveClientReadWrite(CORBA::Long testId, CORBA::Long clientId) override;
    CORBA::Long isMaximumClientCountOK() override;
    void getResources(ResourceInformationCORBASeq_out resources) override;
    void getResourcesStatus(ResourceStatusInformationCORBASeq_out statuses) override;
    CORBA::Long launchTest(const char *testName,
                           const TestArgInformationCORBASeq &arguments) override;
    CORBA::Boolean terminateTest(CORBA::Long testId, CORBA::Boolean flag) override;
    TestStatus getTestStatus(CORBA::Long testId) override;
    CORBA::Long requestResources(const ResourceRequestInformationCORBASeq &resources,
                                 CORBA::Long value) override;
    CORBA::Long getResourceRequestStatus(CORBA::Long requestId) override;
    CORBA::Long getTestTcpPort(CORBA::Long testId) override;

    char *newDirectory(const char *path) override;
    CORBA::Long renameFileDirectory(const char *directory, const char *oldName,
                                    const char *newName) override;
    CORBA::Long moveFileDirectory(const char *source, const char *destination) override;
    CORBA::Long copyFileDirectory(const char *source, const char *destination) override;
    CORBA::Long deleteFileDirectory(const char *path) override;
    CORBA::Boolean getFileSystemItems(const char *directory, CORBA::Long filterFlags,
                                      const FileSystemFilterCORBASeq &patterns,
                                      FileSystemItemCORBASeq_out items) override;
    FileSystemResult openFile(const char *path, CORBA::Boolean write, CORBA::Boolean overwrite,
                              CORBA::Long &handle) override;
    FileSystemResult closeFile(CORBA::Long handle) override;
    // Never called: _dispatch() hands these two to the ContentsServant.
    FileSystemResult pushFileContents(CORBA::Long handle, const CharSequence &bytes) override;
    FileSystemResult pullFileContents(CORBA::Long handle, CORBA::Long wanted,
                                      CharSequence_out bytes) override;

private:
    bool execute(omniCallHandle &call);

    ControllerParts m_parts;
    ContentsServant m_contents;
};

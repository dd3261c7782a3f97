#pragma once

#include <QHash>
#include <QMutex>

#include <atomic>

#include <FcpContents.hh>
#include <FcpInterfaces.hh>

#include "Script.h"

/** Serves the two operations that carry contents, whose bytes it takes as one block. */
class FakeContents : public POA_FcpContentsCORBA
{
public:
    explicit FakeContents(Script &script)
        : m_script(script)
    {
    }

    FileSystemResult pushFileContents(CORBA::Long handle, const OctetSequence &bytes) override;
    FileSystemResult pullFileContents(CORBA::Long handle, CORBA::Long wanted,
                                      OctetSequence_out bytes) override;

    qint64 pushedBytes() const { return m_pushedBytes; }

private:
    Script &m_script;
    std::atomic<qint64> m_pushedBytes = 0;
};

/** Serves the controller's interface with the answers of a script. */
class FakeServant : public POA_FcpAppInterfaceCORBA
{
public:
    explicit FakeServant(Script &script)
        : m_script(script)
        , m_contents(script)
    {
    }

    CORBA::Boolean _dispatch(omniCallHandle &handle) override;
    const FakeContents &contents() const { return m_contents; }

    /** Calls Event on every client; @return how many calls failed. */
    int sendEvents(AppFcpEvent event, int count);
    int sendShutDown(bool canCancel);

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
    FileSystemResult pushFileContents(CORBA::Long handle, const CharSequence &bytes) override;
    FileSystemResult pullFileContents(CORBA::Long handle, CORBA::Long wanted,
                                      CharSequence_out bytes) override;

private:
    template<typename Call>
    int callClients(Call &&call);

    Script &m_script;
    FakeContents m_contents;
    QMutex m_mutex;
    QHash<CORBA::Long, AppFcpInterfaceCORBA_var> m_clients;
};

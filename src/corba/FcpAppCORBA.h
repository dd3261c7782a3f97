#pragma once

#include <QDir>
#include <QObject>
#include <QString>
#include <QVector>

#include <memory>

#include <FcpInterfaces.hh>

#include "FcpRecords.h"
#include "VexExport.h"

class AppFcpCORBAImpl;
class BiDirectionalCORBA;
class FcpLink;

/**
 * The one object through which the library and the applications call the controller (the Fcp).
 *
 * It connects to the controller's published object, registers the callback object with it, has a
 * method for each of the controller's operations, and turns any failure of the link into one
 * signal.
 *
 * ### Results
 * A method that fails for any reason returns a zero result (false, 0, an empty text; vectors and
 * other out-arguments untouched), and the link is then lost: disconnectCatched(-1) is
 * emitted once for it, and every method returns zero at once until the next connectToFCP(). No
 * exception leaves a method, getResourceRequestStatus() excepted.
 *
 * The zero of a FileSystemResult is @c FS_OK. Code that moves bytes must not mistake a lost link
 * for success: FcpRemoteFile tells the two apart.
 *
 * A text with a NUL character can not travel and gives the zero result too, without a call and
 * without losing the link; so does a number beyond 32 bits, or @c FS_ERROR where that is possible.
 *
 * ### Threads
 * Every method may be called from any thread, several at once. The object lives on the GUI thread,
 * where fcpEventReceived() is emitted; disconnectCatched() is emitted on the thread whose call
 * failed. Calls block until the controller answers or the ORB's round-trip time-out (180 s by
 * default) is over; no lock is held meanwhile.
 *
 * ### The link and its connection
 * A link is the one TCP connection on which this client registered, for calls and callbacks. When
 * that connection is gone the link is lost: a call never goes out on another connection, where the
 * controller would not know this client.
 */
class VEX_EXPORT FcpAppCORBA : public QObject
{
    Q_OBJECT

public:
    /**
     * Makes the proxy that instance() returns. The one before it, if any, is not deleted. @p corba
     * must have its ORB and POA, is not owned and must outlive the proxy.
     */
    static void initializeInstance(BiDirectionalCORBA *corba);
    /** The proxy, or null before the first initializeInstance(). */
    static FcpAppCORBA *instance();

    /**
     * Unregisters, unless disconnectFromFCP() has done so, then releases the callback object and
     * the controller. A controller that does not answer is waited for no longer than 3 s.
     */
    ~FcpAppCORBA() override;

    /**
     * Connects to the controller at "corbaloc:iiop:" host ":" port "/bidir/FcpApp" and registers
     * the callback object. Replaces the link that was there, which is unregistered.
     *
     * Blocks until the controller has answered; may be called from any thread, one call at a time
     * goes through.
     * @return false on any failure; disconnectCatched(-1) is emitted then, and there is no link.
     */
    bool connectToFCP(const QString &host, int port);
    /** Unregisters this client. The reference is kept, so isConnected() stays true. */
    void disconnectFromFCP();
    /** Whether there is a reference to the controller. Does not ask the controller. */
    bool isConnected() const;
    /** Whether the host given to connectToFCP() was "localhost", to the letter. */
    bool isLocal() const;
    /** The host given to the last connectToFCP(). */
    QString getHost() const;
    /** The port given to the last connectToFCP(). */
    int getPort() const;
    BiDirectionalCORBA *getCorba() const;
    /** The callback object; owned by this proxy. Connect its fcpShutDownReceived() yourself. */
    AppFcpCORBAImpl *getCallback() const;
    /** Drops the reference to the controller and emits disconnectCatched(-1). */
    void communicationError();

    /** Why the link was lost or could not be made, in words; empty while all is well. */
    QString lastError() const;
    /** The id that the controller gave this client; 0 without a link. */
    qint32 clientId() const;
    /**
     * Counts the links made, from 1; 0 while there is none. Two calls were made on the same link
     * exactly if this number was the same before the first and after the second.
     */
    quint64 linkSerial() const;
    /** Milliseconds since the controller was last heard of: an answer or a callback; -1: never. */
    qint64 millisecondsSinceHeard() const;

    void getAvailableTests(QVector<AvailableTestInformation> &tests);
    void getController(ControllerInformation &controller);
    void getControllerStatus(ControllerStatusInformation &status);
    void getPorts(QVector<PortInformation> &ports);
    void getModules(QVector<ModuleInformation> &modules);
    /** The running tests; @p testName restricts them to one name, an empty text gives all. */
    void getActiveTests(QVector<TestInformation> &tests, const QString &testName);
    void getActiveClients(long testId, QVector<ClientInformation> &clients);
    void setActiveClientReadWrite(long testId, long clientId);
    long isMaximumClientCountOK();
    void getResources(QVector<ResourceInformation> &resources);
    void getResourcesStatus(QVector<ResourceStatusInformation> &statuses);
    long launchTest(const QString &testName, const QVector<QString> &arguments);
    bool terminateTest(long testId, bool flag);
    TestStatus getTestStatus(long testId);
    long requestResources(const QVector<ResourceRequestInformation> &resources, long value);
    /**
     * @warning Calls the controller without a guard: without a link, or when the call fails, a
     * CORBA::SystemException reaches the caller. Use it only while connected.
     */
    long getResourceRequestStatus(long requestId);
    int getTestTcpPort(long testId);

    /** Makes a directory and returns its path as the controller chose it. */
    QString newDirectory(const QString &path);
    /** 0 for success, otherwise the controller's value; likewise the three that follow. */
    long renameFileDirectory(const QString &directory, const QString &oldName,
                             const QString &newName);
    long moveFileDirectory(const QString &source, const QString &destination);
    long copyFileDirectory(const QString &source, const QString &destination);
    long deleteFileDirectory(const QString &path);
    /**
     * Lists a directory, in the controller's order. A name with bytes that are no UTF-8 comes with
     * each such byte as the lone surrogate U+DC00 + byte, and travels back unchanged.
     */
    bool getFileSystemItems(const QString &directory, const QVector<QString> &patterns,
                            QDir::Filters filters, QVector<FileSystemItem> &items);
    FileSystemResult openFile(const QString &path, bool write, bool overwrite, long &handle);
    FileSystemResult closeFile(long handle);
    FileSystemResult pushFileContents(long handle, const char *data, long size);
    /**
     * Reads up to @p wanted bytes into @p buffer, which must have room for them, and their count
     * into @p got. A controller that sends more than was wanted gives @c FS_ERROR and @p got 0.
     */
    FileSystemResult pullFileContents(long handle, long wanted, long &got, char *buffer);

public Q_SLOTS:
    /** Emits fcpEventReceived() with the same value. */
    void fcpEvent(int event);

Q_SIGNALS:
    /** Something changed on the instrument; @p event is an AppFcpEvent. */
    void fcpEventReceived(int event);
    /** The link is lost; @p reason is always -1, lastError() has the words. */
    void disconnectCatched(int reason);
    /** The destructor has begun: the last moment to end what other threads do with the proxy. */
    void ending();

private:
    explicit FcpAppCORBA(BiDirectionalCORBA *corba);

    friend class FcpRemoteFile;
    friend class VexLinkSupervisor;

    static FcpAppCORBA *m_Instance;

    struct Private;
    const std::unique_ptr<Private> d;
};

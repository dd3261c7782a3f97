#pragma once

#include <QString>
#include <QThread>
#include <QVector>

#include <memory>

#include <omniORB4/CORBA.h>

#include "VexExport.h"

class UpcallQueue;

/**
 * Owns the process's one ORB, and the POA in which the library's callback object lives.
 *
 * The link to the controller is bi-directional: the controller sends its callbacks back over the
 * connection that this process opened. A listen port exists because the ORB needs one, but nothing
 * is served there: a connection that somebody else opens to it is refused.
 *
 * The start-up code creates it once before the controller proxy, and destroys it at exit after the
 * proxy:
 * @code
 * if (!BiDirectionalCORBA::initializeInstance()) {
 *     qCritical() << BiDirectionalCORBA::lastError();
 * }
 * FcpAppCORBA::initializeInstance(BiDirectionalCORBA::instance());
 * @endcode
 *
 * The static functions belong to one thread, the one that starts the application.
 *
 * ### ORB arguments
 * The caller's arguments may be written for omniORB or for TAO. These words of TAO are understood:
 * | word | what happens |
 * |---|---|
 * | `-ORBListenEndpoints iiop://[host]:port[/portspan=n]` | replaces the default listen endpoint |
 * | `-ORBDottedDecimalAddresses`, `-ORBMuxedConnectionMax`, `-ORBUseParallelConnects`,
 * `-ORBSvcConfDirective`, ... | accepted; this ORB does so anyway or has no counterpart |
 *
 * Other words that begin with "-ORB" go to omniORB as they are, for instance
 * `-ORBclientCallTimeOutPeriod 300` for a round-trip time-out of 300 ms (default 180 s). One that
 * neither knows is an error that names it. Words that don't begin with "-ORB" are the
 * application's own and are passed over.
 */
class VEX_EXPORT BiDirectionalCORBA : public QThread
{
    Q_OBJECT

public:
    /** Creates the singleton; it listens on the first free port of 5700 to 5749. */
    static bool initializeInstance();
    /** Creates the singleton; it listens on @p port and on no other. */
    static bool initializeInstance(unsigned short port);
    /**
     * Creates the singleton with the application's own ORB arguments.
     *
     * Afterwards the ORB, the POA and the ORB thread are ready. On failure there is no instance,
     * nothing is left running, and lastError() says why. With an instance in place the call is
     * refused.
     * @return whether instance() can be used.
     */
    static bool initializeInstance(const QVector<QString> &args);

    /** The singleton, or null before a successful initializeInstance(). Not owned by the caller. */
    static BiDirectionalCORBA *instance();

    /**
     * Shuts the ORB down and destroys the singleton; does nothing when there is none. The proxy
     * must be gone before. Waits for a slot that runs on the ORB thread, and must not be called
     * from one. initializeInstance() may be called again afterwards.
     */
    static void deleteInstance();

    /** Why the last initializeInstance() or initializeORB() failed; empty after a success. */
    static QString lastError();

    /**
     * Builds the ORB anew with @p args appended to the listen endpoint that initializeInstance()
     * chose, and the POA with it; the ORB that was there is destroyed. For start-up code that
     * creates the instance first and passes its command line afterwards; not while a callback
     * object is active, that is before the proxy is made.
     * @return false when it failed; lastError() says why, and there is no ORB any more.
     */
    bool initializeORB(const QVector<QString> &args);

    /**
     * Runs the ORB's event loop, in which the controller's calls are delivered, until
     * shutdownORB(). The thread's body calls it.
     */
    void runORB();
    /** Stops the ORB's event loop and ends the thread. The ORB can not be used afterwards. */
    void shutdownORB();

    /** The ORB, not duplicated: it is valid as long as this object. Nil after a failure. */
    CORBA::ORB_ptr getORB() const;
    /** A new reference to the POA named "bidir". */
    PortableServer::POA_var getPOA() const;

    /** The port that the ORB listens on. */
    unsigned short listenPort() const;

    /**
     * Appends this host's own IPv4 addresses to @p list in dotted-decimal form, the loopback
     * addresses left out.
     */
    void getIpList(QVector<QString> *list) const;

    /** The controller's host as the proxy was told it last; an address or a name. */
    QString getTargetIp() const;
    void setTargetIp(const QString &address);

private:
    friend class FcpAppCORBA;

    explicit BiDirectionalCORBA(const QString &listenEndpoint);
    ~BiDirectionalCORBA() override;

    std::shared_ptr<UpcallQueue> upcalls() const;
    void run() override;
    bool startORB(const QVector<QString> &args);
    enum class Attempt { Started, WrongArguments, CannotListen };
    Attempt tryORB(const QVector<QString> &words);
    void initializePOA();
    void destroyORB();

    static bool createInstance(const QString &listenEndpoint, const QVector<QString> &args);

    static BiDirectionalCORBA *m_Instance;

    struct Private;
    const std::unique_ptr<Private> d;
};

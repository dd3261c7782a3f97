#include "BiDirectionalCORBA.h"

#include <QMutex>
#include <QRegularExpression>

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <omniORB4/BiDirPolicy.h>
#include <omniORB4/omniServer.h>

#include <omniORB4/internal/giopStream.h>
#include <omniORB4/internal/objectAdapter.h>

#include "ConnectionGate.h"
#include "CorbaLogging.h"
#include "OrbArguments.h"
#include "UpcallQueue.h"

using namespace Qt::StringLiterals;

namespace {

constexpr CORBA::ULong MessageBufferSize = 256 * 1024;

QString s_lastError;
QMutex s_orbLogMutex;
/// The ORB's last complaint: it says in its log, not in its exceptions, which argument is wrong.
QString s_orbComplaint;

void logOfTheOrb(const char *message)
{
    const QString text = QString::fromUtf8(message).trimmed();
    qCDebug(lcOrb).noquote() << text;
    const QMutexLocker locker(&s_orbLogMutex);
    s_orbComplaint = text;
}

QString takeOrbComplaint()
{
    static const QRegularExpression prefix(uR"(^omniORB: \(\d+\) \S+ \S+: )"_s);
    const QMutexLocker locker(&s_orbLogMutex);
    return std::exchange(s_orbComplaint, {}).remove(prefix);
}

// A call that failed is reported, never repeated behind the caller's back.
CORBA::Boolean dontRetry(void *, CORBA::ULong, const CORBA::TRANSIENT &)
{
    return false;
}
CORBA::Boolean dontRetry(void *, CORBA::ULong, const CORBA::TIMEOUT &)
{
    return false;
}
CORBA::Boolean dontRetry(void *, CORBA::ULong, const CORBA::COMM_FAILURE &)
{
    return false;
}
CORBA::Boolean dontRetry(void *, CORBA::ULong, const CORBA::SystemException &)
{
    return false;
}

void forbidRetries()
{
    omniORB::installTransientExceptionHandler(nullptr, dontRetry);
    omniORB::installTimeoutExceptionHandler(nullptr, dontRetry);
    omniORB::installCommFailureExceptionHandler(nullptr, dontRetry);
    omniORB::installSystemExceptionHandler(nullptr, dontRetry);
}

/// Whether a socket can listen on the port now. The port can be lost again before the ORB takes it.
bool isFree(const ListenEndpoint &endpoint, int port)
{
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (socket < 0) {
        return false;
    }
    const int on = 1;
    ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<quint16>(port));
    address.sin_addr.s_addr = htonl(INADDR_ANY);
    ::inet_pton(AF_INET, endpoint.host.toLatin1().constData(), &address.sin_addr);
    const bool free = ::bind(socket, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0
        && ::listen(socket, 1) == 0;
    ::close(socket);
    return free;
}

/// The port of the first endpoint over TCP, "giop:tcp:host:port"; 0 when there is none.
unsigned short portOf(const omni::orbServer::EndpointList &endpoints)
{
    for (CORBA::ULong i = 0; i < endpoints.length(); ++i) {
        const QByteArrayView endpoint(endpoints[i].in());
        if (endpoint.startsWith("giop:tcp:")) {
            return endpoint.sliced(endpoint.lastIndexOf(':') + 1).toUShort();
        }
    }
    return 0;
}

/// omniORB takes its arguments as a C program does.
class ArgumentVector
{
public:
    explicit ArgumentVector(const QVector<QString> &words)
    {
        m_words.append("vex"_ba);
        for (const QString &word : words) {
            m_words.append(word.toUtf8());
        }
        for (QByteArray &word : m_words) {
            m_pointers.append(word.data());
        }
        m_count = static_cast<int>(m_pointers.size());
        m_pointers.append(nullptr);
    }

    int &count() { return m_count; }
    char **pointers() { return m_pointers.data(); }

private:
    QVector<QByteArray> m_words;
    QVector<char *> m_pointers;
    int m_count = 0;
};

} // namespace

struct BiDirectionalCORBA::Private
{
    QString defaultEndpoint;
    unsigned short port = 0;
    CORBA::ORB_var orb;
    PortableServer::POA_var poa;
    /// Shared with the callback object, which the ORB may let go of later.
    const std::shared_ptr<UpcallQueue> upcalls = std::make_shared<UpcallQueue>();
    mutable QMutex targetMutex;
    QString targetIp;
};

BiDirectionalCORBA *BiDirectionalCORBA::m_Instance = nullptr;

bool BiDirectionalCORBA::initializeInstance()
{
    return initializeInstance(QVector<QString>());
}

bool BiDirectionalCORBA::initializeInstance(const QVector<QString> &args)
{
    return createInstance(u"iiop://:5700/portspan=50"_s, args);
}

bool BiDirectionalCORBA::initializeInstance(unsigned short port)
{
    return createInstance(u"iiop://:%1"_s.arg(port), {});
}

bool BiDirectionalCORBA::createInstance(const QString &listenEndpoint, const QVector<QString> &args)
{
    if (m_Instance) {
        s_lastError = u"the ORB was initialised before: one process has one ORB"_s;
        qCWarning(lcCorba).noquote() << s_lastError;
        return false;
    }
    m_Instance = new BiDirectionalCORBA(listenEndpoint);
    if (!m_Instance->initializeORB(args)) {
        deleteInstance();
        return false;
    }
    return true;
}

BiDirectionalCORBA *BiDirectionalCORBA::instance()
{
    return m_Instance;
}

void BiDirectionalCORBA::deleteInstance()
{
    delete std::exchange(m_Instance, nullptr);
}

QString BiDirectionalCORBA::lastError()
{
    return s_lastError;
}

BiDirectionalCORBA::BiDirectionalCORBA(const QString &listenEndpoint)
    : d(std::make_unique<Private>())
{
    d->defaultEndpoint = listenEndpoint;
    setObjectName("VexOrb"_L1);
}

BiDirectionalCORBA::~BiDirectionalCORBA()
{
    destroyORB();
}

bool BiDirectionalCORBA::initializeORB(const QVector<QString> &args)
{
    destroyORB();
    s_lastError.clear();
    if (!startORB(args)) {
        qCWarning(lcCorba).noquote() << s_lastError;
        return false;
    }
    d->upcalls->expectRun();
    start();
    return true;
}

bool BiDirectionalCORBA::startORB(const QVector<QString> &args)
{
    const OrbArguments arguments = OrbArguments::translate(d->defaultEndpoint, args);
    for (const QString &word : arguments.ignored) {
        qCDebug(lcCorba).noquote() << "CORBA argument without a counterpart, ignored:" << word;
    }
    if (!arguments.error.isEmpty()) {
        s_lastError = arguments.error;
        return false;
    }
    if (!arguments.endpoint) {
        return tryORB(arguments.words) == Attempt::Started;
    }

    const ListenEndpoint &endpoint = *arguments.endpoint;
    for (int i = 0; i < endpoint.portCount; ++i) {
        const int port = endpoint.firstPort + i;
        if (port != 0 && !isFree(endpoint, port)) {
            continue;
        }
        const QVector<QString> endpointWords = {u"-ORBendPoint"_s, endpoint.forOmniOrb(port)};
        const Attempt attempt = tryORB(endpointWords + arguments.words);
        if (attempt != Attempt::CannotListen) {
            return attempt == Attempt::Started;
        }
        // Somebody else has taken the port since it was found free.
    }
    s_lastError = u"cannot listen for callbacks: %1 %2 in use%3"_s.arg(
        endpoint.describe(), endpoint.portCount == 1 ? u"is"_s : u"are all"_s,
        endpoint.host.isEmpty() ? QString()
                                : u" or %1 is no address of this host"_s.arg(endpoint.host));
    return false;
}

BiDirectionalCORBA::Attempt BiDirectionalCORBA::tryORB(const QVector<QString> &words)
{
    for (const QString &word : words) {
        qCDebug(lcCorba).noquote() << "CORBA argument"
                                   << "=" << word;
    }
    omniORB::setLogFunction(logOfTheOrb);
    takeOrbComplaint();
    // A chunk of a file and its header fit the ORB's buffers: read and sent in one piece each, they
    // go up to half as fast again as with the default of 8 KiB.
    omni::giopStream::bufferSize = MessageBufferSize;
    omni::giopStream::directSendCutOff = MessageBufferSize;
    // Its default, at which it names a wrong argument; an earlier instance may have silenced it.
    omniORB::traceLevel = 1;
    ArgumentVector argv(words);
    Attempt attempt = Attempt::WrongArguments;
    try {
        d->orb = CORBA::ORB_init(argv.count(), argv.pointers());
        attempt = Attempt::CannotListen;
        forbidRetries();
        ConnectionGate::install();
        initializePOA();
        d->port = portOf(omni::omniObjAdapter::listMyEndpoints());
        return Attempt::Started;
    } catch (const CORBA::Exception &exception) {
        // With -ORBtraceLevel 0 it has nothing to say: then any of the words may be meant.
        const QString complaint = takeOrbComplaint();
        s_lastError = u"the ORB did not start (%1): %2"_s.arg(
            QString::fromLatin1(exception._name()),
            complaint.isEmpty() ? u"it was given "_s + words.join(u' ') : complaint);
    }
    destroyORB();
    return attempt;
}

void BiDirectionalCORBA::initializePOA()
{
    CORBA::Object_var object = d->orb->resolve_initial_references("RootPOA");
    PortableServer::POA_var root = PortableServer::POA::_narrow(object);

    CORBA::Any both;
    both <<= BiDirPolicy::BOTH;
    CORBA::PolicyList policies(1);
    policies.length(1);
    policies[0] = d->orb->create_policy(BiDirPolicy::BIDIRECTIONAL_POLICY_TYPE, both);

    PortableServer::POAManager_var manager = root->the_POAManager();
    d->poa = root->create_POA("bidir", manager, policies);
    manager->activate();
}

void BiDirectionalCORBA::destroyORB()
{
    shutdownORB();
    d->poa = PortableServer::POA::_nil();
    d->port = 0;
    if (!CORBA::is_nil(d->orb)) {
        d->orb->destroy();
        d->orb = CORBA::ORB::_nil();
    }
}

void BiDirectionalCORBA::run()
{
    runORB();
}

void BiDirectionalCORBA::runORB()
{
    // The ORB reads its connections on threads of its own and needs none to be lent to it.
    d->upcalls->run();
}

void BiDirectionalCORBA::shutdownORB()
{
    if (CORBA::is_nil(d->orb)) {
        return;
    }
    try {
        d->orb->shutdown(false);
    } catch (const CORBA::Exception &exception) {
        qCDebug(lcCorba) << "the ORB was shut down before:" << exception._name();
    }
    d->upcalls->stop();
    wait();
}

std::shared_ptr<UpcallQueue> BiDirectionalCORBA::upcalls() const
{
    return d->upcalls;
}

CORBA::ORB_ptr BiDirectionalCORBA::getORB() const
{
    return d->orb.in();
}

PortableServer::POA_var BiDirectionalCORBA::getPOA() const
{
    return PortableServer::POA::_duplicate(d->poa);
}

unsigned short BiDirectionalCORBA::listenPort() const
{
    return d->port;
}

void BiDirectionalCORBA::getIpList(QVector<QString> *list) const
{
    ifaddrs *addresses = nullptr;
    if (::getifaddrs(&addresses) != 0) {
        return;
    }
    for (const ifaddrs *entry = addresses; entry; entry = entry->ifa_next) {
        if (!entry->ifa_addr || entry->ifa_addr->sa_family != AF_INET
            || (entry->ifa_flags & IFF_LOOPBACK)) {
            continue;
        }
        const auto *address = reinterpret_cast<const sockaddr_in *>(entry->ifa_addr);
        char text[INET_ADDRSTRLEN] = {};
        ::inet_ntop(AF_INET, &address->sin_addr, text, sizeof text);
        list->append(QString::fromLatin1(text));
    }
    ::freeifaddrs(addresses);
}

QString BiDirectionalCORBA::getTargetIp() const
{
    const QMutexLocker locker(&d->targetMutex);
    return d->targetIp;
}

void BiDirectionalCORBA::setTargetIp(const QString &address)
{
    const QMutexLocker locker(&d->targetMutex);
    d->targetIp = address;
}

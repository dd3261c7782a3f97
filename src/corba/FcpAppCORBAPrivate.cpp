// How FcpAppCORBA's links are made, lost and let go.

#include "FcpAppCORBA_p.h"

#include <QDeadlineTimer>
#include <QThread>

#include <chrono>

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>

#include "AppFcpCORBAImpl.h"
#include "BiDirectionalCORBA.h"
#include "ThreadCallTimeOut.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// How long a courtesy call to a controller that is being left may take.
constexpr std::chrono::milliseconds CourtesyTimeOut = 3s;

/// How often the ORB may come up with a connection that is broken before that is the failure.
constexpr int AttemptsOnOldConnections = 10;

/// A failure to connect that is not the ORB's, with its words.
class ConnectFailure : public std::exception
{
public:
    explicit ConnectFailure(const QString &text)
        : m_text(text.toUtf8())
    {
    }
    const char *what() const noexcept override { return m_text.constData(); }

private:
    QByteArray m_text;
};

/// @p onLink: the call was bound to a link's connection, which is never replaced.
QString describe(const CORBA::SystemException &exception, bool onLink)
{
    const char *minor = exception.NP_minorString();
    const QString detail =
        u"%1%2%3"_s.arg(QString::fromLatin1(exception._name()), minor ? u" "_s : QString(),
                        QString::fromLatin1(minor ? minor : ""));
    if (CORBA::TIMEOUT::_downcast(&exception)) {
        return u"no answer within the time-out (%1)"_s.arg(detail);
    }
    if (CORBA::COMM_FAILURE::_downcast(&exception)) {
        return u"the connection broke during a call; whether it was carried out is unknown (%1)"_s
            .arg(detail);
    }
    if (CORBA::TRANSIENT::_downcast(&exception)) {
        return exception.minor() == omni::TRANSIENT_ConnectFailed && !onLink
            ? u"nothing answers at that address (%1)"_s.arg(detail)
            : u"the connection was closed (%1)"_s.arg(detail);
    }
    if (CORBA::OBJECT_NOT_EXIST::_downcast(&exception)) {
        return u"there is no controller at that address (%1)"_s.arg(detail);
    }
    return u"the call failed (%1)"_s.arg(detail);
}

/// The IPv4 address of a host, or the name itself when it has none.
QByteArray ipv4Of(const QString &host)
{
    addrinfo hints = {};
    hints.ai_family = AF_INET;
    hints.ai_socktype = SOCK_STREAM;
    addrinfo *found = nullptr;
    if (::getaddrinfo(host.toUtf8().constData(), nullptr, &hints, &found) != 0) {
        return host.toUtf8();
    }
    char text[INET_ADDRSTRLEN] = {};
    const auto *address = reinterpret_cast<const sockaddr_in *>(found->ai_addr);
    ::inet_ntop(AF_INET, &address->sin_addr, text, sizeof text);
    ::freeaddrinfo(found);
    return text;
}

/**
 * The published address as the ORB must be given it. Without a version it means IIOP 1.0, which has
 * no bi-directional connections. And a name and its address are two peers to the ORB, with a
 * connection each, while the reference that the controller forwards to carries an address.
 */
QByteArray addressForTheOrb(const QString &host, int port)
{
    return "corbaloc:iiop:1.2@" + ipv4Of(host) + ':' + QByteArray::number(port) + "/bidir/FcpApp";
}

} // namespace

QString FcpAppCORBA::Private::describeCurrentException(bool onLink)
{
    try {
        throw;
    } catch (const CORBA::SystemException &exception) {
        return describe(exception, onLink);
    } catch (const CORBA::Exception &exception) {
        return u"the call failed (%1)"_s.arg(QString::fromLatin1(exception._name()));
    } catch (const std::exception &exception) {
        return QString::fromUtf8(exception.what());
    } catch (...) {
        return u"an unknown exception"_s;
    }
}

FcpAppCORBA::Private::Private(FcpAppCORBA *proxy, BiDirectionalCORBA *orb,
                              std::shared_ptr<UpcallQueue> upcalls)
    : q(proxy)
    , corba(orb)
    , callback(new AppFcpCORBAImpl(std::move(upcalls)))
{
    activateCallback();
}

FcpAppCORBA::Private::~Private()
{
    deactivateCallback();
    callback->_remove_ref();
}

std::shared_ptr<FcpLink> FcpAppCORBA::Private::currentLink() const
{
    const QMutexLocker locker(&mutex);
    return m_link;
}

FcpAppCORBA::Private::Controller FcpAppCORBA::Private::findController(const QByteArray &address)
{
    Controller found;
    const CORBA::Object_var object = corba->getORB()->string_to_object(address.constData());
    found.object = FcpAppInterfaceCORBA::_narrow(object);
    if (CORBA::is_nil(found.object)) {
        throw ConnectFailure(u"what answers there is no controller"_s);
    }
    // A controller forwards the published address to its real object. A call that does no harm
    // takes this view of it there too, before it is bound to the connection.
    found.contents = FcpContentsCORBA::_unchecked_narrow(found.object);
    if (found.contents->_non_existent()) {
        throw ConnectFailure(u"the controller's object does not exist"_s);
    }
    return found;
}

std::shared_ptr<FcpLink> FcpAppCORBA::Private::makeLink(const QString &host, int port)
{
    const QByteArray address = u"corbaloc:iiop:%1:%2/bidir/FcpApp"_s.arg(host).arg(port).toUtf8();
    qCDebug(lcCorba) << "connecting to" << address.constData();
    if (host.isEmpty() || !WireConversion::canTravel(host) || port < 1 || port > 65535) {
        throw ConnectFailure(u"%1 is no address of a controller"_s.arg(QString::fromUtf8(address)));
    }

    ConnectionGate::Registration registration;
    Controller controller;
    for (int attempt = 1; CORBA::is_nil(controller.object); ++attempt) {
        try {
            controller = findController(addressForTheOrb(host, port));
        } catch (const CORBA::SystemException &) {
            // The connection of a link that is gone may be with the ORB still. These calls change
            // nothing: they are made again until one was made on a connection of their own.
            if (registration.openedConnections() > 0 || attempt == AttemptsOnOldConnections) {
                throw;
            }
        }
    }

    if (callbackIdWasRegistered) {
        // Under the old id the controller may hold a registration of a link that is gone: its
        // events must not be heard beside the new ones.
        deactivateCallback();
        activateCallback();
    }
    const PortableServer::POA_var poa = corba->getPOA();
    const CORBA::Object_var reference = poa->servant_to_reference(callback);
    const AppFcpInterfaceCORBA_var self = AppFcpInterfaceCORBA::_narrow(reference);
    callbackIdWasRegistered = true;
    const CORBA::Long id = controller.object->registerApp(self);
    return std::make_shared<FcpLink>(controller.object, controller.contents, id,
                                     registration.connection(), registration.socket(), ++linkCount);
}

FcpAppCORBA::Private::Connected FcpAppCORBA::Private::connectTo(const QString &host, int port,
                                                                bool onlyIfLost)
{
    const QMutexLocker locker(&connecting);
    const std::shared_ptr<FcpLink> before = currentLink();
    if (onlyIfLost && before) {
        return Connected::Yes;
    }
    {
        const QMutexLocker dataLocker(&mutex);
        m_host = host;
        m_port = port;
    }
    corba->setTargetIp(host);
    try {
        replaceLink(makeLink(host, port));
        return Connected::Yes;
    } catch (...) {
        const QString reason =
            u"no link to %1:%2: %3"_s.arg(host).arg(port).arg(describeCurrentException(false));
        if (before && dropLink(before, reason)) {
            return Connected::LinkDropped;
        }
        const QMutexLocker dataLocker(&mutex);
        m_lastError = reason;
        return Connected::No;
    }
}

void FcpAppCORBA::Private::replaceLink(const std::shared_ptr<FcpLink> &fresh)
{
    std::shared_ptr<FcpLink> replaced;
    {
        const QMutexLocker locker(&mutex);
        replaced = std::exchange(m_link, fresh);
        fresh->setLossesBefore(m_lossCount);
        m_lastError.clear();
    }
    signOfLife->note();
    qCDebug(lcCorba) << "registered as client" << fresh->clientId() << "on"
                     << fresh->connection().constData();
    if (!replaced) {
        return;
    }
    letGo(replaced);
    if (replaced->connection() != fresh->connection()) {
        replaced->hangUp();
    }
}

void FcpAppCORBA::Private::letGo(const std::shared_ptr<FcpLink> &old)
{
    if (!old->takeRegistration()) {
        return;
    }
    try {
        const ConnectionGate::BoundCall bound(old->connection());
        const ThreadCallTimeOut timeOut(CourtesyTimeOut);
        old->controller()->unregisterApp(old->clientId());
    } catch (const CORBA::Exception &exception) {
        qCDebug(lcCorba) << "the replaced link could not be unregistered:" << exception._name();
    }
}

bool FcpAppCORBA::Private::dropLink(const std::shared_ptr<FcpLink> &link, const QString &reason)
{
    {
        const QMutexLocker locker(&mutex);
        if (!link || m_link != link) {
            return false; // somebody else dropped it, or it was replaced meanwhile
        }
        m_link.reset();
        ++m_lossCount;
        m_lastError = reason;
        link->hangUp();
    }
    qCDebug(lcCorba).noquote() << reason;
    return true;
}

void FcpAppCORBA::Private::linkFailed(const std::shared_ptr<FcpLink> &link, const QString &reason)
{
    if (dropLink(link, u"the link to %1 is lost: %2"_s.arg(q->getHost(), reason))) {
        Q_EMIT q->disconnectCatched(-1);
    }
}

void FcpAppCORBA::Private::activateCallback()
{
    // The id of before is free again when the last upcall on it has returned.
    const QDeadlineTimer patience(1s);
    const PortableServer::POA_var poa = corba->getPOA();
    while (true) {
        try {
            callbackId = poa->activate_object(callback);
            callbackIdWasRegistered = false;
            return;
        } catch (const PortableServer::POA::ServantAlreadyActive &) {
            if (patience.hasExpired()) {
                throw;
            }
            QThread::msleep(1);
        }
    }
}

void FcpAppCORBA::Private::deactivateCallback()
{
    try {
        corba->getPOA()->deactivate_object(callbackId);
    } catch (const CORBA::Exception &exception) {
        qCDebug(lcCorba) << "the callback object was not active:" << exception._name();
    }
}

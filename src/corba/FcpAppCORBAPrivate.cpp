// How FcpAppCORBA's links are made, lost and let go.

#include "FcpAppCORBA_p.h"

#include <QDeadlineTimer>
#include <QThread>

#include <chrono>

#include "AppFcpCORBAImpl.h"
#include "BiDirectionalCORBA.h"
#include "ThreadCallTimeOut.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// How long a courtesy call to a controller that is being left may take.
constexpr std::chrono::milliseconds CourtesyTimeOut = 3s;

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

QString describe(const CORBA::SystemException &exception)
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
        return exception.minor() == omni::TRANSIENT_ConnectFailed
            ? u"nothing answers at that address (%1)"_s.arg(detail)
            : u"the connection is gone (%1)"_s.arg(detail);
    }
    if (CORBA::OBJECT_NOT_EXIST::_downcast(&exception)) {
        return u"there is no controller at that address (%1)"_s.arg(detail);
    }
    return u"the call failed (%1)"_s.arg(detail);
}

} // namespace

QString FcpAppCORBA::Private::describeCurrentException()
{
    try {
        throw;
    } catch (const CORBA::SystemException &exception) {
        return describe(exception);
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

void FcpAppCORBA::Private::setError(const QString &reason)
{
    qCDebug(lcCorba).noquote() << reason;
    const QMutexLocker locker(&mutex);
    m_lastError = reason;
}

std::shared_ptr<FcpLink> FcpAppCORBA::Private::makeLink(const QString &host, int port)
{
    const QByteArray address = u"corbaloc:iiop:%1:%2/bidir/FcpApp"_s.arg(host).arg(port).toUtf8();
    qCDebug(lcCorba) << "connecting to" << address.constData();
    if (host.isEmpty() || port < 1 || port > 65535) {
        throw ConnectFailure(u"%1 is no address of a controller"_s.arg(QString::fromUtf8(address)));
    }
    // Without a version the address means IIOP 1.0, which has no bi-directional connections.
    const QByteArray versioned =
        QByteArray(address).replace("corbaloc:iiop:", "corbaloc:iiop:1.2@");

    ConnectionGate::Registration registration;
    const CORBA::Object_var object = corba->getORB()->string_to_object(versioned.constData());
    const FcpAppInterfaceCORBA_var controller = FcpAppInterfaceCORBA::_narrow(object);
    if (CORBA::is_nil(controller)) {
        throw ConnectFailure(u"what answers there is no controller"_s);
    }
    // A controller forwards the published address to its real object. A call that does no harm
    // takes this view of it there too, before it is bound to the connection.
    const FcpContentsCORBA_var contents = FcpContentsCORBA::_unchecked_narrow(controller);
    if (contents->_non_existent()) {
        throw ConnectFailure(u"the controller's object does not exist"_s);
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
    const CORBA::Long id = controller->registerApp(self);
    return std::make_shared<FcpLink>(controller, contents, id, registration.connection(),
                                     registration.socket(), ++linkCount);
}

bool FcpAppCORBA::Private::connectTo(const QString &host, int port, bool onlyIfLost)
{
    const QMutexLocker locker(&connecting);
    if (onlyIfLost && currentLink()) {
        return true;
    }
    {
        const QMutexLocker dataLocker(&mutex);
        m_host = host;
        m_port = port;
    }
    corba->setTargetIp(host);
    try {
        replaceLink(makeLink(host, port));
        return true;
    } catch (...) {
        setError(u"no link to %1:%2: %3"_s.arg(host).arg(port).arg(describeCurrentException()));
        return false;
    }
}

void FcpAppCORBA::Private::replaceLink(const std::shared_ptr<FcpLink> &fresh)
{
    std::shared_ptr<FcpLink> replaced;
    std::shared_ptr<FcpLink> lost;
    {
        const QMutexLocker locker(&mutex);
        replaced = std::exchange(m_link, fresh);
        lost = std::exchange(m_lostLink, nullptr);
        m_lastError.clear();
    }
    signOfLife->note();
    qCDebug(lcCorba) << "registered as client" << fresh->clientId() << "on"
                     << fresh->connection().constData();
    if (replaced) {
        replaced->dropSocket();
        letGo(replaced);
    }
    // A call that failed while its connection lived left a registration behind. On another
    // connection the id may belong to another client by now.
    if (lost && lost->connection() == fresh->connection()) {
        letGo(lost);
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

void FcpAppCORBA::Private::linkFailed(const std::shared_ptr<FcpLink> &failed, const QString &reason)
{
    {
        const QMutexLocker locker(&mutex);
        if (m_link != failed) {
            return; // somebody else reported it, or it was replaced meanwhile
        }
        m_lostLink = std::exchange(m_link, nullptr);
        m_lostLink->dropSocket();
        m_lastError = u"the link to %1 is lost: %2"_s.arg(m_host, reason);
        qCDebug(lcCorba).noquote() << m_lastError;
    }
    Q_EMIT q->disconnectCatched(-1);
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

qint64 FcpAppCORBA::millisecondsSinceHeard() const
{
    return d->signOfLife->age();
}

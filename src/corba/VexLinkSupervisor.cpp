#include "VexLinkSupervisor.h"

#include <QRandomGenerator>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <mutex>

#include "Bell.h"
#include "FcpAppCORBA.h"
#include "FcpAppCORBA_p.h"
#include "ThreadCallTimeOut.h"

using namespace std::chrono_literals;
using std::chrono::milliseconds;

namespace {

struct Settings
{
    milliseconds interval = 5s;
    milliseconds answerTimeOut = 5s;
    milliseconds suspectAfter = 1s;
    milliseconds firstDelay = 1s;
    milliseconds longestDelay = 10s;
};

constexpr milliseconds Forever(-1);

/// @p delay less a random part of up to a quarter.
milliseconds jittered(milliseconds delay)
{
    const auto quarter = static_cast<quint32>(std::max<qint64>(delay.count() / 4, 0));
    return delay - milliseconds(QRandomGenerator::global()->bounded(quarter + 1));
}

} // namespace

/**
 * The worker loop runs on its own thread under the mutex, which it releases while it waits and
 * while it calls the controller. What it finds out goes to the supervisor's thread as posts; a post
 * of an earlier watch (before stop() or another start()) is dropped there.
 */
struct VexLinkSupervisor::Private
{
    Private(VexLinkSupervisor *supervisor, FcpAppCORBA *proxy)
        : q(supervisor)
        , controller(proxy)
    {
    }

    using Lock = std::unique_lock<std::mutex>;

    void work();
    void watch(Lock &lock);
    void askForSignOfLife(Lock &lock);
    void restore(Lock &lock);
    void waitForNextAttempt(Lock &lock);
    /// Waits without the lock.
    Bell::Woken wait(Lock &lock, milliseconds timeOut, int socket = -1);
    Bell::Woken waitOnLink(Lock &lock, const FcpLink &link, milliseconds timeOut);
    bool linkIsUp() const;
    bool isCurrent(quint64 aWatch) const { return !quit && watching && watchSerial == aWatch; }
    void post(State state, const QString &reason);
    void postRestored();
    template<typename Function>
    void postCall(Function function);

    void enter(State newState, const QString &newReason, const QDateTime &time);

    VexLinkSupervisor *const q;
    FcpAppCORBA *const controller;
    std::unique_ptr<QThread> thread;

    // Of the supervisor's thread
    State state = State::Stopped;
    QString reason;
    QDateTime since = QDateTime::currentDateTime();
    QTimer suspicion;

    /// Shared with the connection to the proxy, whose signal another thread may be emitting while
    /// the supervisor goes.
    const std::shared_ptr<Bell> bell = std::make_shared<Bell>();

    mutable std::mutex mutex;
    // Guarded by the mutex
    Settings settings;
    QString host;
    int port = 0;
    bool quit = false;
    bool watching = false;
    bool retry = false;
    quint64 watchSerial = 0;
    // Of the worker, for the watch under way
    quint64 seenWatch = 0;
    quint64 seenLink = 0; ///< the link that was reported as Connected; 0: none yet
    quint64 seenLosses = 0; ///< of the proxy, when that was reported
    bool lossReported = false;
    quint64 hungUpLink = 0; ///< the link whose peer closed the connection; told once
    int failedAttempts = 0;
};

Bell::Woken VexLinkSupervisor::Private::wait(Lock &lock, milliseconds timeOut, int socket)
{
    lock.unlock();
    const Bell::Woken woken = bell->wait(timeOut, socket);
    lock.lock();
    return woken;
}

void VexLinkSupervisor::Private::work()
{
    Lock lock(mutex);
    while (!quit) {
        if (!watching) {
            wait(lock, Forever);
            continue;
        }
        if (seenWatch != watchSerial) {
            seenWatch = watchSerial;
            seenLink = 0;
            lossReported = false;
            failedAttempts = 0;
        }
        if (linkIsUp()) {
            watch(lock);
        } else {
            restore(lock);
        }
    }
}

bool VexLinkSupervisor::Private::linkIsUp() const
{
    return controller->isConnected() && controller->getHost() == host
        && controller->getPort() == port;
}

void VexLinkSupervisor::Private::watch(Lock &lock)
{
    const std::shared_ptr<FcpLink> link = controller->d->currentLink();
    if (!link) {
        return;
    }
    const quint64 serial = link->serial();
    if (serial != seenLink) {
        const bool wasLost = seenLink != 0 && link->lossesBefore() != seenLosses;
        seenLink = serial;
        seenLosses = link->lossesBefore();
        lossReported = false;
        failedAttempts = 0;
        post(State::Connected,
             tr("registered with %1:%2 as client %3").arg(host).arg(port).arg(link->clientId()));
        if (wasLost) {
            postRestored();
        }
    }
    const milliseconds quiet(std::max<qint64>(controller->millisecondsSinceHeard(), 0));
    if (quiet >= settings.interval) {
        askForSignOfLife(lock);
        return;
    }
    if (waitOnLink(lock, *link, settings.interval - quiet) == Bell::Woken::HungUp) {
        hungUpLink = serial;
        askForSignOfLife(lock);
    }
}

Bell::Woken VexLinkSupervisor::Private::waitOnLink(Lock &lock, const FcpLink &link,
                                                   milliseconds timeOut)
{
    if (hungUpLink == link.serial()) {
        return wait(lock, timeOut);
    }
    const auto socket = link.openSocket();
    return socket ? wait(lock, timeOut, socket->descriptor()) : Bell::Woken::HungUp;
}

void VexLinkSupervisor::Private::askForSignOfLife(Lock &lock)
{
    const milliseconds suspectAfter = settings.suspectAfter;
    const milliseconds timeOut = settings.answerTimeOut;
    postCall([this, suspectAfter] { suspicion.start(suspectAfter); });
    lock.unlock();
    {
        const ThreadCallTimeOut bounded(timeOut);
        controller->isMaximumClientCountOK();
    }
    lock.lock();
    const bool answered = controller->linkSerial() == seenLink;
    postCall([this, answered] {
        suspicion.stop();
        if (answered && state == State::Suspect) {
            enter(State::Connected, tr("the controller answers again"),
                  QDateTime::currentDateTime());
        }
    });
}

void VexLinkSupervisor::Private::restore(Lock &lock)
{
    const quint64 thisWatch = watchSerial;
    if (seenLink != 0 && !lossReported) {
        lossReported = true;
        post(State::Lost, controller->lastError());
    }
    post(State::Restoring,
         tr("connecting to %1:%2, attempt %3").arg(host).arg(port).arg(failedAttempts + 1));

    const QString toHost = host;
    const int toPort = port;
    const milliseconds timeOut = settings.answerTimeOut;
    lock.unlock();
    // A link to another address is replaced, one that somebody else has just made is not.
    const bool sameAddress = controller->getHost() == toHost && controller->getPort() == toPort;
    using Connected = FcpAppCORBA::Private::Connected;
    Connected connected = Connected::No;
    {
        const ThreadCallTimeOut bounded(timeOut);
        connected = controller->d->connectTo(toHost, toPort, sameAddress);
    }
    const QString failure = controller->lastError();
    if (connected == Connected::LinkDropped) {
        Q_EMIT controller->disconnectCatched(-1);
    }
    lock.lock();
    if (connected == Connected::Yes || !isCurrent(thisWatch)) {
        return; // the next round sees what there is
    }
    ++failedAttempts;
    post(State::Lost, failure);
    waitForNextAttempt(lock);
}

void VexLinkSupervisor::Private::waitForNextAttempt(Lock &lock)
{
    const quint64 thisWatch = watchSerial;
    const int doublings = std::min(failedAttempts - 1, 16);
    const milliseconds delay =
        std::min(settings.firstDelay * (1 << doublings), settings.longestDelay);
    const auto deadline = std::chrono::steady_clock::now() + jittered(delay);
    retry = false;
    while (!retry && isCurrent(thisWatch) && !linkIsUp()) {
        const auto left =
            std::chrono::ceil<milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left <= 0ms) {
            return;
        }
        wait(lock, left);
    }
}

template<typename Function>
void VexLinkSupervisor::Private::postCall(Function function)
{
    const quint64 aWatch = watchSerial;
    QMetaObject::invokeMethod(
        q,
        [this, aWatch, function] {
            bool current = false;
            {
                const Lock lock(mutex);
                current = isCurrent(aWatch);
            }
            if (current) {
                function();
            }
        },
        Qt::QueuedConnection);
}

void VexLinkSupervisor::Private::post(State newState, const QString &newReason)
{
    const QDateTime now = QDateTime::currentDateTime();
    postCall([this, newState, newReason, now] { enter(newState, newReason, now); });
}

void VexLinkSupervisor::Private::postRestored()
{
    postCall([this] { Q_EMIT q->restored(); });
}

void VexLinkSupervisor::Private::enter(State newState, const QString &newReason,
                                       const QDateTime &time)
{
    if (newState != State::Suspect) {
        suspicion.stop();
    }
    qCDebug(lcCorba).noquote() << "link supervisor:" << newState << newReason;
    state = newState;
    reason = newReason;
    since = time;
    Q_EMIT q->stateChanged(newState, newReason, time);
}

VexLinkSupervisor::VexLinkSupervisor(FcpAppCORBA *controller, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this, controller))
{
    d->suspicion.setSingleShot(true);
    connect(&d->suspicion, &QTimer::timeout, this, [this] {
        d->enter(State::Suspect,
                 tr("no answer for %1 ms").arg(d->controller->millisecondsSinceHeard()),
                 QDateTime::currentDateTime());
    });
    // A loss that somebody else's call has found needs no sign of life to be noticed.
    connect(
        controller, &FcpAppCORBA::disconnectCatched, this, [bell = d->bell] { bell->ring(); },
        Qt::DirectConnection);
    d->thread.reset(QThread::create([this] { d->work(); }));
    d->thread->setObjectName(QStringLiteral("VexLink"));
    d->thread->start();
}

VexLinkSupervisor::~VexLinkSupervisor()
{
    disconnect(d->controller, nullptr, this, nullptr);
    {
        const Private::Lock lock(d->mutex);
        d->quit = true;
    }
    d->bell->ring();
    d->thread->wait();
}

VexLinkSupervisor::State VexLinkSupervisor::state() const
{
    return d->state;
}

QString VexLinkSupervisor::reason() const
{
    return d->reason;
}

QDateTime VexLinkSupervisor::since() const
{
    return d->since;
}

milliseconds VexLinkSupervisor::interval() const
{
    const Private::Lock lock(d->mutex);
    return d->settings.interval;
}

void VexLinkSupervisor::setInterval(milliseconds interval)
{
    {
        const Private::Lock lock(d->mutex);
        d->settings.interval = std::max(interval, 1ms);
    }
    d->bell->ring();
}

milliseconds VexLinkSupervisor::answerTimeOut() const
{
    const Private::Lock lock(d->mutex);
    return d->settings.answerTimeOut;
}

void VexLinkSupervisor::setAnswerTimeOut(milliseconds timeOut)
{
    const Private::Lock lock(d->mutex);
    d->settings.answerTimeOut = std::max(timeOut, 1ms);
}

milliseconds VexLinkSupervisor::suspectAfter() const
{
    const Private::Lock lock(d->mutex);
    return d->settings.suspectAfter;
}

void VexLinkSupervisor::setSuspectAfter(milliseconds delay)
{
    const Private::Lock lock(d->mutex);
    d->settings.suspectAfter = std::max(delay, 0ms);
}

void VexLinkSupervisor::setRetryDelays(milliseconds first, milliseconds longest)
{
    const Private::Lock lock(d->mutex);
    d->settings.firstDelay = std::max(first, 1ms);
    d->settings.longestDelay = std::max(longest, d->settings.firstDelay);
}

void VexLinkSupervisor::start(const QString &host, int port)
{
    d->suspicion.stop();
    {
        const Private::Lock lock(d->mutex);
        d->host = host;
        d->port = port;
        d->watching = true;
        ++d->watchSerial;
    }
    d->bell->ring();
}

void VexLinkSupervisor::stop()
{
    {
        const Private::Lock lock(d->mutex);
        d->watching = false;
        ++d->watchSerial;
    }
    d->bell->ring();
    if (d->state != State::Stopped) {
        d->enter(State::Stopped, tr("no longer watched"), QDateTime::currentDateTime());
    }
}

void VexLinkSupervisor::retryNow()
{
    {
        const Private::Lock lock(d->mutex);
        d->retry = true;
    }
    d->bell->ring();
}

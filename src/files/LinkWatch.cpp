#include "LinkWatch.h"

#include <QPointer>
#include <QThreadPool>
#include <QTimer>

#include <chrono>

#include "corba/FcpAppCORBA.h"

using namespace std::chrono_literals;

namespace {

/// Attempts to connect, which may take longer than a dialog is there.
QThreadPool &attempts()
{
    static QThreadPool pool;
    return pool;
}

} // namespace

LinkWatch::LinkWatch(FcpAppCORBA *controller, QObject *parent)
    : QObject(parent)
    , m_controller(controller)
    , m_timer(new QTimer(this))
{
    m_timer->setInterval(1s);
    connect(m_timer, &QTimer::timeout, this, &LinkWatch::look);
    if (m_controller) {
        m_lost = !m_controller->isConnected();
        // It comes from the thread whose call failed.
        connect(m_controller, &FcpAppCORBA::disconnectCatched, this, &LinkWatch::lose,
                Qt::QueuedConnection);
    }
    if (m_lost) {
        m_timer->start();
    }
}

LinkWatch::~LinkWatch() = default;

bool LinkWatch::isRetrying() const
{
    return m_retrying;
}

void LinkWatch::lose()
{
    if (m_controller->isConnected()) {
        return; // somebody was faster in connecting than this in being told
    }
    m_timer->start();
    if (!m_lost) {
        m_lost = true;
        Q_EMIT lost();
    }
}

void LinkWatch::look()
{
    if (m_lost && m_controller->isConnected()) {
        m_timer->stop();
        m_lost = false;
        Q_EMIT restored();
    }
}

void LinkWatch::retry()
{
    look();
    if (!m_lost || m_retrying) {
        return;
    }
    m_retrying = true;
    // The proxy must not go before the attempt has ended. The dialog may.
    connect(
        m_controller, &FcpAppCORBA::ending, m_controller, [] { attempts().waitForDone(); },
        Qt::DirectConnection);
    attempts().start([controller = m_controller, self = QPointer<LinkWatch>(this)] {
        controller->connectToFCP(controller->getHost(), controller->getPort());
        QMetaObject::invokeMethod(
            controller,
            [self] {
                if (self) {
                    self->endRetry();
                }
            },
            Qt::QueuedConnection);
    });
}

void LinkWatch::endRetry()
{
    m_retrying = false;
    look();
    if (m_lost) {
        Q_EMIT retryFailed(m_controller->lastError());
    }
}

#include "Link.h"

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A range of ports that differs between processes that run at the same time.
QString listenEndpoint()
{
    constexpr int firstPort = 10'000;
    constexpr int rangeSize = 20;
    constexpr int ranges = 1000;
    const int port = firstPort + int(::getpid() % ranges) * rangeSize;
    return u"iiop://:%1/portspan=%2"_s.arg(port).arg(rangeSize);
}

} // namespace

Link::Link(std::chrono::milliseconds callTimeOut, const QVector<QString> &orbArguments)
{
    const QVector<QString> arguments =
        QVector<QString> {u"-ORBListenEndpoints"_s, listenEndpoint(),
                          u"-ORBclientCallTimeOutPeriod"_s, QString::number(callTimeOut.count())}
        + orbArguments;
    if (!BiDirectionalCORBA::initializeInstance(arguments)) {
        qFatal("No ORB: %s", qPrintable(BiDirectionalCORBA::lastError()));
    }
    FcpAppCORBA::initializeInstance(BiDirectionalCORBA::instance());
    QObject::connect(
        proxy(), &FcpAppCORBA::disconnectCatched, &m_context,
        [this](int reason) {
            ++m_losses;
            m_otherReason = m_otherReason || reason != -1;
        },
        Qt::DirectConnection);
    QObject::connect(proxy(), &FcpAppCORBA::fcpEventReceived, &m_context,
                     [this](int event) { m_events.append(event); });
}

Link::~Link()
{
    delete FcpAppCORBA::instance();
    BiDirectionalCORBA::deleteInstance();
}

int Link::losses() const
{
    return m_otherReason ? -1 : m_losses.load();
}

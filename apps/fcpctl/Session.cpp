#include "Session.h"

#include "Text.h"

#include <corba/BiDirectionalCORBA.h>

using namespace Qt::StringLiterals;

QString Address::toString() const
{
    return u"%1:%2"_s.arg(printable(host)).arg(port);
}

Session::Session(const Address &address)
    : m_address(address)
{
    QVector<QString> words;
    if (address.timeOut) {
        words << u"-ORBclientCallTimeOutPeriod"_s << QString::number(address.timeOut->count());
    }
    if (!BiDirectionalCORBA::initializeInstance(words)) {
        throw Failure {Exit::NoLink, printable(BiDirectionalCORBA::lastError())};
    }
    FcpAppCORBA::initializeInstance(BiDirectionalCORBA::instance());
    m_controller = FcpAppCORBA::instance();
    if (!m_controller->connectToFCP(address.host, address.port)) {
        const QString reason = printable(m_controller->lastError());
        delete m_controller;
        BiDirectionalCORBA::deleteInstance();
        throw Failure {Exit::NoLink, reason};
    }
    m_linkSerial = m_controller->linkSerial();
}

Session::~Session()
{
    delete m_controller;
    BiDirectionalCORBA::deleteInstance();
}

bool Session::isLinkUp() const
{
    return m_controller->isConnected() && m_controller->linkSerial() == m_linkSerial;
}

Failure Session::linkLost() const
{
    return {Exit::NoLink, printable(m_controller->lastError())};
}

void Session::requireLink() const
{
    if (!isLinkUp()) {
        throw linkLost();
    }
}

#include "ConnectionGate.h"

#include <QtGlobal>

#include <cstring>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <omniORB4/CORBA.h>

#include <omniORB4/IOP_C.h>
#include <omniORB4/IOP_S.h>
#include <omniORB4/omniInterceptors.h>

// The ORB's own headers of a connection need what stands above them.
#include <omniORB4/internal/giopStrand.h>

#include <omniORB4/internal/giopStream.h>

#include <omniORB4/internal/GIOP_C.h>
#include <omniORB4/internal/GIOP_S.h>
#include <omniORB4/minorCode.h>
#include <omniORB4/tcpConnection.h>

namespace {

thread_local const QByteArray *t_bound = nullptr;
thread_local ConnectionGate::Registration *t_registration = nullptr;

/// The socket of a connection, or -1 when it is none over TCP.
int socketOf(const omni::giopStrand &strand)
{
    const auto *tcp = dynamic_cast<omni::tcpConnection *>(strand.connection);
    return tcp ? tcp->handle() : -1;
}

/// Lets the kernel find a peer that is gone without a word (cable pulled, power lost) on a
/// connection that carries nothing: after 10 s of silence, 3 probes 5 s apart. The ORB sets no
/// timer of its own on a connection.
void keepAlive(int socket)
{
    const auto set = [socket](int level, int option, int value) {
        ::setsockopt(socket, level, option, &value, sizeof value);
    };
    set(SOL_SOCKET, SO_KEEPALIVE, 1);
    set(IPPROTO_TCP, TCP_KEEPIDLE, 10);
    set(IPPROTO_TCP, TCP_KEEPINTVL, 5);
    set(IPPROTO_TCP, TCP_KEEPCNT, 3);
}

CORBA::Boolean openConnection(omni::omniInterceptors::clientOpenConnection_T::info_T &info)
{
    if (t_bound) {
        info.reject = true;
        info.why = "the client is not registered on a new connection";
        return true;
    }
    if (t_registration) {
        t_registration->countConnection();
    }
    keepAlive(socketOf(info.giop_c.strand()));
    return true;
}

CORBA::Boolean sendRequest(omni::omniInterceptors::clientSendRequest_T::info_T &info)
{
    const char *connection = info.myaddress();
    if (t_registration && connection && std::strcmp(info.operation(), "registerApp") == 0) {
        t_registration->setConnection(connection, LinkSocket::of(socketOf(info.giop_c.strand())));
    }
    if (t_bound && (!connection || *t_bound != connection)) {
        // Nothing has been sent: marked idle, the stream goes back unused. Otherwise the ORB would
        // take the connection for broken and close it on those who may use it.
        info.giop_c.state(omni::IOP_C::Idle);
        throw CORBA::TRANSIENT(omni::TRANSIENT_ConnectionClosed, CORBA::COMPLETED_NO);
    }
    return true;
}

CORBA::Boolean acceptConnection(omni::omniInterceptors::serverAcceptConnection_T::info_T &info)
{
    info.reject = true;
    info.why = "callbacks come over the connection that this client opened";
    return true;
}

CORBA::Boolean receiveRequest(omni::omniInterceptors::serverReceiveRequest_T::info_T &info)
{
    if (!info.giop_s.strand().isClient()) {
        throw CORBA::NO_PERMISSION(0, CORBA::COMPLETED_NO);
    }
    return true;
}

} // namespace

void ConnectionGate::install()
{
    omni::omniInterceptors *interceptors = omniORB::getInterceptors();
    interceptors->clientOpenConnection.add(openConnection);
    interceptors->clientSendRequest.add(sendRequest);
    interceptors->serverAcceptConnection.add(acceptConnection);
    interceptors->serverReceiveRequest.add(receiveRequest);
}

ConnectionGate::BoundCall::BoundCall(const QByteArray &connection)
{
    Q_ASSERT(!t_bound);
    t_bound = &connection;
}

ConnectionGate::BoundCall::~BoundCall()
{
    t_bound = nullptr;
}

ConnectionGate::Registration::Registration()
{
    Q_ASSERT(!t_registration);
    t_registration = this;
}

ConnectionGate::Registration::~Registration()
{
    t_registration = nullptr;
}

#include "CallContext.h"

#include <poll.h>

#include <omniORB4/CORBA.h>
#include <omniORB4/giopEndpoint.h>
#include <omniORB4/omniInterceptors.h>

namespace {

thread_local CallContext *theCall = nullptr;

CORBA::Boolean onSendReply(omni::omniInterceptors::serverSendReply_T::info_T &)
{
    if (theCall) {
        theCall->beforeAnswer();
    }
    return true;
}

} // namespace

CallContext::CallContext(std::shared_ptr<Connection> from, omni::giopConnection *giopConnection)
    : connection(std::move(from))
    , m_giopConnection(giopConnection)
{
    theCall = this;
}

CallContext::~CallContext()
{
    if (m_takesLong) {
        --connection->longCalls;
    }
    theCall = nullptr;
}

void CallContext::install()
{
    omniORB::getInterceptors()->serverSendReply.add(onSendReply);
}

CallContext *CallContext::current()
{
    return theCall;
}

void CallContext::expectToTakeLong()
{
    if (!m_takesLong) {
        m_takesLong = true;
        ++connection->longCalls;
        m_giopConnection->setSelectable(1);
    }
}

void CallContext::beforeAnswer()
{
    if (delay.count() > 0) {
        expectToTakeLong();
        pollfd state = {connection->socket, POLLRDHUP, 0};
        ::poll(&state, 1, static_cast<int>(delay.count()));
    }
    // A quick call beside a long one: the ORB has stopped to watch the connection for its sake.
    if (connection->longCalls > 0) {
        m_giopConnection->setSelectable(1);
    }
}

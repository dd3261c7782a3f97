#include "AppFcpCORBAImpl.h"

#include "UpcallQueue.h"

AppFcpCORBAImpl::AppFcpCORBAImpl(std::shared_ptr<UpcallQueue> upcalls)
    : m_upcalls(std::move(upcalls))
{
}

AppFcpCORBAImpl::~AppFcpCORBAImpl() = default;

void AppFcpCORBAImpl::Event(AppFcpEvent event)
{
    if (m_upcalls) {
        m_upcalls->post(this, UpcallQueue::Kind::Event, static_cast<int>(event));
    } else {
        Q_EMIT fcpEventReceived(static_cast<int>(event));
    }
}

void AppFcpCORBAImpl::ShutDown(CORBA::Boolean canCancel)
{
    if (m_upcalls) {
        m_upcalls->post(this, UpcallQueue::Kind::ShutDown, canCancel);
    } else {
        Q_EMIT fcpShutDownReceived(canCancel);
    }
}

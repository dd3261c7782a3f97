#include "AppFcpCORBAImpl.h"

void AppFcpCORBAImpl::Event(AppFcpEvent event)
{
    Q_EMIT fcpEventReceived(static_cast<int>(event));
}

void AppFcpCORBAImpl::ShutDown(CORBA::Boolean canCancel)
{
    Q_EMIT fcpShutDownReceived(canCancel);
}

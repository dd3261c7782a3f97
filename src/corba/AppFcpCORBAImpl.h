#pragma once

#include <QObject>

#include <FcpInterfaces.hh>

#include "VexExport.h"

/**
 * The object that the controller calls back.
 *
 * FcpAppCORBA owns the only one and activates it in the "bidir" POA. The controller's calls arrive
 * on a thread of the ORB, in the order in which they were sent, and both signals are emitted there:
 * connect them with a context object that lives on the thread you want them on.
 */
class VEX_EXPORT AppFcpCORBAImpl : public QObject, public POA_AppFcpInterfaceCORBA
{
    Q_OBJECT

public:
    AppFcpCORBAImpl() = default;
    ~AppFcpCORBAImpl() override = default;

    void Event(AppFcpEvent event) override;
    void ShutDown(CORBA::Boolean canCancel) override;

Q_SIGNALS:
    /** Something changed on the instrument; @p event is an AppFcpEvent. */
    void fcpEventReceived(int event);
    /** The controller asks this application to close; it may refuse when @p canCancel is true. */
    void fcpShutDownReceived(bool canCancel);
};

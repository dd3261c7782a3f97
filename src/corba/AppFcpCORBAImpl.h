#pragma once

#include <QObject>

#include <memory>

#include <FcpInterfaces.hh>

#include "VexExport.h"

class UpcallQueue;

/**
 * The object that the controller calls back.
 *
 * FcpAppCORBA owns the only one and activates it in the "bidir" POA. Both signals are emitted on
 * the ORB thread (BiDirectionalCORBA), in the order of the controller's calls: connect them with a
 * context object that lives on the thread you want them on. A slot on the ORB thread may call the
 * controller; the signals that follow wait for it.
 */
class VEX_EXPORT AppFcpCORBAImpl : public QObject, public POA_AppFcpInterfaceCORBA
{
    Q_OBJECT

public:
    /** Emits through @p upcalls; without it, right on the thread that reads the connection. */
    explicit AppFcpCORBAImpl(std::shared_ptr<UpcallQueue> upcalls = nullptr);
    ~AppFcpCORBAImpl() override;

    void Event(AppFcpEvent event) override;
    void ShutDown(CORBA::Boolean canCancel) override;

Q_SIGNALS:
    /** Something changed on the instrument; @p event is an AppFcpEvent. */
    void fcpEventReceived(int event);
    /** The controller asks this application to close; it may refuse when @p canCancel is true. */
    void fcpShutDownReceived(bool canCancel);

private:
    const std::shared_ptr<UpcallQueue> m_upcalls;
};

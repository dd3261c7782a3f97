#include <QCoreApplication>

#include <corba/AppFcpCORBAImpl.h>
#include <corba/BiDirectionalCORBA.h>
#include <corba/FcpAppCORBA.h>
#include <corba/FcpRemoteFile.h>
#include <corba/VexLinkSupervisor.h>
#include <files/QvexFileMover.h>
#include <files/QvexFileMoverThread.h>
#include <properties/PropertiesManager.h>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    BiDirectionalCORBA::initializeInstance();
    FcpAppCORBA::initializeInstance(BiDirectionalCORBA::instance());
    const bool isNew = PropertiesManager::instance()->registerStatusProperty(1, {}, {}, 1);
    const int result = QvexFileMover(FcpAppCORBA::instance()).uploadFile({}, {}, false);
    delete FcpAppCORBA::instance();
    BiDirectionalCORBA::deleteInstance();
    return result == 1 && isNew ? 0 : 1; // there is no such file, and no controller
}

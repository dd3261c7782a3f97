#include "LateThread.h"

#include <QDeadlineTimer>

#include <chrono>

#include "corba/FcpAppCORBA.h"

using namespace std::chrono_literals;

namespace {

/// One that is in no call has ended by then.
constexpr auto Grace = 10ms;

} // namespace

void LateThread::letGo(std::unique_ptr<QThread> thread, FcpAppCORBA *controller)
{
    if (!thread || thread->wait(QDeadlineTimer(Grace))) {
        return;
    }
    QThread *late = thread.release();
    QObject::connect(
        controller, &FcpAppCORBA::ending, late, [late] { late->wait(); }, Qt::DirectConnection);
    QObject::connect(late, &QThread::finished, late, &QObject::deleteLater);
    if (late->isFinished()) { // before it was listened to
        late->deleteLater();
    }
}

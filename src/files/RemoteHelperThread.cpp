#include "RemoteHelperThread.h"

#include "QvexRemoteFileModel.h"
#include "corba/FcpAppCORBA.h"

namespace {

bool isUsable(const QString &path)
{
    return !path.isEmpty() && !path.contains(QChar::Null);
}

} // namespace

RemoteHelperThread::RemoteHelperThread(FcpAppCORBA *controller, QObject *parent)
    : QThread(parent)
    , m_controller(controller)
{
    setObjectName(QStringLiteral("VexRemoteHelper"));
}

RemoteHelperThread::~RemoteHelperThread()
{
    cancel();
    wait();
}

void RemoteHelperThread::setTask(Kind kind, const QVector<QString> &sources,
                                 const QString &destination)
{
    wait(); // it may have reported its end and not yet ended
    m_kind = kind;
    m_sources = sources;
    m_destination = destination;
    m_cancelled = false;
}

void RemoteHelperThread::cancel()
{
    m_cancelled = true;
}

void RemoteHelperThread::run()
{
    for (const QString &source : std::as_const(m_sources)) {
        if (m_cancelled) {
            report(QvexFileModel::Cancelled, {}, {}, true);
            return;
        }
        const long result = carryOut(source);
        report(result, source, m_destination, result != QvexFileModel::Done);
        if (result != QvexFileModel::Done) {
            return;
        }
    }
    report(QvexFileModel::Done, {}, {}, true);
}

/// The proxy gives 0 for a call that failed, too: a change of link tells the two apart.
long RemoteHelperThread::carryOut(const QString &source) const
{
    if (!isUsable(source) || (m_kind != Kind::Remove && !isUsable(m_destination))) {
        return QvexRemoteFileModel::NoPath;
    }
    const quint64 link = m_controller->linkSerial();
    const long result = call(source);
    const bool answered = link != 0 && m_controller->linkSerial() == link;
    return result == 0 && !answered ? long(QvexRemoteFileModel::LinkLost) : result;
}

long RemoteHelperThread::call(const QString &source) const
{
    switch (m_kind) {
    case Kind::Remove:
        return m_controller->deleteFileDirectory(source);
    case Kind::Copy:
        return m_controller->copyFileDirectory(source, m_destination);
    case Kind::Move:
        return m_controller->moveFileDirectory(source, m_destination);
    }
    Q_UNREACHABLE();
}

void RemoteHelperThread::report(long result, const QString &source, const QString &destination,
                                bool final)
{
    switch (m_kind) {
    case Kind::Remove:
        Q_EMIT removeComplete(result, source, final);
        break;
    case Kind::Copy:
        Q_EMIT copyComplete(result, source, destination, final);
        break;
    case Kind::Move:
        Q_EMIT moveComplete(result, source, destination, final);
        break;
    }
}

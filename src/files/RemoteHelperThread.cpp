#include "RemoteHelperThread.h"

#include "FilePaths.h"
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
    if (m_kind == Kind::MakeFolder || m_kind == Kind::Rename) {
        runOne();
        return;
    }
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

void RemoteHelperThread::runOne()
{
    const QString source = m_sources.value(0);
    m_made.clear();
    const long result = carryOut(source);
    if (m_kind == Kind::Rename) {
        Q_EMIT renameComplete(result, source, m_destination);
    } else {
        Q_EMIT makeFolderComplete(result, source, result == 0 ? m_made : QString());
    }
}

/// The proxy gives 0 for a call that failed, too: a change of link tells the two apart.
long RemoteHelperThread::carryOut(const QString &source)
{
    const bool needsDestination = m_kind != Kind::Remove && m_kind != Kind::MakeFolder;
    if (!isUsable(source) || (needsDestination && !isUsable(m_destination))) {
        return QvexRemoteFileModel::NoPath;
    }
    const quint64 link = m_controller->linkSerial();
    const long result = call(source);
    const bool answered = link != 0 && m_controller->linkSerial() == link;
    const bool saysLittle = result == 0 || m_kind == Kind::MakeFolder;
    return saysLittle && !answered ? long(QvexRemoteFileModel::LinkLost) : result;
}

long RemoteHelperThread::call(const QString &source)
{
    switch (m_kind) {
    case Kind::Remove:
        return m_controller->deleteFileDirectory(source);
    case Kind::Copy:
        return m_controller->copyFileDirectory(source, m_destination);
    case Kind::Move:
        return m_controller->moveFileDirectory(source, m_destination);
    case Kind::MakeFolder:
        return makeFolder(source);
    case Kind::Rename:
        return rename(source);
    }
    Q_UNREACHABLE();
}

long RemoteHelperThread::makeFolder(const QString &parent)
{
    const QString made = m_controller->newDirectory(parent);
    const QString name = made.sliced(made.lastIndexOf(u'/') + 1);
    m_made = name.isEmpty() ? QString() : FilePaths::join(parent, name);
    return name.isEmpty() ? long(QvexRemoteFileModel::NotMade) : 0L;
}

long RemoteHelperThread::rename(const QString &path) const
{
    const QString name = path.sliced(path.lastIndexOf(u'/') + 1);
    return name == m_destination
        ? 0L
        : m_controller->renameFileDirectory(FilePaths::parentOf(path), name, m_destination);
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
    case Kind::MakeFolder:
    case Kind::Rename:
        break;
    }
}

#include "QvexFileMoverThread.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QThread>

#include "QvexFileMover.h"
#include "corba/FcpAppCORBA.h"

Q_DECLARE_LOGGING_CATEGORY(lcMover)

namespace {

/// Where a transfer of @p source into @p folder writes.
QString targetOf(const QString &source, const QString &folder)
{
    const qsizetype slash = source.lastIndexOf(u'/');
    return slash < 0 ? folder + u'/' + source : folder + source.mid(slash);
}

} // namespace

QvexFileMoverThread::QvexFileMoverThread(FcpAppCORBA *controller)
    : m_controller(controller)
    , m_mover(std::make_unique<QvexFileMover>(controller))
{
    connect(m_mover.get(), &QvexFileMover::progress, this, &QvexFileMoverThread::progress,
            Qt::DirectConnection);
}

QvexFileMoverThread::~QvexFileMoverThread()
{
    cancelThread();
    if (m_thread) {
        m_thread->wait();
    }
}

void QvexFileMoverThread::uploadFiles(const QVector<QString> &localSources,
                                      const QString &remoteFolder, bool overwrite)
{
    start(localSources, remoteFolder, overwrite, &QvexFileMoverThread::runUpload);
}

void QvexFileMoverThread::downloadFiles(const QVector<QString> &remoteSources,
                                        const QString &localFolder, bool overwrite)
{
    start(remoteSources, localFolder, overwrite, &QvexFileMoverThread::runDownload);
}

void QvexFileMoverThread::start(const QVector<QString> &sources, const QString &folder,
                                bool overwrite, void (QvexFileMoverThread::*body)())
{
    if (!begin()) {
        qCWarning(lcMover) << "a transfer is under way; the one into" << folder << "was not begun";
        return;
    }
    if (m_thread) {
        m_thread->wait(); // of a run that has completed
    }
    m_sources = sources;
    m_folder = folder;
    m_overwrite = overwrite;
    m_home = thread();

    m_thread = new QThread;
    m_thread->setObjectName(QStringLiteral("VexFileMover"));
    moveToThread(m_thread);
    connect(m_thread, &QThread::started, this, body);
    // Direct: it must not depend on an event loop of the thread that made the QThread.
    connect(this, &QvexFileMoverThread::complete, m_thread, &QThread::quit, Qt::DirectConnection);
    connect(m_thread, &QThread::finished, this, &QvexFileMoverThread::finished,
            Qt::DirectConnection);
    connect(m_thread, &QThread::finished, m_thread, &QObject::deleteLater);
    m_thread->start();
}

void QvexFileMoverThread::finished()
{
    moveToThread(m_home);
}

bool QvexFileMoverThread::begin()
{
    const QMutexLocker locker(&m_activeMutex);
    return !std::exchange(m_active, true);
}

void QvexFileMoverThread::end()
{
    const QMutexLocker locker(&m_activeMutex);
    m_active = false;
    m_cancelled = false;
}

bool QvexFileMoverThread::exists(const QString &src, const QString &folder, bool local)
{
    const QString path = targetOf(src, folder);
    if (local) {
        return QFileInfo::exists(path);
    }
    long handle = 0;
    const FileSystemResult result = m_controller->openFile(path, true, false, handle);
    m_controller->closeFile(handle);
    return result == FS_EXISTS;
}

void QvexFileMoverThread::abort()
{
    const QMutexLocker locker(&m_activeMutex);
    if (m_active) {
        m_cancelled = true;
        m_mover->abort();
    }
}

QString QvexFileMoverThread::lastError() const
{
    return m_mover->lastError();
}

void QvexFileMoverThread::cancelThread()
{
    m_cancelled = true;
}

void QvexFileMoverThread::runUpload()
{
    run(&QvexFileMover::uploadFile);
}

void QvexFileMoverThread::runDownload()
{
    run(&QvexFileMover::downloadFile);
}

void QvexFileMoverThread::run(int (QvexFileMover::*transfer)(const QString &, const QString &,
                                                             bool))
{
    begin(); // unless start() has done so
    int result = 1;
    for (const QString &source : std::as_const(m_sources)) {
        if (m_cancelled) {
            result = 3;
            break;
        }
        result = (m_mover.get()->*transfer)(source, targetOf(source, m_folder), m_overwrite);
        QCoreApplication::processEvents();
    }
    end();
    Q_EMIT complete(result);
}

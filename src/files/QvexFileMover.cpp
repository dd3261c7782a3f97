#include "QvexFileMover.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include <array>
#include <chrono>

#include "corba/FcpAppCORBA.h"
#include "corba/FcpRemoteFile.h"

Q_LOGGING_CATEGORY(lcMover, "vex.files.mover", QtInfoMsg)

namespace {

enum Result { Done = 0, Failed = 1, Exists = 2, Aborted = 3 };

constexpr auto ProgressInterval = std::chrono::milliseconds(50);

/// Answers without a single byte that are borne in a row before the controller counts as broken.
constexpr int EmptyAnswersBorne = 1000;

} // namespace

/**
 * One run of uploadFile() or downloadFile(): its counters, its progress signals, and both its
 * files, which close when it goes.
 */
class QvexFileMover::Transfer
{
public:
    Transfer(QvexFileMover *mover, const QString &source, const QString &localPath)
        : local(localPath)
        , remote(mover->m_controller)
        , m_mover(mover)
        , m_source(source)
    {
        m_mover->m_done = 0;
        m_mover->m_total = -1;
        m_mover->setError(QString());
        m_mover->m_state = State::Running;
    }
    ~Transfer() { m_mover->m_state = State::Idle; }

    Transfer(const Transfer &) = delete;
    Transfer &operator=(const Transfer &) = delete;

    bool isAborted() const { return m_mover->m_state == State::Aborting; }
    void setTotal(qint64 total) { m_mover->m_total = total; }
    qint64 done() const { return m_mover->m_done; }

    void carried(qint64 bytes)
    {
        m_mover->m_done += bytes;
        const auto now = std::chrono::steady_clock::now();
        if (now - m_lastProgress >= ProgressInterval) {
            m_lastProgress = now;
            Q_EMIT m_mover->progress(m_source, m_mover->m_done, m_mover->m_total);
        }
    }

    QFile local;
    FcpRemoteFile remote;
    std::array<char, ChunkSize> buffer;

private:
    QvexFileMover *const m_mover;
    const QString m_source;
    std::chrono::steady_clock::time_point m_lastProgress = std::chrono::steady_clock::now();
};

QvexFileMover::QvexFileMover(FcpAppCORBA *controller)
    : QvexFileMover(controller, QString(), QString())
{
}

QvexFileMover::QvexFileMover(FcpAppCORBA *controller, const QString &src, const QString &dst)
    : QvexFileMover(controller, src, dst, false)
{
}

QvexFileMover::QvexFileMover(FcpAppCORBA *controller, const QString &src, const QString &dst,
                             bool overwrite)
    : m_controller(controller)
    , m_src(src)
    , m_dst(dst)
    , m_overwrite(overwrite)
{
}

QvexFileMover::~QvexFileMover() = default;

QString QvexFileMover::getSrc() const
{
    return m_src;
}

QString QvexFileMover::getDst() const
{
    return m_dst;
}

void QvexFileMover::setDst(const QString &dst)
{
    m_dst = dst;
}

bool QvexFileMover::getOverwrite() const
{
    return m_overwrite;
}

void QvexFileMover::setOverwrite(bool overwrite)
{
    m_overwrite = overwrite;
}

void QvexFileMover::abort()
{
    State running = State::Running;
    m_state.compare_exchange_strong(running, State::Aborting);
}

void QvexFileMover::runUpload()
{
    Q_EMIT complete(uploadFile(m_src, m_dst, m_overwrite));
}

void QvexFileMover::runDownload()
{
    Q_EMIT complete(downloadFile(m_src, m_dst, m_overwrite));
}

QString QvexFileMover::lastError() const
{
    const QMutexLocker locker(&m_errorMutex);
    return m_lastError;
}

void QvexFileMover::setError(const QString &reason)
{
    const QMutexLocker locker(&m_errorMutex);
    m_lastError = reason;
}

int QvexFileMover::fail(const QString &reason)
{
    qCDebug(lcMover).noquote() << reason;
    setError(reason);
    return Failed;
}

int QvexFileMover::failRemotely(const QString &reason)
{
    const QString linkReason = m_controller->isConnected() ? QString() : m_controller->lastError();
    return fail(linkReason.isEmpty() ? reason : linkReason);
}

/// Runs a transfer, whose files are closed when it returns, whatever it throws.
template<typename Body>
int QvexFileMover::guarded(const QString &source, Body &&body)
{
    int result = Failed;
    try {
        result = body();
    } catch (const std::exception &exception) {
        fail(tr("%1 was not carried: %2").arg(source, QLatin1String(exception.what())));
    } catch (...) {
        fail(tr("%1 was not carried: an unknown exception").arg(source));
    }
    Q_EMIT progress(source, m_done, m_total);
    return result;
}

int QvexFileMover::uploadFile(const QString &localSrc, const QString &remoteDst, bool overwrite)
{
    return guarded(localSrc, [&] {
        Transfer transfer(this, localSrc, localSrc);
        if (!transfer.local.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            return fail(tr("%1 cannot be read: %2").arg(localSrc, transfer.local.errorString()));
        }
        switch (transfer.remote.open(remoteDst, true, overwrite)) {
        case FS_OK:
            return pushContents(transfer);
        case FS_EXISTS:
            setError(tr("%1 exists on the instrument").arg(remoteDst));
            return int(Exists);
        default:
            return failRemotely(tr("the instrument cannot write %1").arg(remoteDst));
        }
    });
}

int QvexFileMover::pushContents(Transfer &transfer)
{
    const QString source = transfer.local.fileName();
    const qint64 sizeAtStart = transfer.local.isSequential() ? -1 : transfer.local.size();
    transfer.setTotal(sizeAtStart);
    while (!transfer.isAborted()) {
        const qint64 length = transfer.local.read(transfer.buffer.data(), ChunkSize);
        if (length < 0) {
            return fail(tr("%1 cannot be read: %2").arg(source, transfer.local.errorString()));
        }
        if (length == 0) {
            return finishUpload(transfer, sizeAtStart);
        }
        if (transfer.remote.push(transfer.buffer.data(), static_cast<long>(length)) != FS_OK) {
            return failRemotely(
                tr("the instrument could not store what was sent of %1").arg(source));
        }
        transfer.carried(length);
    }
    return abortedAt(transfer);
}

int QvexFileMover::finishUpload(Transfer &transfer, qint64 expectedSize)
{
    transfer.local.close();
    // What the controller could not keep it says here at the latest.
    switch (transfer.remote.close()) {
    case FS_OK:
        break;
    case FS_EXISTS:
        setError(tr("the destination has appeared on the instrument meanwhile"));
        return Exists;
    default:
        return failRemotely(tr("the instrument could not store the file"));
    }
    if (transfer.done() < expectedSize) {
        return fail(tr("%1 has shrunk while it was read").arg(transfer.local.fileName()));
    }
    return Done;
}

int QvexFileMover::abortedAt(const Transfer &transfer)
{
    setError(tr("aborted after %1 bytes").arg(transfer.done()));
    return Aborted;
}

int QvexFileMover::downloadFile(const QString &remoteSrc, const QString &localDst, bool overwrite)
{
    return guarded(remoteSrc, [&] {
        Transfer transfer(this, remoteSrc, localDst);
        const int prepared = openLocalTarget(transfer.local, overwrite);
        if (prepared != Done) {
            return prepared;
        }
        if (transfer.remote.open(remoteSrc, false, false) != FS_OK) {
            return failRemotely(tr("the instrument cannot read %1").arg(remoteSrc));
        }
        return pullContents(transfer);
    });
}

int QvexFileMover::openLocalTarget(QFile &target, bool overwrite)
{
    const QString path = target.fileName();
    if (target.exists()) {
        if (!overwrite) {
            setError(tr("%1 exists").arg(path));
            return Exists;
        }
        if (!target.remove()) {
            return fail(tr("%1 cannot be removed: %2").arg(path, target.errorString()));
        }
    }
    constexpr auto mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    if (target.open(mode)) {
        return Done;
    }
    if (!QDir().mkpath(QFileInfo(path).path())) {
        return fail(tr("the folder of %1 cannot be made").arg(path));
    }
    if (!target.open(mode)) {
        return fail(tr("%1 cannot be written: %2").arg(path, target.errorString()));
    }
    return Done;
}

int QvexFileMover::pullContents(Transfer &transfer)
{
    const QString target = transfer.local.fileName();
    FileSystemResult result = FS_OK;
    int emptyAnswers = 0;
    while (result == FS_OK && emptyAnswers < EmptyAnswersBorne) {
        if (transfer.isAborted()) {
            return abortedAt(transfer);
        }
        QByteArrayView bytes;
        result = transfer.remote.pull(ChunkSize, bytes);
        if (transfer.local.write(bytes.data(), bytes.size()) != bytes.size()) {
            return fail(tr("%1 cannot be written: %2").arg(target, transfer.local.errorString()));
        }
        emptyAnswers = bytes.isEmpty() ? emptyAnswers + 1 : 0;
        transfer.carried(bytes.size());
    }
    transfer.local.close();
    if (result != FS_NOMORE) {
        return failRemotely(tr("the instrument could not read the file to its end"));
    }
    if (transfer.local.error() != QFileDevice::NoError) {
        return fail(tr("%1 cannot be written: %2").arg(target, transfer.local.errorString()));
    }
    return Done;
}

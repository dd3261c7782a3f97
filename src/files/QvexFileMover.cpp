#include "QvexFileMover.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include <array>
#include <chrono>

#include "corba/FcpRemoteFile.h"

Q_LOGGING_CATEGORY(lcMover, "vex.files.mover", QtInfoMsg)

namespace {

enum Result { Done = 0, Failed = 1, Exists = 2, Aborted = 3 };

constexpr auto ProgressInterval = std::chrono::milliseconds(50);

/// Answers without a single byte that are borne in a row before the controller counts as broken.
constexpr int EmptyAnswersBorne = 1000;

/// Runs a transfer; whatever it throws, its files are closed by then, and it has failed.
template<typename Body>
int guarded(const QString &source, Body &&body)
{
    try {
        return body();
    } catch (const std::exception &exception) {
        qCDebug(lcMover) << "moving" << source << "failed:" << exception.what();
    } catch (...) {
        qCDebug(lcMover) << "moving" << source << "failed by an unknown exception";
    }
    return Failed;
}

/// Opens @p target for writing a new file, with its missing folders.
int openLocalTarget(QFile &target, bool overwrite)
{
    if (target.exists()) {
        if (!overwrite) {
            return Exists;
        }
        if (!target.remove()) {
            qCDebug(lcMover) << "cannot remove" << target.fileName() << target.errorString();
            return Failed;
        }
    }
    if (!QDir().mkpath(QFileInfo(target.fileName()).path())) {
        qCDebug(lcMover) << "cannot make the folder of" << target.fileName();
        return Failed;
    }
    if (!target.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        qCDebug(lcMover) << "cannot write" << target.fileName() << target.errorString();
        return Failed;
    }
    return Done;
}

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
        m_mover->m_state = State::Running;
    }
    ~Transfer()
    {
        m_mover->m_state = State::Idle;
        Q_EMIT m_mover->progress(m_source, m_done, m_total);
    }

    Transfer(const Transfer &) = delete;
    Transfer &operator=(const Transfer &) = delete;

    bool isAborted() const { return m_mover->m_state == State::Aborting; }
    void setTotal(qint64 total) { m_total = total; }
    qint64 done() const { return m_done; }

    void carried(qint64 bytes)
    {
        m_done += bytes;
        const auto now = std::chrono::steady_clock::now();
        if (now - m_lastProgress >= ProgressInterval) {
            m_lastProgress = now;
            Q_EMIT m_mover->progress(m_source, m_done, m_total);
        }
    }

    QFile local;
    FcpRemoteFile remote;
    std::array<char, ChunkSize> buffer;

private:
    QvexFileMover *const m_mover;
    const QString m_source;
    qint64 m_done = 0;
    qint64 m_total = -1;
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

int QvexFileMover::uploadFile(const QString &localSrc, const QString &remoteDst, bool overwrite)
{
    return guarded(localSrc, [&] {
        Transfer transfer(this, localSrc, localSrc);
        if (!transfer.local.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            qCDebug(lcMover) << "cannot read" << localSrc << transfer.local.errorString();
            return int(Failed);
        }
        const FileSystemResult opened = transfer.remote.open(remoteDst, true, overwrite);
        if (opened != FS_OK) {
            return int(opened == FS_EXISTS ? Exists : Failed);
        }
        return pushContents(transfer);
    });
}

int QvexFileMover::pushContents(Transfer &transfer)
{
    const qint64 sizeAtStart = transfer.local.isSequential() ? -1 : transfer.local.size();
    transfer.setTotal(sizeAtStart);
    while (!transfer.isAborted()) {
        const qint64 length = transfer.local.read(transfer.buffer.data(), ChunkSize);
        if (length < 0) {
            qCDebug(lcMover) << "cannot read" << transfer.local.fileName()
                             << transfer.local.errorString();
            return Failed;
        }
        if (length == 0) {
            transfer.local.close();
            // What the controller could not keep it says here at the latest. A source that has
            // shrunk meanwhile was not carried whole either.
            return transfer.remote.close() == FS_OK && transfer.done() >= sizeAtStart ? Done
                                                                                      : Failed;
        }
        if (transfer.remote.push(transfer.buffer.data(), static_cast<long>(length)) != FS_OK) {
            return Failed;
        }
        transfer.carried(length);
    }
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
            return int(Failed);
        }
        return pullContents(transfer);
    });
}

int QvexFileMover::pullContents(Transfer &transfer)
{
    FileSystemResult result = FS_OK;
    int emptyAnswers = 0;
    while (result == FS_OK && emptyAnswers < EmptyAnswersBorne) {
        if (transfer.isAborted()) {
            return Aborted;
        }
        long length = 0;
        result = transfer.remote.pull(ChunkSize, length, transfer.buffer.data());
        if (transfer.local.write(transfer.buffer.data(), length) != length) {
            qCDebug(lcMover) << "cannot write" << transfer.local.fileName()
                             << transfer.local.errorString();
            return Failed;
        }
        emptyAnswers = length == 0 ? emptyAnswers + 1 : 0;
        transfer.carried(length);
    }
    transfer.local.close();
    const bool closed = transfer.local.error() == QFileDevice::NoError;
    return result == FS_NOMORE && closed ? Done : Failed;
}

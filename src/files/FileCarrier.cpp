#include "FileCarrier.h"

#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>

#include "FileStamp.h"
#include "LocalFileCopy.h"
#include "QvexFileMover.h"
#include "RemoteSource.h"
#include "TransferLink.h"
#include "TransferMeter.h"

FileCarrier::FileCarrier(FileTransfer::Kind kind, const TransferLink *link, TransferMeter *meter,
                         const std::atomic<bool> &cancelled)
    : m_kind(kind)
    , m_link(link)
    , m_meter(meter)
    , m_cancelled(cancelled)
    , m_mover(std::make_unique<QvexFileMover>(link->controller()))
{
    QObject::connect(
        m_mover.get(), &QvexFileMover::progress, m_mover.get(),
        [this](const QString &, qint64 done) {
            m_meter->setFileDone(done);
            // An abort() between two files does nothing by itself.
            if (m_cancelled) {
                m_mover->abort();
            }
        },
        Qt::DirectConnection);
}

FileCarrier::~FileCarrier() = default;

void FileCarrier::abort()
{
    m_mover->abort();
}

TransferStep FileCarrier::carry(const TransferPlan::Item &item, const QString &path, qint64 &size)
{
    TransferStep step;
    if (m_kind == FileTransfer::Kind::Download) {
        return download(item, path, size);
    }
    const FileStamp before(item.source);
    if (!before.isRegularFile()) {
        return TransferStep::failed(before.exists() ? tr("it is no file any more")
                                                    : tr("it is not there"));
    }
    step = m_kind == FileTransfer::Kind::Upload ? upload(item, path) : copy(item, path);
    if (step.isDone() && FileStamp(item.source) != before) {
        return TransferStep::failed(tr("it was changed while it was read"));
    }
    size = before.size();
    return step;
}

TransferStep FileCarrier::upload(const TransferPlan::Item &item, const QString &path)
{
    return m_link->isLost() ? m_link->lost() : moved(m_mover->uploadFile(item.source, path, true));
}

TransferStep FileCarrier::download(const TransferPlan::Item &item, const QString &path,
                                   qint64 &size)
{
    if (m_link->isLost()) {
        return m_link->lost();
    }
    TransferStep step = moved(m_mover->downloadFile(item.source, path, true));
    size = QFileInfo(path).size();
    if (step.code == TransferStep::Code::Failed) {
        return explainFull(item, path, step);
    }
    return step.isDone() ? verifySize(item, size) : step;
}

TransferStep FileCarrier::copy(const TransferPlan::Item &item, const QString &path)
{
    return LocalFileCopy::copy(item.source, path, [this](qint64 done) {
        m_meter->setFileDone(done);
        return !m_cancelled;
    });
}

/// The result of the mover, with a lost link told apart.
TransferStep FileCarrier::moved(int result) const
{
    switch (result) {
    case 0:
        return TransferStep::done();
    case 3:
        return TransferStep::cancelled();
    default:
        return m_link->isLost() ? TransferStep::fatal(m_mover->lastError())
                                : TransferStep::failed(m_mover->lastError());
    }
}

/// The last chunk does not tell whether it was all: the listing does, asked again when the file may
/// have changed since.
TransferStep FileCarrier::verifySize(const TransferPlan::Item &item, qint64 size) const
{
    if (size == item.size) {
        return TransferStep::done();
    }
    const qsizetype slash = item.source.lastIndexOf(u'/');
    TransferSource::Entry now;
    const TransferStep looked =
        RemoteSource(m_link).look(item.source.first(slash), item.source.sliced(slash + 1), now);
    if (!looked.isDone()) {
        return looked;
    }
    return now.size == size
        ? TransferStep::done()
        : TransferStep::failed(tr("%1 bytes came of a file of %2 bytes").arg(size).arg(now.size));
}

/// A full target is why no other file fits either.
TransferStep FileCarrier::explainFull(const TransferPlan::Item &item, const QString &path,
                                      const TransferStep &failure) const
{
    const QFileInfo part(path);
    const qint64 missing = item.size - part.size();
    const qint64 available = QStorageInfo(part.path()).bytesAvailable();
    const bool isFull = available >= 0 && available < std::max<qint64>(missing, 1);
    return isFull ? TransferStep::fatal(tr("there is no room left: %1").arg(failure.reason))
                  : failure;
}

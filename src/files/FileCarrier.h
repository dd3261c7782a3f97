#pragma once

#include <QCoreApplication>

#include <atomic>
#include <memory>

#include "FileTransfer.h"
#include "TransferPlan.h"
#include "TransferStep.h"

class QvexFileMover;
class TransferLink;
class TransferMeter;

/**
 * Carries the contents of one file to a path where nothing is, or nothing of worth. What it leaves
 * there when it fails is not whole.
 */
class FileCarrier
{
    Q_DECLARE_TR_FUNCTIONS(FileTransfer)

public:
    /** The arguments must outlive the carrier. */
    FileCarrier(FileTransfer::Kind kind, const TransferLink *link, TransferMeter *meter,
                const std::atomic<bool> &cancelled);
    ~FileCarrier();

    /** @p size becomes the number of bytes that were carried. */
    TransferStep carry(const TransferPlan::Item &item, const QString &path, qint64 &size);
    /** Ends a carry() that is under way, at its next chunk; cancelled must be set before. From any
     * thread. */
    void abort();

private:
    TransferStep upload(const TransferPlan::Item &item, const QString &path);
    TransferStep download(const TransferPlan::Item &item, const QString &path, qint64 &size);
    TransferStep copy(const TransferPlan::Item &item, const QString &path);
    TransferStep moved(int result) const;
    TransferStep verifySize(const TransferPlan::Item &item, qint64 size) const;
    TransferStep explainFull(const TransferPlan::Item &item, const QString &path,
                             const TransferStep &failure) const;

    const FileTransfer::Kind m_kind;
    const TransferLink *const m_link;
    TransferMeter *const m_meter;
    const std::atomic<bool> &m_cancelled;
    const std::unique_ptr<QvexFileMover> m_mover;
};

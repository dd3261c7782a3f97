#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QStringList>
#include <QVector>

#include <atomic>

#include "FileTransfer.h"
#include "TransferSource.h"

/** What a transfer is to do: everything below its sources, folders before what they hold. */
class TransferPlan
{
    Q_DECLARE_TR_FUNCTIONS(FileTransfer)

public:
    struct Item
    {
        QString source; ///< full path
        QString targetFolder; ///< full path
        QString name; ///< at the target
        bool isFolder = false;
        qint64 size = 0;
        QString date;
    };

    /** @p source and @p cancelled must outlive the plan. */
    TransferPlan(TransferSource *source, const QString &targetFolder,
                 const std::atomic<bool> &cancelled);

    /** Refuses folders that hold this one, a canonical path of the same side. */
    void refuseBelow(const QString &canonicalTarget) { m_canonicalTarget = canonicalTarget; }
    /**
     * Adds a source and what is below it, as @p name unless that is empty. What can't be read is a
     * failure of its own; the result is Done unless nothing more can be planned.
     */
    TransferStep add(const QString &path, const QString &name);

    const QVector<Item> &items() const { return m_items; }
    const QVector<TransferSummary::Failure> &failures() const { return m_failures; }
    int fileCount() const { return m_fileCount; }
    qint64 bytes() const { return m_bytes; }
    /** Entries that are never carried. */
    int skipped() const { return m_skipped; }

private:
    TransferStep addEntry(const QString &source, const QString &targetFolder, const QString &name,
                          const TransferSource::Entry &entry, int depth);
    TransferStep addBelow(const QString &source, const QString &targetFolder, int depth);
    bool containsTarget(const QString &folder) const;
    TransferStep fail(const QString &path, const TransferStep &step);

    TransferSource *const m_source;
    const QString m_targetFolder;
    const std::atomic<bool> &m_cancelled;
    QString m_canonicalTarget;
    QVector<Item> m_items;
    QVector<TransferSummary::Failure> m_failures;
    int m_fileCount = 0;
    qint64 m_bytes = 0;
    int m_skipped = 0;
};

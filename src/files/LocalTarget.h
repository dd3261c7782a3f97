#pragma once

#include <QHash>
#include <QSet>
#include <QStringList>

#include "TransferTarget.h"

/** A folder of the local disk as the target of a transfer. */
class LocalTarget : public TransferTarget
{
    Q_DECLARE_TR_FUNCTIONS(LocalTarget)

public:
    TransferStep find(const QString &folder, const QString &name,
                      std::optional<Entry> &entry) override;
    TransferStep makeFolder(const QString &folder, const QString &name) override;
    TransferStep removeLeftovers(const QString &folder, const QString &name) override;
    /** Flushes the contents, then renames; the folder is flushed by flush(). */
    TransferStep commit(const QString &folder, const TemporaryName &temporary, const QString &name,
                        qint64 size, bool replace) override;
    TransferStep discard(const QString &folder, const TemporaryName &temporary) override;
    qint64 bytesAvailable(const QString &folder) const override;
    TransferStep flush() override;

private:
    QHash<QString, QStringList> &leftoversIn(const QString &folder);

    QSet<QString> m_unflushed; ///< folders
    /// By folder, then by stem; read once, since what is left is left by runs before this one.
    QHash<QString, QHash<QString, QStringList>> m_leftovers;
};

#pragma once

#include <QHash>
#include <QStringList>

#include "TransferTarget.h"

class TransferLink;

/**
 * A folder of the instrument as the target of a transfer.
 *
 * A folder is listed once and kept up to date by what this object does: asking for a single file
 * would mean to open it, by which some controllers make it.
 *
 * No operation of the controller replaces a whole file at once on every controller. So the old file
 * steps aside, the new one gets the name, and the old one is removed: both are whole at any moment,
 * and for the time of one call none has the name. When the link is lost just then, the old one gets
 * its name back when the file is carried again.
 */
class RemoteTarget : public TransferTarget
{
    Q_DECLARE_TR_FUNCTIONS(RemoteTarget)

public:
    explicit RemoteTarget(const TransferLink *link);

    TransferStep find(const QString &folder, const QString &name,
                      std::optional<Entry> &entry) override;
    TransferStep makeFolder(const QString &folder, const QString &name) override;
    TransferStep removeLeftovers(const QString &folder, const QString &name) override;
    TransferStep commit(const QString &folder, const TemporaryName &temporary, const QString &name,
                        qint64 size, bool replace) override;
    TransferStep discard(const QString &folder, const TemporaryName &temporary) override;
    /** The controller has no call that tells. */
    qint64 bytesAvailable(const QString &folder) const override;
    /** The controller flushes when it wants to. */
    TransferStep flush() override;

private:
    struct Folder
    {
        QHash<QString, Entry> entries;
        QHash<QString, QStringList> leftovers; ///< by stem
    };

    TransferStep listed(const QString &folder, Folder *&listing);
    void remember(const QString &folder, const QString &name, const Entry &entry);
    TransferStep fetch(const QString &folder, Folder &listing) const;
    TransferStep commitNew(const QString &folder, const QString &part, const QString &name);
    TransferStep commitOver(const QString &folder, const TemporaryName &temporary,
                            const QString &name);
    TransferStep existsNow(const QString &folder, const QString &name, const TransferStep &failure);
    TransferStep settleBackup(const QString &folder, const QString &backup, const QString &name);

    const TransferLink *const m_link;
    QHash<QString, Folder> m_folders;
};

#pragma once

#include "TransferSource.h"
#include "corba/FcpRecords.h"

class TransferLink;

/** The instrument as the source of a transfer. What its links point to is carried. */
class RemoteSource : public TransferSource
{
    Q_DECLARE_TR_FUNCTIONS(RemoteSource)

public:
    explicit RemoteSource(const TransferLink *link);

    /** Lists the folder, unless it was the last one looked into. */
    TransferStep look(const QString &folder, const QString &name, Entry &entry) override;
    TransferStep list(const QString &folder, QVector<Entry> &entries) override;

private:
    const TransferLink *const m_link;
    QString m_folder; ///< the last one looked into
    QVector<Entry> m_entries;
};

#pragma once

#include "TransferSource.h"

/** The local disk as the source of a transfer. */
class LocalSource : public TransferSource
{
    Q_DECLARE_TR_FUNCTIONS(LocalSource)

public:
    TransferStep look(const QString &folder, const QString &name, Entry &entry) override;
    TransferStep list(const QString &folder, QVector<Entry> &entries) override;
};

#pragma once

#include <QCoreApplication>
#include <QString>
#include <QVector>

#include "TransferStep.h"

/** The side that a transfer reads from. */
class TransferSource
{
    Q_DECLARE_TR_FUNCTIONS(FileTransfer)

public:
    struct Entry
    {
        enum class Type {
            File,
            Folder,
            Other, ///< a symbolic link of the local disk, a pipe, a device: never opened
        };

        QString name;
        Type type = Type::File;
        qint64 size = 0;
        QString date; ///< for a person
    };

    TransferSource() = default;
    virtual ~TransferSource() = default;
    TransferSource(const TransferSource &) = delete;
    TransferSource &operator=(const TransferSource &) = delete;

    /** What is at a path. */
    virtual TransferStep look(const QString &folder, const QString &name, Entry &entry) = 0;
    /** All that is in a folder, hidden entries included. */
    virtual TransferStep list(const QString &folder, QVector<Entry> &entries) = 0;
};

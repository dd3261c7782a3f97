#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

#include "TransferStep.h"

class TemporaryName;

/**
 * The side that a transfer writes to. A place is a folder and a bare name in it; a file gets there
 * in two steps: written under a temporary name (by somebody else), then commit().
 *
 * For the transfer's worker thread.
 */
class TransferTarget
{
    Q_DECLARE_TR_FUNCTIONS(FileTransfer)

public:
    struct Entry
    {
        bool isFolder = false;
        qint64 size = 0;
        QString date; ///< for a person
    };

    TransferTarget() = default;
    virtual ~TransferTarget() = default;
    TransferTarget(const TransferTarget &) = delete;
    TransferTarget &operator=(const TransferTarget &) = delete;

    /** What is there under a name, if anything. */
    virtual TransferStep find(const QString &folder, const QString &name,
                              std::optional<Entry> &entry) = 0;
    /** Makes a folder; Exists when something has the name. */
    virtual TransferStep makeFolder(const QString &folder, const QString &name) = 0;
    /** Removes what earlier runs have left behind of a file of this name. */
    virtual TransferStep removeLeftovers(const QString &folder, const QString &name) = 0;
    /**
     * Gives the file that was written under the temporary name, of @p size bytes, its own. Exists
     * when something has that name, unless @p replace.
     */
    virtual TransferStep commit(const QString &folder, const TemporaryName &temporary,
                                const QString &name, qint64 size, bool replace) = 0;
    /** Removes what was written under a temporary name. */
    virtual TransferStep discard(const QString &folder, const TemporaryName &temporary) = 0;

    /** Room for contents, in bytes; -1 when it is not known. */
    virtual qint64 bytesAvailable(const QString &folder) const = 0;
    /** Has everything that was committed survive a power cut. */
    virtual TransferStep flush() = 0;
};

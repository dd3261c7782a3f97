#pragma once

#include <QString>

#include <optional>

#include "VexExport.h"

/**
 * The name under which a file is written before it gets its own: ".NAME.HOST-PID-NUMBER.vexpart",
 * where NAME is shortened when the whole would become too long for a name.
 *
 * While the object lives, its names are in use. Those of a process of this machine that has ended,
 * or of an object that has gone, are leftovers; what another machine has written is left alone.
 */
class VEX_EXPORT TemporaryName
{
public:
    /** For a file that is to be called @p name. */
    explicit TemporaryName(const QString &name);
    ~TemporaryName();

    TemporaryName(const TemporaryName &) = delete;
    TemporaryName &operator=(const TemporaryName &) = delete;

    /** Of the new file. */
    QString part() const;
    /** Of the old one, while the new one takes its place. */
    QString backup() const;

    struct Leftover
    {
        QString stem; ///< equals stemOf() of the name of the file
        bool isBackup = false;
    };
    /**
     * Reads the name of an entry of a folder. A controller's own suffix behind the name is allowed:
     * it may write beside as well.
     */
    static std::optional<Leftover> leftover(const QString &entryName);
    /** @p name as it stands in the names for its temporary files. */
    static QString stemOf(const QString &name);

private:
    QString withSuffix(const QString &suffix) const;

    const QString m_stem;
    const int m_number;
};

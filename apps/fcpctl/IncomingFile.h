#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

#include <sys/types.h>

/**
 * A local file that is being fetched: it grows beside its target and takes the target's name when
 * it is complete. Until then the target is what it was, whatever happens to this process.
 *
 * The bytes are kept in a directory called ".fcpctl-part-XXXXXX" beside the target. One that a
 * killed process left behind goes with removeAbandoned().
 */
class IncomingFile
{
public:
    /// Throws Failure when nothing can be put there, or when @p target exists and may not go.
    IncomingFile(const QString &target, bool overwrite);
    /// Removes what was not committed.
    ~IncomingFile();
    Q_DISABLE_COPY_MOVE(IncomingFile)

    /// Where the bytes go.
    QString partPath() const;
    qint64 partSize() const;
    /// Why @p more bytes can not be written, as an errno value; 0 when they can.
    int whyNotWritable(qint64 more) const;

    /// Makes it safe on the disk and gives it its name. Throws Failure.
    void commit();

    /// Removes what killed processes left behind in @p directory.
    static void removeAbandoned(const QString &directory);
    /// Makes the names that were given in @p directory safe on the disk, as far as that can be
    /// done.
    static void syncDirectory(const QString &directory);

private:
    void resolveTarget(bool overwrite);
    void makePartDirectory();
    void lockPartDirectory();
    void rename();
    void removePart();

    QString m_shownTarget;
    QByteArray m_target;
    QByteArray m_partDirectory;
    int m_lock = -1;
    bool m_replaces = false;
    std::optional<mode_t> m_mode; ///< of the file that is replaced
};

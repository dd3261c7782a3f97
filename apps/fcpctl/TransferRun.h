#pragma once

#include "CommandLine.h"
#include "Interrupt.h"
#include "ProgressBar.h"
#include "RemoteTree.h"

#include <files/QvexFileMover.h>

#include <QSet>

#include <functional>

/// What became of one file.
struct Transfer
{
    QString source;
    QString destination;
    qint64 size = 0; ///< bytes carried
    double seconds = 0; ///< that its contents took
    QByteArray sha256; ///< empty unless it was verified
    QString failure; ///< empty when it was carried
};

/// Thrown where a transfer ends because the user asked for it; @c left says what is left where.
struct Interrupted
{
    QString left;
};

/**
 * The frame around a list of transfers: the link, the mover, the progress bar, what happens on
 * Ctrl-C, and the account that is given in the end.
 */
class TransferRun
{
public:
    explicit TransferRun(const Invocation &invocation);

    /// Carries one file, fills in what it learns on the way, and throws Failure or Interrupted.
    using Carry = std::function<void(Transfer &)>;
    /**
     * Does so for each source, tells what happened, and returns the exit code. A file that fails
     * does not stop the run; an interruption and a lost link do.
     */
    int run(const QStringList &sources, const Carry &carry);

    const Session &session() const { return m_session; }
    RemoteTree &tree() { return m_tree; }

    /// Throws when an earlier file of this run went to @p destination, too.
    void claim(const QString &destination);

    enum class Direction { Upload, Download };
    /**
     * Moves the contents of @p transfer's source to @p target. An upload overwrites if the user
     * said so, a download never. @return the mover's result.
     */
    int move(Direction direction, const QString &target, Transfer &transfer, qint64 total);

    /// Reads both files once more. @return their SHA-256; throws when they differ.
    QByteArray verify(const QString &localPath, const QString &remotePath, qint64 size);

private:
    void carryOne(const QString &source, const Carry &carry);
    void report(const Transfer &transfer);
    void summarize(const QStringList &sources) const;
    int exitCode() const;
    QByteArray localChecksum(const QString &path) const;
    QByteArray remoteChecksum(const QString &path);
    void throwIfInterrupted() const;

    const Invocation &m_invocation;
    Interrupt m_interrupt; // before the link, see there
    Session m_session;
    RemoteTree m_tree;
    QvexFileMover m_mover;
    ProgressBar m_bar;
    QList<Transfer> m_transfers;
    QSet<QString> m_claimed;
    qint64 m_moved = 0;
    bool m_linkLost = false;
};

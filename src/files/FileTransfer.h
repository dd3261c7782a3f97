#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <chrono>
#include <functional>
#include <memory>

#include "VexExport.h"

class FcpAppCORBA;

/** A file that a transfer would write and that is there already. */
struct VEX_EXPORT FileConflict
{
    QString source; ///< full path
    QString target; ///< full path
    qint64 sourceSize = 0;
    qint64 targetSize = 0;
    QString sourceDate; ///< for a person
    QString targetDate;
};

enum class ConflictChoice {
    Overwrite,
    Skip,
    KeepBoth, ///< the new one gets a name that is free
    Cancel, ///< the whole transfer
};

/** How a transfer asks what it can't know. An application shows a dialog, a test answers. */
class VEX_EXPORT TransferQuestions
{
public:
    virtual ~TransferQuestions();

    /** What is to be done, and whether with all conflicts that follow. */
    using Answer = std::function<void(ConflictChoice choice, bool forAll)>;
    /**
     * Called on the transfer's thread, one at a time. @p answer may be called at once or later, on
     * that thread; after the transfer has ended it does nothing. When its last copy goes and no
     * answer was given, that is a Cancel.
     */
    virtual void askConflict(const FileConflict &conflict, Answer answer) = 0;
};

/** How far a transfer is. */
struct VEX_EXPORT TransferProgress
{
    QString file; ///< name of the one that is carried
    int fileNumber = 0; ///< of that one, from 1
    int fileCount = 0;
    qint64 bytesDone = 0; ///< of all files
    qint64 bytesTotal = 0;
    double bytesPerSecond = 0; ///< over the last seconds; 0 when not known yet
    std::chrono::seconds remaining {-1}; ///< negative when not known yet
};

/** What has become of a transfer. */
struct VEX_EXPORT TransferSummary
{
    struct Failure
    {
        QString path; ///< of the source
        QString reason; ///< for a person
    };

    enum class Outcome {
        Done, ///< all was carried, but for what was to be skipped
        Failed, ///< some failed, or nothing could begin; see failures and reason
        Cancelled,
    };

    Outcome outcome = Outcome::Done;
    QString reason; ///< why nothing could begin, or why it stopped before its end; for a person
    int carried = 0; ///< files that are whole at the target
    int skipped = 0;
    int notTried = 0;
    qint64 bytes = 0;
    QVector<Failure> failures;
};

Q_DECLARE_METATYPE(TransferProgress)
Q_DECLARE_METATYPE(TransferSummary)

/**
 * Carries files and folders between the instrument and the local disk, or from one local folder to
 * another: a job, which ends in exactly one finished(), whatever happens.
 *
 * A folder is carried with everything in it; symbolic links of the local disk are not followed and
 * not carried, and are told as skipped. Each file is written beside its target under a name of
 * its own, flushed to the medium, and only then given its name: under the target's name there is
 * the old file or the new one, whole, also when this process is killed in between. What an earlier
 * process has left behind that way is removed when its file is carried again.
 *
 * A failure of one file does not stop the others; a lost link does, as does a full target. Before
 * anything is written the sizes are summed up, and a local target without that much room is
 * refused.
 *
 * The room of the instrument is not looked after beforehand: the controller has no call for it. A
 * file that is replaced there is whole at any moment, the old one or the new one, but for the time
 * of one call it is only there under a name beside.
 *
 * Methods belong to the thread of the object, signals are emitted there. The work is done on a
 * thread of its own; the destructor cancels and waits for the file at hand to stop. A call that the
 * controller does not answer can't be cancelled: it ends when the link is given up, which a
 * VexLinkSupervisor does after ten seconds, or with the ORB's round-trip time-out. So cancel() and
 * wait for finished() before the destructor where that matters.
 */
class VEX_EXPORT FileTransfer : public QObject
{
    Q_OBJECT

public:
    enum class Kind {
        Upload, ///< local sources, a folder of the instrument
        Download, ///< sources of the instrument, a local folder
        LocalCopy, ///< local on both sides
    };

    /** @p controller is not owned, must outlive this, and may be null for a LocalCopy. */
    FileTransfer(FcpAppCORBA *controller, Kind kind, const QStringList &sources,
                 const QString &targetFolder, QObject *parent = nullptr);
    ~FileTransfer() override;

    Kind kind() const;
    QString targetFolder() const;
    bool isRunning() const;
    TransferProgress progress() const;

    /** Who is asked about conflicts; not owned. Without one they are skipped. Before start(). */
    void setQuestions(TransferQuestions *questions);
    /**
     * A name for a source at the target, when it is not to keep its own. Before start(), for a file
     * among the sources.
     */
    void setTargetName(const QString &source, const QString &name);

    /** Begins, once. */
    void start();

public Q_SLOTS:
    /** Ends the transfer soon, within a file; what is half there is removed. */
    void cancel();

Q_SIGNALS:
    /** At most 20 times a second. */
    void progressChanged(const TransferProgress &progress);
    void finished(const TransferSummary &summary);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

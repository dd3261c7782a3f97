#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QStringList>

#include <atomic>
#include <memory>

#include "ConflictDesk.h"
#include "FileCarrier.h"
#include "FileTransfer.h"
#include "TransferLink.h"
#include "TransferMeter.h"
#include "TransferPlan.h"
#include "TransferStep.h"

class TemporaryName;
class TransferSource;
class TransferTarget;

/** The work of one FileTransfer, done on its worker thread. */
class TransferRun
{
    Q_DECLARE_TR_FUNCTIONS(FileTransfer)

public:
    struct Task
    {
        FcpAppCORBA *controller = nullptr;
        FileTransfer::Kind kind = FileTransfer::Kind::LocalCopy;
        QStringList sources;
        QString targetFolder;
        QHash<QString, QString> names; ///< by source, where it is not to keep its own
    };

    /** The link that @p task 's controller has now is the only one that is used. */
    TransferRun(const Task &task, ConflictDesk::Ask ask);
    ~TransferRun();

    TransferRun(const TransferRun &) = delete;
    TransferRun &operator=(const TransferRun &) = delete;

    /** Blocks until it is done. Once. */
    TransferSummary run();
    /** From any thread, at any time. */
    void cancel();
    /** From any thread. */
    TransferProgress progress() const { return m_meter.progress(); }

private:
    /// Where a file is to get to.
    struct Place
    {
        QString folder;
        QString name;
        bool replace = false;
    };

    TransferStep carryAll();
    TransferStep prepare();
    TransferStep goesOn() const;
    TransferStep checkTargetFolder();
    TransferStep checkRoom() const;
    TransferStep doItem(const TransferPlan::Item &item);
    TransferStep makeFolder(const TransferPlan::Item &item);
    TransferStep carry(const TransferPlan::Item &item);
    TransferStep carryTo(const TransferPlan::Item &item, Place &place);
    TransferStep settleConflict(const TransferPlan::Item &item, Place &place);
    TransferStep findFreeName(Place &place);
    void discard(const Place &place, const TemporaryName &temporary, TransferStep &step);
    void note(const TransferPlan::Item &item, const TransferStep &step);
    bool isBelowFailure(const TransferPlan::Item &item) const;
    void finish(const TransferStep &end);

    const Task m_task;
    std::atomic<bool> m_cancelled = false;
    ConflictDesk m_desk;
    TransferMeter m_meter;
    const TransferLink m_link;
    FileCarrier m_carrier;
    const std::unique_ptr<TransferSource> m_source;
    const std::unique_ptr<TransferTarget> m_target;
    TransferPlan m_plan;
    TransferSummary m_summary;
    QString m_failedFolder; ///< at the target; what belongs into it is not tried
    int m_tried = 0;
};

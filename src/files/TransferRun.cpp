#include "TransferRun.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

#include "FileNames.h"
#include "FilePaths.h"
#include "LocalSource.h"
#include "LocalTarget.h"
#include "QvexFileModel.h"
#include "RemoteSource.h"
#include "RemoteTarget.h"
#include "TemporaryName.h"

Q_LOGGING_CATEGORY(lcTransfer, "vex.files.transfer", QtWarningMsg)

using Kind = FileTransfer::Kind;

namespace {

std::unique_ptr<TransferSource> makeSource(Kind kind, const TransferLink *link)
{
    if (kind == Kind::Download) {
        return std::make_unique<RemoteSource>(link);
    }
    return std::make_unique<LocalSource>();
}

std::unique_ptr<TransferTarget> makeTarget(Kind kind, const TransferLink *link)
{
    if (kind == Kind::Upload) {
        return std::make_unique<RemoteTarget>(link);
    }
    return std::make_unique<LocalTarget>();
}

} // namespace

TransferRun::TransferRun(const Task &task, ConflictDesk::Ask ask)
    : m_task(task)
    , m_link(task.controller)
    , m_carrier(task.kind, &m_link, &m_meter, m_cancelled)
    , m_source(makeSource(task.kind, &m_link))
    , m_target(makeTarget(task.kind, &m_link))
    , m_plan(m_source.get(), task.targetFolder, m_cancelled)
{
    m_desk.setAsk(std::move(ask));
    if (task.kind == Kind::LocalCopy) {
        m_plan.refuseBelow(QFileInfo(task.targetFolder).canonicalFilePath());
    }
}

TransferRun::~TransferRun() = default;

void TransferRun::cancel()
{
    m_cancelled = true;
    m_desk.close();
    m_carrier.abort();
}

TransferSummary TransferRun::run()
{
    TransferStep end;
    try {
        end = carryAll();
    } catch (const std::exception &exception) {
        end = TransferStep::fatal(QString::fromLocal8Bit(exception.what()));
    } catch (...) {
        end = TransferStep::fatal(tr("an unknown exception"));
    }
    finish(end);
    return m_summary;
}

TransferStep TransferRun::carryAll()
{
    TransferStep step = prepare();
    for (const TransferPlan::Item &item : m_plan.items()) {
        if (!step.isDone()) {
            break;
        }
        step = goesOn();
        if (step.isDone()) {
            step = doItem(item);
        }
    }
    const TransferStep flushed = m_target->flush();
    return step.isDone() ? flushed : step;
}

/// Whether there is a point in the next file.
TransferStep TransferRun::goesOn() const
{
    if (m_cancelled) {
        return TransferStep::cancelled();
    }
    const bool needsLink = m_task.kind != Kind::LocalCopy;
    return needsLink && m_link.isLost() ? m_link.lost() : TransferStep::done();
}

TransferStep TransferRun::prepare()
{
    if (m_cancelled) {
        return TransferStep::cancelled();
    }
    if (m_task.sources.isEmpty()) {
        return TransferStep::done();
    }
    if (TransferStep step = checkTargetFolder(); !step.isDone()) {
        return step;
    }
    for (const QString &source : m_task.sources) {
        TransferStep step = m_plan.add(source, m_task.names.value(source));
        if (!step.isDone()) {
            return step;
        }
    }
    m_summary.failures = m_plan.failures();
    m_summary.skipped = m_plan.skipped();
    m_meter.begin(m_plan.fileCount(), m_plan.bytes());
    return checkRoom();
}

TransferStep TransferRun::checkTargetFolder()
{
    const QString &folder = m_task.targetFolder;
    if (m_task.kind == Kind::Upload) {
        std::optional<TransferTarget::Entry> none;
        return m_target->find(folder, {}, none);
    }
    if (m_task.kind == Kind::Download && m_link.isLost()) {
        return m_link.lost();
    }
    return QFileInfo(folder).isDir()
        ? TransferStep::done()
        : TransferStep::failed(tr("the folder %1 is not there").arg(folder));
}

/// A file that is to be replaced gives its room back only when the new one is whole, so it does not
/// count.
TransferStep TransferRun::checkRoom() const
{
    const qint64 available = m_target->bytesAvailable(m_task.targetFolder);
    if (available < 0 || available >= m_plan.bytes()) {
        return TransferStep::done();
    }
    return TransferStep::failed(tr("%1 are needed, and %2 are free in %3")
                                    .arg(QvexFileModel::sizeText(m_plan.bytes()),
                                         QvexFileModel::sizeText(available), m_task.targetFolder));
}

/// Does what is to be done with one item of the plan. @return Done, or what ends the run.
TransferStep TransferRun::doItem(const TransferPlan::Item &item)
{
    if (isBelowFailure(item)) {
        return TransferStep::done();
    }
    TransferStep step = item.isFolder ? makeFolder(item) : carry(item);
    note(item, step);
    return step.endsRun() ? step : TransferStep::done();
}

TransferStep TransferRun::makeFolder(const TransferPlan::Item &item)
{
    std::optional<TransferTarget::Entry> there;
    TransferStep step = m_target->find(item.targetFolder, item.name, there);
    if (step.isDone() && !there) {
        step = m_target->makeFolder(item.targetFolder, item.name);
    }
    if (step.code == TransferStep::Code::Exists) { // by now
        step = m_target->find(item.targetFolder, item.name, there);
    }
    if (step.isDone() && there && !there->isFolder) {
        step = TransferStep::failed(tr("a file at the target has the name of this folder"));
    }
    if (step.code == TransferStep::Code::Failed) {
        m_failedFolder = FilePaths::join(item.targetFolder, item.name);
    }
    return step;
}

bool TransferRun::isBelowFailure(const TransferPlan::Item &item) const
{
    return !m_failedFolder.isEmpty()
        && (item.targetFolder == m_failedFolder
            || item.targetFolder.startsWith(m_failedFolder + u'/'));
}

TransferStep TransferRun::carry(const TransferPlan::Item &item)
{
    m_meter.beginFile(item.name, item.size);
    Place place {item.targetFolder, item.name};
    TransferStep step = m_target->removeLeftovers(place.folder, place.name);
    if (step.isDone()) {
        step = settleConflict(item, place);
    }
    if (step.isDone()) {
        step = carryTo(item, place);
    }
    m_meter.endFile();
    return step;
}

TransferStep TransferRun::carryTo(const TransferPlan::Item &item, Place &place)
{
    using Code = TransferStep::Code;
    const TemporaryName temporary(place.name);
    qint64 size = 0;
    TransferStep step =
        m_carrier.carry(item, FilePaths::join(place.folder, temporary.part()), size);
    if (step.isDone()) {
        do {
            step = m_target->commit(place.folder, temporary, place.name, size, place.replace);
            // It has appeared meanwhile.
        } while (step.code == Code::Exists && (step = settleConflict(item, place)).isDone());
    }
    if (step.isDone()) {
        m_summary.bytes += size;
    } else {
        discard(place, temporary, step);
    }
    return step;
}

void TransferRun::discard(const Place &place, const TemporaryName &temporary, TransferStep &step)
{
    const TransferStep discarded = m_target->discard(place.folder, temporary);
    if (!discarded.isDone() && !step.reason.isEmpty()) {
        step.reason = tr("%1; what may be left as %2 is removed when the file is carried again")
                          .arg(step.reason, FilePaths::join(place.folder, temporary.part()));
    }
}

/// Finds out whether @p place is free, and if it is not, what is to be done.
TransferStep TransferRun::settleConflict(const TransferPlan::Item &item, Place &place)
{
    std::optional<TransferTarget::Entry> there;
    TransferStep step = m_target->find(place.folder, place.name, there);
    place.replace = false;
    if (!step.isDone() || !there) {
        return step;
    }
    if (there->isFolder) {
        return TransferStep::failed(tr("a folder at the target has the name of this file"));
    }
    const QString target = FilePaths::join(place.folder, place.name);
    switch (m_desk.decide({item.source, target, item.size, there->size, item.date, there->date})) {
    case ConflictChoice::Overwrite:
        place.replace = true;
        return TransferStep::done();
    case ConflictChoice::KeepBoth:
        return findFreeName(place);
    case ConflictChoice::Cancel:
        m_cancelled = true;
        return TransferStep::cancelled();
    case ConflictChoice::Skip:
        break;
    }
    return TransferStep::skipped();
}

TransferStep TransferRun::findFreeName(Place &place)
{
    const QString name = place.name;
    std::optional<TransferTarget::Entry> there;
    TransferStep step;
    int number = 2;
    do {
        place.name = FileNames::numbered(name, number++);
        step = m_target->find(place.folder, place.name, there);
    } while (step.isDone() && there);
    return step;
}

void TransferRun::note(const TransferPlan::Item &item, const TransferStep &step)
{
    using Code = TransferStep::Code;
    const bool failed = step.code == Code::Failed || step.code == Code::Fatal;
    if (failed) {
        m_summary.failures.append({item.source, step.reason});
    }
    if (item.isFolder) {
        return;
    }
    m_tried += step.code == Code::Cancelled ? 0 : 1;
    m_summary.carried += step.isDone() ? 1 : 0;
    m_summary.skipped += step.code == Code::Skipped ? 1 : 0;
}

void TransferRun::finish(const TransferStep &end)
{
    using Outcome = TransferSummary::Outcome;
    m_summary.notTried = m_plan.fileCount() - m_tried;
    m_summary.reason = end.reason;
    if (end.code == TransferStep::Code::Cancelled) {
        m_summary.outcome = Outcome::Cancelled;
    } else if (!end.isDone() || !m_summary.failures.isEmpty()) {
        m_summary.outcome = Outcome::Failed;
    }
}

#include "TransferPlan.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

#include "FileNames.h"
#include "FilePaths.h"

Q_DECLARE_LOGGING_CATEGORY(lcTransfer)

namespace {

/// A folder that is deeper holds itself, by links that the controller follows.
constexpr int DeepestFolder = 250;

} // namespace

TransferPlan::TransferPlan(TransferSource *source, const QString &targetFolder,
                           const std::atomic<bool> &cancelled)
    : m_source(source)
    , m_targetFolder(targetFolder)
    , m_cancelled(cancelled)
{
}

TransferStep TransferPlan::add(const QString &path, const QString &name)
{
    const QString source = QDir::cleanPath(path);
    const qsizetype slash = source.lastIndexOf(u'/');
    const QString folder = slash > 0 ? source.first(slash) : source.first(slash + 1);
    const QString ownName = source.sliced(slash + 1);
    if (slash < 0 || ownName.isEmpty()) {
        return fail(path, TransferStep::failed(tr("this is not the path of a file")));
    }
    TransferSource::Entry entry;
    const TransferStep step = m_source->look(folder, ownName, entry);
    return step.isDone()
        ? addEntry(source, m_targetFolder, name.isEmpty() ? ownName : name, entry, 0)
        : fail(source, step);
}

TransferStep TransferPlan::addEntry(const QString &source, const QString &targetFolder,
                                    const QString &name, const TransferSource::Entry &entry,
                                    int depth)
{
    using Type = TransferSource::Entry::Type;
    if (const QString complaint = FileNames::complaintAbout(name); !complaint.isEmpty()) {
        return fail(source, TransferStep::failed(complaint));
    }
    if (entry.type == Type::Other) {
        qCInfo(lcTransfer) << "skipped, no regular file:" << source;
        ++m_skipped;
        return TransferStep::done();
    }
    if (entry.type == Type::Folder && containsTarget(source)) {
        return fail(source, TransferStep::failed(tr("it cannot be carried into itself")));
    }
    const bool isFolder = entry.type == Type::Folder;
    m_items.append({source, targetFolder, name, isFolder, entry.size, entry.date});
    if (isFolder) {
        return addBelow(source, FilePaths::join(targetFolder, name), depth + 1);
    }
    ++m_fileCount;
    m_bytes += entry.size;
    return TransferStep::done();
}

TransferStep TransferPlan::addBelow(const QString &source, const QString &targetFolder, int depth)
{
    if (m_cancelled) {
        return TransferStep::cancelled();
    }
    if (depth > DeepestFolder) {
        return fail(source, TransferStep::failed(tr("the folders are nested too deeply")));
    }
    QVector<TransferSource::Entry> entries;
    if (const TransferStep step = m_source->list(source, entries); !step.isDone()) {
        return fail(source, step);
    }
    for (const TransferSource::Entry &entry : std::as_const(entries)) {
        TransferStep step =
            addEntry(FilePaths::join(source, entry.name), targetFolder, entry.name, entry, depth);
        if (!step.isDone()) {
            return step;
        }
    }
    return TransferStep::done();
}

bool TransferPlan::containsTarget(const QString &folder) const
{
    if (m_canonicalTarget.isEmpty()) {
        return false;
    }
    const QString canonical = QFileInfo(folder).canonicalFilePath();
    return m_canonicalTarget == canonical
        || m_canonicalTarget.startsWith(FilePaths::join(canonical, {}));
}

/// Notes a failure. @return what is left of it for the plan as a whole.
TransferStep TransferPlan::fail(const QString &path, const TransferStep &step)
{
    if (step.endsRun()) {
        return step;
    }
    m_failures.append({path, step.reason});
    return TransferStep::done();
}

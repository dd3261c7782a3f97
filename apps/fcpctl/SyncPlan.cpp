#include "SyncPlan.h"

#include "Failure.h"
#include "FileModels.h"
#include "RemoteTree.h"

#include <files/QvexFileModel.h>

#include <QDateTime>
#include <QFileInfo>
#include <QHash>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// Some file systems keep times to two seconds.
constexpr qint64 TimeStep = 2;

class Planner
{
public:
    Planner(FileSide &source, FileSide &target)
        : m_source(source)
        , m_target(target)
    {
    }

    void compare(const QModelIndex &source, const QModelIndex &target)
    {
        const QHash<QString, QModelIndex> there = byName(target);
        SyncPlan::Batch batch {m_target.model().filePath(target), {}};
        QList<std::pair<QModelIndex, QModelIndex>> inner;
        for (int row = 0; row < m_source.model().rowCount(source); ++row) {
            const QModelIndex child = m_source.model().index(row, 0, source);
            const QModelIndex twin = there.value(nameOf(child));
            if (!canBeCarried(child, twin)) {
                continue;
            }
            if (m_source.model().isDir(child) && twin.isValid()) {
                inner.append({child, twin});
            } else if (const auto why = reason(child, twin)) {
                batch.items.append(item(child, *why));
            } else {
                ++plan.same;
            }
        }
        if (!batch.items.isEmpty()) {
            plan.batches.append(batch);
        }
        for (const auto &[child, twin] : inner) {
            descend(child, twin);
        }
    }

    /// Everything, into a folder that is not there yet.
    void takeAll(const QModelIndex &source, const QString &targetFolder)
    {
        SyncPlan::Batch batch {targetFolder, {}};
        for (int row = 0; row < m_source.model().rowCount(source); ++row) {
            const QModelIndex child = m_source.model().index(row, 0, source);
            if (canBeCarried(child, {})) {
                batch.items.append(item(child, SyncPlan::Why::Missing));
            }
        }
        plan.batches.append(batch);
    }

    SyncPlan plan;

private:
    static QString nameOf(const QModelIndex &index)
    {
        return index.data(QvexFileModel::FileNameRole).toString();
    }

    QHash<QString, QModelIndex> byName(const QModelIndex &folder)
    {
        QHash<QString, QModelIndex> entries;
        for (int row = 0; row < m_target.model().rowCount(folder); ++row) {
            const QModelIndex child = m_target.model().index(row, 0, folder);
            entries.insert(nameOf(child), child);
        }
        return entries;
    }

    bool canBeCarried(const QModelIndex &source, const QModelIndex &target)
    {
        const QString path = m_source.model().filePath(source);
        if (nameOf(source).contains(u'/')) {
            return refuse(path, u"its name has a slash"_s);
        }
        if (!m_source.isInstrument() && QFileInfo(path).isSymLink()) {
            return refuse(path, u"symbolic links are not carried"_s);
        }
        if (target.isValid() && m_source.model().isDir(source) != m_target.model().isDir(target)) {
            return refuse(
                path,
                u"%1 is %2"_s.arg(m_target.model().filePath(target),
                                  m_target.model().isDir(target) ? u"a folder"_s : u"a file"_s));
        }
        // What is behind it may be anywhere.
        if (target.isValid() && !m_target.isInstrument() && m_target.model().isDir(target)
            && QFileInfo(m_target.model().filePath(target)).isSymLink()) {
            return refuse(path, u"%1 is a symbolic link"_s.arg(m_target.model().filePath(target)));
        }
        return true;
    }

    bool refuse(const QString &path, const QString &reason)
    {
        plan.obstacles.append({path, reason});
        return false;
    }

    static std::optional<SyncPlan::Why> reason(const QModelIndex &source, const QModelIndex &target)
    {
        using Why = SyncPlan::Why;
        if (!target.isValid()) {
            return Why::Missing;
        }
        constexpr int Size = QvexFileModel::FileSizeRole;
        if (source.data(Size).toLongLong() != target.data(Size).toLongLong()) {
            return Why::Size;
        }
        const QDateTime ours = source.data(QvexFileModel::FileTimeRole).toDateTime();
        const QDateTime theirs = target.data(QvexFileModel::FileTimeRole).toDateTime();
        const bool isOlder = ours.isValid() && theirs.isValid() && theirs.secsTo(ours) >= TimeStep;
        return isOlder ? std::optional(Why::Older) : std::nullopt;
    }

    SyncPlan::Item item(const QModelIndex &source, SyncPlan::Why why)
    {
        return {m_source.model().filePath(source), why, m_source.model().isDir(source),
                source.data(QvexFileModel::FileSizeRole).toLongLong()};
    }

    void descend(const QModelIndex &source, const QModelIndex &target)
    {
        const QPersistentModelIndex from = source;
        const QPersistentModelIndex to = target;
        try {
            m_source.list(from);
            m_target.list(to);
            compare(from, to);
        } catch (const Failure &failure) {
            if (failure.exit == Exit::NoLink) {
                throw;
            }
            refuse(m_source.model().filePath(from), failure.message);
        }
    }

    FileSide &m_source;
    FileSide &m_target;
};

} // namespace

SyncPlan SyncPlan::make(FileSide &sourceSide, const QString &source, FileSide &targetSide,
                        const QString &target)
{
    Planner planner(sourceSide, targetSide);
    const QPersistentModelIndex from = sourceSide.open(source);
    if (targetSide.isFolder(target)) {
        const QPersistentModelIndex to = targetSide.open(target);
        planner.compare(from, to);
    } else {
        planner.takeAll(from, target);
    }
    return planner.plan;
}

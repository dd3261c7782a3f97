#include "RemoteTarget.h"

#include <QLoggingCategory>

#include "FileNames.h"
#include "FilePaths.h"
#include "TemporaryName.h"
#include "TransferLink.h"

Q_DECLARE_LOGGING_CATEGORY(lcTransfer)

RemoteTarget::RemoteTarget(const TransferLink *link)
    : m_link(link)
{
}

TransferStep RemoteTarget::fetch(const QString &folder, Folder &listing) const
{
    QVector<FileSystemItem> items;
    const TransferStep step = m_link->list(folder, items);
    listing = {};
    for (const FileSystemItem &item : std::as_const(items)) {
        listing.entries.insert(item.name, {item.isdir, item.size, item.date});
        if (const auto leftover = TemporaryName::leftover(item.name)) {
            listing.leftovers[leftover->stem].append(item.name);
        }
    }
    return step;
}

TransferStep RemoteTarget::listed(const QString &folder, Folder *&listing)
{
    auto known = m_folders.find(folder);
    if (known == m_folders.end()) {
        Folder fresh;
        if (const TransferStep step = fetch(folder, fresh); !step.isDone()) {
            return step;
        }
        known = m_folders.insert(folder, fresh);
    }
    listing = &*known;
    return TransferStep::done();
}

/// Keeps the listing of a folder up to date; one that is not known is fetched when it is needed.
void RemoteTarget::remember(const QString &folder, const QString &name, const Entry &entry)
{
    const auto known = m_folders.find(folder);
    if (known != m_folders.end()) {
        known->entries.insert(name, entry);
    }
}

TransferStep RemoteTarget::find(const QString &folder, const QString &name,
                                std::optional<Entry> &entry)
{
    Folder *listing = nullptr;
    const TransferStep step = listed(folder, listing);
    entry.reset();
    if (step.isDone() && listing->entries.contains(name)) {
        entry = listing->entries.value(name);
    }
    return step;
}

TransferStep RemoteTarget::makeFolder(const QString &folder, const QString &name)
{
    QString made;
    if (const TransferStep step = m_link->makeFolder(folder, made); !step.isDone()) {
        return step;
    }
    const QString madeName = made.sliced(made.lastIndexOf(u'/') + 1);
    if (madeName != name) {
        if (TransferStep step = m_link->rename(folder, madeName, name); !step.isDone()) {
            m_link->remove(FilePaths::join(folder, madeName));
            return step.endsRun() ? step : existsNow(folder, name, step);
        }
    }
    remember(folder, name, {true, 0, {}});
    m_folders.insert(FilePaths::join(folder, name), {});
    return TransferStep::done();
}

TransferStep RemoteTarget::removeLeftovers(const QString &folder, const QString &name)
{
    Folder *listing = nullptr;
    if (TransferStep step = listed(folder, listing); !step.isDone()) {
        return step;
    }
    const QStringList names = listing->leftovers.take(TemporaryName::stemOf(name));
    for (const QString &leftoverName : names) {
        const auto leftover = TemporaryName::leftover(leftoverName);
        if (!leftover) {
            continue;
        }
        TransferStep step = leftover->isBackup
            ? settleBackup(folder, leftoverName, name)
            : m_link->remove(FilePaths::join(folder, leftoverName));
        if (step.endsRun()) {
            return step;
        }
        listing->entries.remove(leftoverName);
    }
    return TransferStep::done();
}

/// A run was cut off while it replaced a file: the old one gets its name back unless the new one
/// has it.
TransferStep RemoteTarget::settleBackup(const QString &folder, const QString &backup,
                                        const QString &name)
{
    QHash<QString, Entry> &entries = m_folders[folder].entries;
    if (entries.contains(name)) {
        return m_link->remove(FilePaths::join(folder, backup));
    }
    TransferStep step = m_link->rename(folder, backup, name);
    if (step.isDone()) {
        entries.insert(name, entries.value(backup));
    }
    return step;
}

TransferStep RemoteTarget::commit(const QString &folder, const TemporaryName &temporary,
                                  const QString &name, qint64 size, bool replace)
{
    TransferStep step =
        replace ? commitOver(folder, temporary, name) : commitNew(folder, temporary.part(), name);
    if (step.isDone()) {
        remember(folder, name, {false, size, {}});
    }
    return step;
}

TransferStep RemoteTarget::commitNew(const QString &folder, const QString &part,
                                     const QString &name)
{
    const TransferStep step = m_link->rename(folder, part, name);
    return step.code == TransferStep::Code::Failed ? existsNow(folder, name, step) : step;
}

/// A rename has failed: because somebody was faster, or for another reason.
TransferStep RemoteTarget::existsNow(const QString &folder, const QString &name,
                                     const TransferStep &failure)
{
    m_folders.remove(folder);
    std::optional<Entry> entry;
    const TransferStep step = find(folder, name, entry);
    if (!step.isDone()) {
        return step;
    }
    return entry ? TransferStep::exists() : failure;
}

TransferStep RemoteTarget::commitOver(const QString &folder, const TemporaryName &temporary,
                                      const QString &name)
{
    const QString backup = temporary.backup();
    TransferStep step = m_link->rename(folder, name, backup);
    if (step.code == TransferStep::Code::Failed) {
        step = existsNow(folder, name, step);
        // What was to be replaced has gone meanwhile, or can't be moved.
        return step.code == TransferStep::Code::Exists
            ? TransferStep::failed(tr("the instrument cannot replace %1").arg(name))
            : commitNew(folder, temporary.part(), name);
    }
    if (!step.isDone()) {
        return step;
    }
    step = m_link->rename(folder, temporary.part(), name);
    if (!step.isDone()) {
        const TransferStep back = m_link->rename(folder, backup, name);
        if (!back.isDone()) {
            step.reason = tr("%1; the old file may be called %2 now").arg(step.reason, backup);
        }
        return step;
    }
    if (const TransferStep removed = m_link->remove(FilePaths::join(folder, backup));
        !removed.isDone()) {
        qCInfo(lcTransfer).noquote() << removed.reason;
        m_folders.remove(folder);
    }
    return TransferStep::done();
}

TransferStep RemoteTarget::discard(const QString &folder, const TemporaryName &temporary)
{
    // Also what the controller itself writes beside it: a listing tells.
    Folder fresh;
    TransferStep step = fetch(folder, fresh);
    for (auto entry = fresh.entries.cbegin(); entry != fresh.entries.cend(); ++entry) {
        if (entry.key().startsWith(temporary.part())) {
            const TransferStep removed = m_link->remove(FilePaths::join(folder, entry.key()));
            step = removed.isDone() ? step : removed;
        }
    }
    return step;
}

qint64 RemoteTarget::bytesAvailable(const QString &) const
{
    return -1;
}

TransferStep RemoteTarget::flush()
{
    return TransferStep::done();
}

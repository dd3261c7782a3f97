#include "RemoteSource.h"

#include <algorithm>

#include "TransferLink.h"

RemoteSource::RemoteSource(const TransferLink *link)
    : m_link(link)
{
}

TransferStep RemoteSource::look(const QString &folder, const QString &name, Entry &entry)
{
    if (m_folder != folder || folder.isEmpty()) {
        m_entries.clear();
        m_folder.clear();
        if (TransferStep step = list(folder, m_entries); !step.isDone()) {
            return step;
        }
        m_folder = folder;
    }
    const auto found = std::find_if(m_entries.cbegin(), m_entries.cend(),
                                    [&](const Entry &item) { return item.name == name; });
    if (found == m_entries.cend()) {
        return TransferStep::failed(tr("it is not there"));
    }
    entry = *found;
    return TransferStep::done();
}

TransferStep RemoteSource::list(const QString &folder, QVector<Entry> &entries)
{
    QVector<FileSystemItem> items;
    TransferStep step = m_link->list(folder, items);
    for (const FileSystemItem &item : std::as_const(items)) {
        const auto type = item.isdir ? Entry::Type::Folder : Entry::Type::File;
        entries.append(
            {item.name, type, item.isdir ? 0 : std::max<qint64>(item.size, 0), item.date});
    }
    return step;
}

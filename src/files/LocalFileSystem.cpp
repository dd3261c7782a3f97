#include "LocalFileSystem.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

LocalFileSystem::LocalFileSystem()
    : m_sortedFilter(filter())
{
    // Before anyone else hears of them, who may ask at once.
    connect(this, &QAbstractItemModel::dataChanged, this, &LocalFileSystem::forgetTexts);
    connect(this, &QAbstractItemModel::rowsAboutToBeRemoved, this, &LocalFileSystem::forget);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &LocalFileSystem::forget);
    connect(this, &QAbstractItemModel::modelAboutToBeReset, this, &LocalFileSystem::forget);
    connect(this, &QAbstractItemModel::modelReset, this, &LocalFileSystem::forget);
    connect(this, &QFileSystemModel::fileRenamed, this, &LocalFileSystem::forget);
}

void LocalFileSystem::setUnsorted(bool isUnsorted)
{
    if (std::exchange(m_isUnsorted, isUnsorted) && !isUnsorted) {
        sort(0);
    }
}

QString LocalFileSystem::nameOf(const QModelIndex &index) const
{
    Entry *entry = entryAt(index);
    if (!entry) {
        return fileName(index);
    }
    if (entry->name.isEmpty()) {
        entry->name = fileName(index);
    }
    return entry->name;
}

/// Told by QFileSystemModel they cost as much as a look at the time zone, 17 for each sorted entry.
qint64 LocalFileSystem::timeOf(const QModelIndex &index) const
{
    Entry *entry = entryAt(index);
    if (!entry) {
        return lastModified(index).toMSecsSinceEpoch();
    }
    if (entry->time == UnknownTime) {
        entry->time = lastModified(index).toMSecsSinceEpoch();
    }
    return entry->time;
}

QModelIndex LocalFileSystem::index(int row, int column, const QModelIndex &parent) const
{
    if (m_isSorting || row < 0 || column < 0 || column >= columnCount(parent)) {
        return QFileSystemModel::index(row, column, parent);
    }
    Entries &entries = entriesOf(parent.internalPointer());
    const auto place = static_cast<size_t>(row);
    if (place < entries.size() && entries[place].id) {
        return createIndex(row, column, entries[place].id);
    }
    const QModelIndex found = QFileSystemModel::index(row, column, parent);
    if (found.isValid()) {
        entries.resize(std::max(entries.size(), static_cast<size_t>(rowCount(parent))));
        entries[place].id = found.internalPointer();
    }
    return found;
}

/// Sorting is also what makes the rows follow a new filter.
void LocalFileSystem::sort(int column, Qt::SortOrder order)
{
    if (m_isUnsorted && m_sortedFilter == filter()) {
        return;
    }
    forget();
    m_isSorting = true; // the rows move before anyone is told
    QFileSystemModel::sort(column, order);
    m_isSorting = false;
    m_sortedFilter = filter();
}

void LocalFileSystem::fetchMore(const QModelIndex &parent)
{
    if (canFetchMore(parent)) {
        Q_EMIT fetching(filePath(parent));
    }
    QFileSystemModel::fetchMore(parent);
}

LocalFileSystem::Entries &LocalFileSystem::entriesOf(const void *folder) const
{
    if (!m_entries || m_folder != folder) {
        m_entries = &m_folders[folder];
        m_folder = folder;
    }
    return *m_entries;
}

/// @return what is remembered of an index that index() has just made; of others, perhaps nothing.
LocalFileSystem::Entry *LocalFileSystem::entryAt(const QModelIndex &index) const
{
    const auto place = static_cast<size_t>(index.row());
    if (!m_entries || place >= m_entries->size()) {
        return nullptr;
    }
    Entry &entry = (*m_entries)[place];
    return entry.id == index.internalPointer() ? &entry : nullptr;
}

void LocalFileSystem::forget()
{
    m_folders.clear();
    m_entries = nullptr;
}

void LocalFileSystem::forgetTexts(const QModelIndex &first, const QModelIndex &last)
{
    const auto folder = m_folders.find(first.parent().internalPointer());
    if (folder == m_folders.end()) {
        return;
    }
    Entries &entries = folder->second;
    const size_t end = std::min(entries.size(), static_cast<size_t>(last.row()) + 1);
    for (auto place = static_cast<size_t>(first.row()); place < end; ++place) {
        entries[place].name.clear();
        entries[place].time = UnknownTime;
    }
}

#include "FileSortFilter.h"

#include <algorithm>
#include <numeric>

namespace {

/// More places than this where rows come or go are dearer for a view than laying out all.
constexpr size_t MostRanges = 16;

struct Range
{
    int place;
    int count;
};

void shift(std::vector<int> &rows, int from, int by)
{
    for (int &row : rows) {
        row += row >= from ? by : 0;
    }
}

void dropRows(std::vector<int> &rows, const std::function<bool(int)> &isDropped)
{
    rows.erase(std::remove_if(rows.begin(), rows.end(), isDropped), rows.end());
}

bool concerns(const QList<QPersistentModelIndex> &parents, const QPersistentModelIndex &folder)
{
    return parents.isEmpty() || parents.contains(folder);
}

} // namespace

FileSortFilter::FileSortFilter(QObject *parent)
    : QAbstractProxyModel(parent)
{
}

QvexFileModel *FileSortFilter::files() const
{
    return qobject_cast<QvexFileModel *>(sourceModel());
}

void FileSortFilter::setSourceModel(QAbstractItemModel *model)
{
    setFolder({});
    beginResetModel();
    if (sourceModel()) {
        sourceModel()->disconnect(this);
    }
    QAbstractProxyModel::setSourceModel(model);
    connectSource();
    endResetModel();
}

void FileSortFilter::connectSource()
{
    using Model = QAbstractItemModel;
    const Model *source = sourceModel();
    connect(source, &Model::rowsInserted, this, &FileSortFilter::added);
    connect(source, &Model::rowsAboutToBeRemoved, this, &FileSortFilter::aboutToBeRemoved);
    connect(source, &Model::rowsRemoved, this, &FileSortFilter::removed);
    connect(source, &Model::dataChanged, this, &FileSortFilter::changed);
    connect(source, &Model::layoutAboutToBeChanged, this, &FileSortFilter::keepPersistent);
    connect(source, &Model::layoutChanged, this, &FileSortFilter::restorePersistent);
    connect(source, &Model::modelAboutToBeReset, this, [this] { beginResetModel(); });
    connect(source, &Model::rowsAboutToBeMoved, this, [this] { beginResetModel(); });
    const auto reset = [this] {
        readAll();
        endResetModel();
    };
    connect(source, &Model::modelReset, this, reset);
    connect(source, &Model::rowsMoved, this, reset);
}

void FileSortFilter::setFolder(const QModelIndex &folder)
{
    if (m_folder != folder) {
        beginResetModel();
        m_folder = folder;
        readAll();
        endResetModel();
    }
}

void FileSortFilter::setSearch(const QString &text)
{
    if (m_search != text) {
        m_search = text;
        search();
    }
}

void FileSortFilter::setPatterns(const QStringList &patterns)
{
    m_patterns.clear();
    for (const QString &pattern : patterns) {
        m_patterns.append(
            QRegularExpression(QRegularExpression::wildcardToRegularExpression(pattern),
                               QRegularExpression::CaseInsensitiveOption));
    }
    for (FileSortKey &key : m_keys) {
        key.fitsType = fitsType(key);
    }
    search();
}

void FileSortFilter::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || (column == m_column && order == m_order)) {
        return;
    }
    const bool readsAnew = column != m_column;
    rearrange(
        [&] {
            m_column = column;
            m_order = order;
            if (readsAnew) {
                readAll();
                return;
            }
            std::sort(m_sorted.begin(), m_sorted.end(),
                      [this](int left, int right) { return isLess(left, right); });
            m_shown = passing(m_sorted);
        },
        VerticalSortHint);
}

// ---- Rows

QModelIndex FileSortFilter::mapToSource(const QModelIndex &index) const
{
    return index.isValid() && m_folder.isValid() && index.row() < rowCount()
        ? sourceModel()->index(m_shown[size_t(index.row())], index.column(), m_folder)
        : QModelIndex();
}

QModelIndex FileSortFilter::mapFromSource(const QModelIndex &index) const
{
    const int place = index.isValid() && isOurs(index.parent()) ? placeOf(index.row()) : -1;
    return place < 0 ? QModelIndex() : createIndex(place, index.column());
}

QModelIndex FileSortFilter::index(int row, int column, const QModelIndex &parent) const
{
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex FileSortFilter::parent(const QModelIndex &) const
{
    return {};
}

int FileSortFilter::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int FileSortFilter::columnCount(const QModelIndex &) const
{
    return QvexFileModel::ColumnCount;
}

bool FileSortFilter::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0;
}

bool FileSortFilter::canFetchMore(const QModelIndex &parent) const
{
    return !parent.isValid() && m_folder.isValid() && sourceModel()->canFetchMore(m_folder);
}

void FileSortFilter::fetchMore(const QModelIndex &parent)
{
    if (canFetchMore(parent)) {
        sourceModel()->fetchMore(m_folder);
    }
}

/// A view asks for those of every row when it lays them out.
Qt::ItemFlags FileSortFilter::flags(const QModelIndex &index) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return Qt::NoItemFlags;
    }
    Qt::ItemFlags flags = m_keys[size_t(m_shown[size_t(index.row())])].flags;
    if (index.column() != QvexFileModel::NameColumn) {
        flags &= ~Qt::ItemIsEditable;
    }
    return flags | Qt::ItemNeverHasChildren;
}

QVariant FileSortFilter::headerData(int section, Qt::Orientation orientation, int role) const
{
    return sourceModel() ? sourceModel()->headerData(section, orientation, role) : QVariant();
}

bool FileSortFilter::isOurs(const QModelIndex &parent) const
{
    return m_folder.isValid() && parent == m_folder;
}

bool FileSortFilter::fitsType(const FileSortKey &key) const
{
    return key.isDir || m_patterns.isEmpty()
        || std::any_of(m_patterns.cbegin(), m_patterns.cend(),
                       [&key](const auto &pattern) { return pattern.match(key.name).hasMatch(); });
}

FileSortKey FileSortFilter::readKey(int row) const
{
    FileSortKey key(sourceModel()->index(row, QvexFileModel::NameColumn, m_folder), m_column);
    key.fitsType = fitsType(key);
    return key;
}

void FileSortFilter::readAll()
{
    const int count = m_folder.isValid() ? sourceModel()->rowCount(m_folder) : 0;
    m_keys.resize(size_t(count));
    for (int row = 0; row < count; ++row) {
        m_keys[size_t(row)] = readKey(row);
    }
    m_sorted.resize(size_t(count));
    std::iota(m_sorted.begin(), m_sorted.end(), 0);
    std::sort(m_sorted.begin(), m_sorted.end(),
              [this](int left, int right) { return isLess(left, right); });
    m_shown = passing(m_sorted);
}

/// Folders are on top in either order; what is equal is in the source's.
bool FileSortFilter::isLess(int left, int right) const
{
    const FileSortKey &a = m_keys[size_t(left)];
    const FileSortKey &b = m_keys[size_t(right)];
    if (a.isDir != b.isDir) {
        return a.isDir;
    }
    const int order = a.compare(b);
    if (order == 0) {
        return left < right;
    }
    return (order < 0) == (m_order == Qt::AscendingOrder);
}

bool FileSortFilter::passes(int row) const
{
    const FileSortKey &key = m_keys[size_t(row)];
    return key.fitsType && (m_search.isEmpty() || key.name.contains(m_search, Qt::CaseInsensitive));
}

FileSortFilter::Rows FileSortFilter::passing(const Rows &rows) const
{
    Rows result;
    result.reserve(rows.size());
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(result),
                 [this](int row) { return passes(row); });
    return result;
}

/// @return -1 for one that is not shown.
int FileSortFilter::placeOf(int row) const
{
    if (row < 0 || size_t(row) >= m_keys.size()) {
        return -1;
    }
    const auto found =
        std::lower_bound(m_shown.begin(), m_shown.end(), row,
                         [this](int left, int right) { return isLess(left, right); });
    return found != m_shown.end() && *found == row ? int(found - m_shown.begin()) : -1;
}

/// Both are sorted.
void FileSortFilter::mergeInto(Rows &rows, const Rows &more) const
{
    const auto middle = std::ptrdiff_t(rows.size());
    rows.insert(rows.end(), more.begin(), more.end());
    std::inplace_merge(rows.begin(), rows.begin() + middle, rows.end(),
                       [this](int left, int right) { return isLess(left, right); });
}

// ---- Changes

/// What the views hold on to stays with its entry.
void FileSortFilter::rearrange(const std::function<void()> &change, LayoutChangeHint hint)
{
    Q_EMIT layoutAboutToBeChanged({}, hint);
    const QModelIndexList before = persistentIndexList();
    Rows rows;
    for (const QModelIndex &index : before) {
        rows.push_back(m_shown[size_t(index.row())]);
    }
    change();
    QModelIndexList after;
    for (size_t i = 0; i < rows.size(); ++i) {
        const int place = placeOf(rows[i]);
        after += place < 0 ? QModelIndex() : createIndex(place, before[qsizetype(i)].column());
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, hint);
}

void FileSortFilter::search()
{
    Rows found = passing(m_sorted);
    if (found != m_shown) {
        rearrange([&] { m_shown.swap(found); });
    }
}

void FileSortFilter::added(const QModelIndex &parent, int first, int last)
{
    if (!isOurs(parent)) {
        return;
    }
    const int count = last - first + 1;
    shift(m_sorted, first, count);
    shift(m_shown, first, count);
    m_keys.insert(m_keys.begin() + first, size_t(count), FileSortKey());
    Rows rows(static_cast<size_t>(count));
    std::iota(rows.begin(), rows.end(), first);
    for (const int row : rows) {
        m_keys[size_t(row)] = readKey(row);
    }
    std::sort(rows.begin(), rows.end(),
              [this](int left, int right) { return isLess(left, right); });
    mergeInto(m_sorted, rows);
    showMore(passing(rows));
}

/// Sorted ones, which are not shown yet.
void FileSortFilter::showMore(const Rows &rows)
{
    std::vector<Range> ranges;
    for (const int row : rows) {
        const auto at =
            std::lower_bound(m_shown.begin(), m_shown.end(), row,
                             [this](int left, int right) { return isLess(left, right); });
        const int place = int(at - m_shown.begin());
        if (ranges.empty() || ranges.back().place != place) {
            ranges.push_back({place, 0});
        }
        ++ranges.back().count;
    }
    if (ranges.size() > MostRanges) {
        rearrange([&] { mergeInto(m_shown, rows); });
        return;
    }
    auto end = rows.end();
    for (auto range = ranges.crbegin(); range != ranges.crend(); ++range) {
        beginInsertRows({}, range->place, range->place + range->count - 1);
        m_shown.insert(m_shown.begin() + range->place, end - range->count, end);
        endInsertRows();
        end -= range->count;
    }
}

void FileSortFilter::aboutToBeRemoved(const QModelIndex &parent, int first, int last)
{
    if (isOurs(parent)) {
        dropRows(m_sorted, [=](int row) { return row >= first && row <= last; });
        showFewer(first, last);
        return;
    }
    QModelIndex above = m_folder;
    while (above.isValid() && above.parent() != parent) {
        above = above.parent();
    }
    if (above.isValid() && above.row() >= first && above.row() <= last) {
        setFolder({});
    }
}

void FileSortFilter::showFewer(int first, int last)
{
    const auto goes = [=](int row) { return row >= first && row <= last; };
    std::vector<Range> ranges;
    for (int place = 0; place < rowCount(); ++place) {
        if (!goes(m_shown[size_t(place)])) {
            continue;
        }
        if (ranges.empty() || ranges.back().place + ranges.back().count != place) {
            ranges.push_back({place, 0});
        }
        ++ranges.back().count;
    }
    if (ranges.size() > MostRanges) {
        rearrange([&] { dropRows(m_shown, goes); });
        return;
    }
    for (auto range = ranges.crbegin(); range != ranges.crend(); ++range) {
        beginRemoveRows({}, range->place, range->place + range->count - 1);
        const auto begin = m_shown.begin() + range->place;
        m_shown.erase(begin, begin + range->count);
        endRemoveRows();
    }
}

void FileSortFilter::removed(const QModelIndex &parent, int first, int last)
{
    if (isOurs(parent)) {
        m_keys.erase(m_keys.begin() + first, m_keys.begin() + last + 1);
        shift(m_sorted, last, first - last - 1);
        shift(m_shown, last, first - last - 1);
    }
}

void FileSortFilter::changed(const QModelIndex &topLeft, const QModelIndex &bottomRight)
{
    if (!topLeft.isValid() || !isOurs(topLeft.parent())) {
        return;
    }
    std::vector<std::pair<int, FileSortKey>> keys;
    for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
        FileSortKey key = readKey(row);
        if (!(key == m_keys[size_t(row)])) {
            keys.emplace_back(row, std::move(key));
        } else {
            m_keys[size_t(row)].flags = key.flags;
        }
    }
    if (!keys.empty()) {
        rearrange([&] { replace(keys); });
    }
    int top = rowCount();
    int bottom = -1;
    for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
        if (const int place = placeOf(row); place >= 0) {
            top = std::min(top, place);
            bottom = std::max(bottom, place);
        }
    }
    if (bottom >= 0) {
        Q_EMIT dataChanged(index(top, 0), index(bottom, QvexFileModel::ColumnCount - 1));
    }
}

/// Takes rows out of their places, and brings them to where they belong now.
void FileSortFilter::replace(const std::vector<std::pair<int, FileSortKey>> &keys)
{
    std::vector<bool> moves(m_keys.size(), false);
    Rows rows;
    for (const auto &[row, key] : keys) {
        moves[size_t(row)] = true;
        m_keys[size_t(row)] = key;
        rows.push_back(row);
    }
    const auto isMoved = [&](int row) -> bool { return moves[size_t(row)]; };
    dropRows(m_sorted, isMoved);
    dropRows(m_shown, isMoved);
    std::sort(rows.begin(), rows.end(),
              [this](int left, int right) { return isLess(left, right); });
    mergeInto(m_sorted, rows);
    mergeInto(m_shown, passing(rows));
}

void FileSortFilter::keepPersistent(const QList<QPersistentModelIndex> &parents)
{
    m_keeps = m_folder.isValid() && concerns(parents, m_folder);
    if (!m_keeps) {
        return;
    }
    Q_EMIT layoutAboutToBeChanged();
    m_kept = persistentIndexList();
    m_keptSources.clear();
    for (const QModelIndex &index : std::as_const(m_kept)) {
        m_keptSources += mapToSource(index);
    }
}

void FileSortFilter::restorePersistent()
{
    if (!std::exchange(m_keeps, false)) {
        return;
    }
    readAll();
    QModelIndexList after;
    for (const QPersistentModelIndex &index : std::as_const(m_keptSources)) {
        after += mapFromSource(index);
    }
    changePersistentIndexList(std::exchange(m_kept, {}), after);
    m_keptSources.clear();
    Q_EMIT layoutChanged();
}

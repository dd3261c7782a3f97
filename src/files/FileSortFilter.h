#pragma once

#include <QAbstractProxyModel>
#include <QPersistentModelIndex>
#include <QRegularExpression>
#include <QVector>

#include <functional>
#include <vector>

#include "FileSortKey.h"
#include "QvexFileModel.h"

/**
 * The rows of one folder as a person wants them, as a list: folders first, numbers in names by
 * their value, and only those that fit the search and the chosen type.
 *
 * What is compared is read once for each entry: a folder of 100,000 entries is searched while one
 * types. Rows that come or go in many places at once are told as a new layout.
 */
class FileSortFilter : public QAbstractProxyModel
{
    Q_OBJECT

public:
    explicit FileSortFilter(QObject *parent = nullptr);

    QvexFileModel *files() const;
    void setSourceModel(QAbstractItemModel *model) override;
    /** Of the source; without one there are no rows. */
    void setFolder(const QModelIndex &folder);
    /** What names must contain, in any case. */
    void setSearch(const QString &text);
    /** Wildcards for the names of files; none passes all. */
    void setPatterns(const QStringList &patterns);
    /** Whether there may be entries that don't pass. */
    bool isSearching() const { return !m_search.isEmpty(); }
    bool isFiltering() const { return isSearching() || !m_patterns.isEmpty(); }

    QModelIndex mapToSource(const QModelIndex &index) const override;
    /** Invalid for what is not in the folder or does not pass. */
    QModelIndex mapFromSource(const QModelIndex &index) const override;
    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    using QObject::parent;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    using Rows = std::vector<int>; ///< of the source

    void connectSource();
    void added(const QModelIndex &parent, int first, int last);
    void aboutToBeRemoved(const QModelIndex &parent, int first, int last);
    void removed(const QModelIndex &parent, int first, int last);
    void changed(const QModelIndex &topLeft, const QModelIndex &bottomRight);
    void keepPersistent(const QList<QPersistentModelIndex> &parents);
    void restorePersistent();

    bool isOurs(const QModelIndex &parent) const;
    bool fitsType(const FileSortKey &key) const;
    FileSortKey readKey(int row) const;
    void readAll();
    bool isLess(int left, int right) const;
    bool passes(int row) const;
    Rows passing(const Rows &rows) const;
    int placeOf(int row) const;
    void mergeInto(Rows &rows, const Rows &more) const;
    void showMore(const Rows &rows);
    void showFewer(int first, int last);
    void search();
    void replace(const std::vector<std::pair<int, FileSortKey>> &keys);
    void rearrange(const std::function<void()> &change, LayoutChangeHint hint = NoLayoutChangeHint);

    QPersistentModelIndex m_folder;
    QString m_search;
    QVector<QRegularExpression> m_patterns;
    int m_column = QvexFileModel::NameColumn;
    Qt::SortOrder m_order = Qt::AscendingOrder;
    std::vector<FileSortKey> m_keys; ///< by row of the source
    Rows m_sorted; ///< all
    Rows m_shown; ///< those that pass
    bool m_keeps = false; ///< the source changes the folder's layout
    QModelIndexList m_kept; ///< persistent ones, while the source changes its layout
    QList<QPersistentModelIndex> m_keptSources;
};

#pragma once

#include <QPersistentModelIndex>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QVector>

#include "QvexFileModel.h"

/**
 * The rows of one folder as a person wants them: folders first, numbers by their value, and only
 * those that fit the search and the chosen type. Rows outside the folder all pass, or else the
 * folder itself would go with its ancestors.
 */
class FileSortFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit FileSortFilter(QObject *parent = nullptr);

    QvexFileModel *files() const;
    /** Of the source. */
    void setFolder(const QModelIndex &folder);
    /** What names must contain, in any case. */
    void setSearch(const QString &text);
    /** Wildcards for the names of files; none passes all. */
    void setPatterns(const QStringList &patterns);
    /** Whether there may be entries that don't pass. */
    bool isFiltering() const { return !m_search.isEmpty() || !m_patterns.isEmpty(); }

    /** By name, whole numbers in it by their value: "trace9" before "trace10". */
    static int compareNames(const QString &left, const QString &right);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    int compare(const QModelIndex &left, const QModelIndex &right) const;
    bool fitsType(const QString &name) const;

    QPersistentModelIndex m_folder;
    QString m_search;
    QVector<QRegularExpression> m_patterns;
};

#pragma once

#include <QModelIndex>
#include <QString>

/** What an entry of a folder is sorted by. */
struct FileSortKey
{
    FileSortKey() = default;
    /** Of an entry of a QvexFileModel, for the sorting by @p column. */
    FileSortKey(const QModelIndex &entry, int column);

    /** Negative, 0 or positive; folders and files are not told apart. */
    int compare(const FileSortKey &other) const;
    bool operator==(const FileSortKey &other) const;

    QString name;
    QString order; ///< compares as names are sorted: "trace9" before "trace10"
    QString text; ///< of the column, where there is no number
    qint64 number = 0; ///< of the column
    Qt::ItemFlags flags; ///< of the name
    bool isDir = false;
    bool fitsType = true; ///< for its owner
};

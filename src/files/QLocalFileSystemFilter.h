#pragma once

#include <QDir>
#include <QSortFilterProxyModel>

#include <memory>

#include "VexExport.h"

class QFileSystemModel;

/**
 * The local disk as a tree, without the entries that are not to be listed. It owns the
 * QFileSystemModel that is its source model.
 *
 * Of an entry it asks, in this order: the kinds of entries of setFilter(); for a folder named
 * "Logs" or "Properties", in just these letters, whether special folders are shown; for a file the
 * name filters, and, when its suffix is one of the file types of setVexFilters(), its XML head (see
 * XmlFileHeader): it must be valid and match setHeadFilter(). Heads are read once for each version
 * of a file, known by its size and time, and of regular files only, on a thread of their own: a
 * file is listed when its head is known, one that has changed goes by the old head until then. The
 * folders that lead to the source model's root path are listed whatever their names.
 *
 * Names and suffixes are matched in any case of letters, unless setFilter() has
 * QDir::CaseSensitive.
 *
 * Columns, texts and roles are those of QvexFileModel. Sorted by Size it goes by the bytes, folders
 * first, by Date Modified by the time, else by the texts. Unsorted it has the order of its source:
 * folders first, then by name as a person would. A root that is opened for the first time is sorted
 * when all of its rows are there.
 */
class VEX_EXPORT QLocalFileSystemFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    /** In a @p readOnly one nothing can be renamed. */
    explicit QLocalFileSystemFilter(bool readOnly, QObject *parent = nullptr);
    ~QLocalFileSystemFilter() override;

    QFileSystemModel *fileSystem() const;

    /** Default: all, but "." and ".." and what is hidden. */
    void setFilter(QDir::Filters filters);
    QDir::Filters filter() const;
    void setNameFilters(const QStringList &filters);
    QStringList nameFilters() const;
    void setVexFilters(const QStringList &nameFilters, const QStringList &fileTypes);
    QStringList fileTypes() const;
    /**
     * What a head must have in AppType and AppTech, letter by letter; empty (the default) stands
     * for anything.
     */
    void setHeadFilter(const QString &appType, const QString &appTech);
    /** Default: not shown. */
    void showSpecialFolders(bool show);

    /** See QFileSystemModel::setRootPath(); for a folder that is there. */
    QModelIndex setRootPath(const QString &path);

    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /**
     * Renames an entry. Refused, without any message, for a name that is empty, taken, or that no
     * file can have.
     */
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    /** An index of this model from the parts that one was made of. */
    QModelIndex rebuiltIndex(int row, int column, void *id) const;

Q_SIGNALS:
    /** As in QFileSystemModel, when all heads are known and the rows are sorted. */
    void directoryLoaded(const QString &path);
    void fileRenamed(const QString &path, const QString &oldName, const QString &newName);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    void followListing();
    void startListing(const QString &path);
    void settle();
    void endOpening();

    struct Private;
    const std::unique_ptr<Private> d;
};

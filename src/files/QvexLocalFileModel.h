#pragma once

#include <memory>

#include "QvexFileModel.h"

class QLocalFileSystemFilter;

/**
 * The files of the local disk. It follows the disk by itself: what is made, removed or renamed in
 * a folder that has been listed shows up without a refresh.
 *
 * Entries are renamed through setData(); the long operations are LocalHelperThread's, results are
 * its. In a read-only model they end with EROFS, newDirectory() returns an empty name, and renaming
 * is refused.
 *
 * Icons need a QApplication, and only when they are asked for; the rest does with a
 * QCoreApplication.
 */
class VEX_EXPORT QvexLocalFileModel : public QvexFileModel
{
    Q_OBJECT

public:
    explicit QvexLocalFileModel(QObject *parent = nullptr, bool readOnly = false);
    /** Cancels a running operation and waits for it; no completion signal follows. */
    ~QvexLocalFileModel() override;

    /**
     * A path that is no folder changes nothing, except when there is no root yet: then the nearest
     * folder above it becomes the root. @return the index of the root.
     *
     * When the root vanishes later, the nearest folder that is left above it becomes the root, with
     * rootPathChanged().
     */
    QModelIndex setRootPath(const QString &path) override;
    QString rootPath() const override;

    QModelIndex fileIndex(const QString &path) const override;
    QString filePath(const QModelIndex &index) const override;
    bool isDir(const QModelIndex &index) const override;

    void setFilter(QDir::Filters filters) override;
    QDir::Filters filter() const override;
    void setNameFilters(const QStringList &filters) override;
    void setVexFilters(const QStringList &nameFilters, const QStringList &fileTypes) override;
    /** See QLocalFileSystemFilter. */
    void setHeadFilter(const QString &appType, const QString &appTech);
    /** Whether the folders "Logs" and "Properties" are listed. Default: no. */
    void showSpecialFolders(bool show);

    /** Named "Untitled", with as many "_" behind as it takes to be new. */
    QString newDirectory(const QModelIndex &parent) override;

    long deleteFileDirectory(const QVector<QString> &paths) override;
    long moveFileDirectory(const QVector<QString> &paths, const QString &destination) override;
    long copyFileDirectory(const QVector<QString> &paths, const QString &destination) override;

    /**
     * Reads a folder again, and watches it again, where the system told of no changes: on network
     * drives, for files that grow, and after it ran out of watches. Ends in directoryLoaded().
     */
    void refreshDirectory(const QModelIndex &index) override;
    bool isListed(const QModelIndex &index) const override;
    QString resultText(long result) const override;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    using QObject::parent;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /** A @p column of -1 brings the order of QLocalFileSystemFilter's source back. */
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

public Q_SLOTS:
    void cancelThread() override;

private Q_SLOTS:
    void removeComplete_i(long result, const QString &more);
    void copyComplete_i(long result, const QString &more);
    void moveComplete_i(long result, const QString &more);

private:
    struct Private;

    QModelIndex mapFromFilter(const QModelIndex &index) const;
    QModelIndex mapToFilter(const QModelIndex &index) const;
    void forwardRows();
    void forwardLayout();

    const std::unique_ptr<Private> d;
};

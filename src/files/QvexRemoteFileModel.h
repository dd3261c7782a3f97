#pragma once

#include <memory>

#include "QvexFileModel.h"
#include "VexExport.h"

class FcpAppCORBA;

/**
 * The instrument's files as a tree.
 *
 * Its one top-level row stands for the whole storage, has the path "/", and reads
 * "Instrument (host)"; its entries are the storage roots. A directory is listed when it is expanded
 * (fetchMore()), made the root path, or refreshed, and never otherwise. Entries are in the
 * controller's order.
 *
 * ### Refreshing
 * Entries that are still there, by name and kind, keep their row's identity: persistent indexes,
 * selection and expansion stay, and so does what is below them. Of several entries with one name
 * the first is matched with the first, the second with the second. They share a path, which
 * fileIndex() takes for the first of them, and the controller for one of them.
 *
 * A listing that fails leaves its directory empty and unlisted; expanding it again tries again, a
 * quarter of a second later at the earliest. A lost link by itself changes nothing: nothing is
 * listed without a link but on explicit request.
 *
 * ### Names that are no names
 * An entry whose name is empty, "." or "..", or holds a "/", is shown disabled and has an empty
 * filePath(). Control characters and bytes that are no text are shown by visible signs; the
 * EditRole and FileNameRole have the name as it is.
 *
 * ### Long operations
 * Besides the results of QvexFileModel and the controller's own codes, which are passed on
 * unchanged, an operation may end with one of RemoteResult. After each item the directory that held
 * the source is refreshed, at the end the destination too, where they are listed.
 */
class VEX_EXPORT QvexRemoteFileModel : public QvexFileModel
{
    Q_OBJECT

public:
    enum RemoteResult : int {
        LinkLost = -7, ///< it is not known what has become of the item
        NoPath = -8, ///< an item or the destination has no path that names it alone; not tried
        NotMade = -9, ///< a new folder; the controller does not say why
    };

    /** @p controller is not owned and must outlive the model. */
    explicit QvexRemoteFileModel(FcpAppCORBA *controller, QObject *parent = nullptr);
    /**
     * Does not wait for the controller's call that a thread of the model is in: that ends by itself
     * later, and the controller's destructor waits for it.
     */
    ~QvexRemoteFileModel() override;

    /**
     * Whether listings run on a thread and their rows come in portions, so that the thread of the
     * model never waits. Off by default: a listing is complete when the call returns that wants it.
     */
    void setAsynchronous(bool asynchronous);
    bool isAsynchronous() const;
    /** Whether a listing of this directory is under way. */
    bool isLoading(const QModelIndex &index) const;

    /**
     * Also lists the directory, unless it is the root path and listed already. A directory that is
     * not known, because nobody has listed its parent, appears there at once. Invalid for a file.
     */
    QModelIndex setRootPath(const QString &path) override;
    QString rootPath() const override;
    QModelIndex fileIndex(const QString &path) const override;
    QString filePath(const QModelIndex &index) const override;
    bool isDir(const QModelIndex &index) const override;

    /**
     * By default AllEntries, AllDirs and NoDotAndDotDot. A new filter lists the listed directories
     * from the root path down again, others when they are next expanded.
     */
    void setFilter(QDir::Filters filters) override;
    QDir::Filters filter() const override;
    void setNameFilters(const QStringList &filters) override;
    /** Sets the name filters: the controller lets nobody look into many files at once. */
    void setVexFilters(const QStringList &nameFilters, const QStringList &fileTypes) override;

    QString newDirectory(const QModelIndex &parent) override;
    /**
     * newDirectory() and setData() as long operations, so that nobody waits for the controller. One
     * of those runs at a time: Done when it was started, which newDirectoryComplete() or
     * renameComplete() ends, else Busy. cancelThread() does not stop them.
     */
    long createDirectory(const QModelIndex &parent);
    long rename(const QModelIndex &index, const QString &newName);
    long deleteFileDirectory(const QVector<QString> &paths) override;
    long moveFileDirectory(const QVector<QString> &paths, const QString &destination) override;
    long copyFileDirectory(const QVector<QString> &paths, const QString &destination) override;
    void refreshDirectory(const QModelIndex &index) override;
    bool isListed(const QModelIndex &index) const override;
    QString resultText(long result) const override;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    using QObject::parent;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /** Renames, on the instrument first. */
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

public Q_SLOTS:
    void cancelThread() override;

Q_SIGNALS:
    /** A listing on the thread has begun, or has ended in any way. */
    void loadingChanged(const QString &path, bool loading);
    /** Instead of directoryLoaded(). */
    void listingFailed(const QString &path);
    /** The path of the new folder is empty unless @p result is Done. It is listed soon after. */
    void newDirectoryComplete(long result, const QString &path);
    void renameComplete(long result, const QString &oldName, const QString &newName);

private Q_SLOTS:
    void removeComplete_i(long result, const QString &more, bool final);
    void copyComplete_i(long result, const QString &src, const QString &dst, bool final);
    void moveComplete_i(long result, const QString &src, const QString &dst, bool final);
    void makeFolderComplete_i(long result, const QString &parent, const QString &path);
    void renameComplete_i(long result, const QString &path, const QString &newName);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

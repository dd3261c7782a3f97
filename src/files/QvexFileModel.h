#pragma once

#include <QAbstractItemModel>
#include <QDir>
#include <QStringList>
#include <QVector>

#include "VexExport.h"

/**
 * A tree of files, on the instrument or on the local disk, behind one interface.
 *
 * Paths are absolute and have "/" between their names. An entry whose name holds a "/" (only a
 * faulty controller tells such names) can be seen, but has no path that an operation could use.
 *
 * Deleting, copying and moving run on a worker thread, one operation at a time for each model: the
 * call that starts it returns at once, and the operation ends in exactly one deleteComplete(),
 * copyComplete() or moveComplete(), whatever happens. Methods belong to the thread of the model,
 * signals are emitted there.
 *
 * Sorting and searching are a proxy's: FileSizeRole and FileTimeRole are what to sort by.
 */
class VEX_EXPORT QvexFileModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, SizeColumn, TypeColumn, DateColumn, ColumnCount };

    /** Roles of every column; the first two are numbered as in QFileSystemModel. */
    enum Role {
        FilePathRole = Qt::UserRole + 1, ///< QString, as filePath()
        FileNameRole, ///< QString
        FileSizeRole = Qt::UserRole + 16, ///< qlonglong, bytes; 0 for a directory
        FileTimeRole, ///< QDateTime of the last change, or the controller's text where it is none
        IsDirRole, ///< bool
        EntryCountRole, ///< int, entries of a directory; -1 when not known
    };

    /** Results of the long operations that both models have in common. */
    enum Result : int {
        Done = 0,
        Cancelled = -5,
        Busy = -6, ///< refused: an operation runs already; no completion signal follows
    };

    explicit QvexFileModel(QObject *parent = nullptr);
    ~QvexFileModel() override;

    /** Makes a directory the root of the view. The index is that of fileIndex(). */
    virtual QModelIndex setRootPath(const QString &path) = 0;
    virtual QString rootPath() const = 0;

    /** Invalid when the path is not known, or not yet. */
    virtual QModelIndex fileIndex(const QString &path) const = 0;
    virtual QString filePath(const QModelIndex &index) const = 0;
    virtual bool isDir(const QModelIndex &index) const = 0;

    /** Which kinds of entries are listed. */
    virtual void setFilter(QDir::Filters filters) = 0;
    virtual QDir::Filters filter() const = 0;
    /** Wildcard patterns for the names of files; an empty list lists all. */
    virtual void setNameFilters(const QStringList &filters) = 0;
    /**
     * The name filters together with the suffixes, without a dot, of the files whose XML head is
     * looked into where the model can do that.
     */
    virtual void setVexFilters(const QStringList &nameFilters, const QStringList &fileTypes) = 0;

    /** Creates a folder. @return its name, empty when it could not be made. */
    virtual QString newDirectory(const QModelIndex &parent) = 0;

    /** Each returns Done when the operation was started, else Busy. */
    virtual long deleteFileDirectory(const QVector<QString> &paths) = 0;
    virtual long moveFileDirectory(const QVector<QString> &paths, const QString &destination) = 0;
    virtual long copyFileDirectory(const QVector<QString> &paths, const QString &destination) = 0;

    /** Fetches a directory's entries again, where the model does not watch them by itself. */
    virtual void refreshDirectory(const QModelIndex &index) = 0;
    /**
     * Whether the entries of a directory are known, even if there are none. A listing that failed
     * leaves a directory unlisted.
     */
    virtual bool isListed(const QModelIndex &index) const = 0;
    /** A result of a completion signal in words for a person; empty for Done. */
    virtual QString resultText(long result) const = 0;

    /** The Size column's text of a file: "1023 bytes", "1 KB", "1.0 MB", "1.000 TB". */
    static QString sizeText(qint64 bytes);
    /** The Type column's text. */
    static QString typeText(const QString &name, bool isDir);
    /** The header's text of a column. */
    static QString columnText(int column);

public Q_SLOTS:
    /** Asks a running operation to stop after the current item. It ends with Cancelled then. */
    virtual void cancelThread() = 0;

Q_SIGNALS:
    /** The entries of @p path were fetched; not emitted when that failed. */
    void directoryLoaded(const QString &path);
    void rootPathChanged(const QString &newPath);
    /** An entry of the directory @p path has got another name. */
    void fileRenamed(const QString &path, const QString &oldName, const QString &newName);
    /**
     * An operation has ended. @p result is Done, Cancelled, or the reason why it stopped (see
     * resultText()); @p more is the path that it stopped at, empty otherwise.
     */
    void deleteComplete(long result, const QString &more);
    void copyComplete(long result, const QString &more);
    void moveComplete(long result, const QString &more);
};

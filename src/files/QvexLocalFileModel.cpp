#include "QvexLocalFileModel.h"

#include <QFileInfo>
#include <QFileSystemModel>
#include <QSet>

#include <cerrno>

#include "LocalHelperThread.h"
#include "QLocalFileSystemFilter.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString nearestFolder(const QString &path)
{
    QString folder = path;
    while (folder != "/"_L1 && !QFileInfo(folder).isDir()) {
        folder = QFileInfo(folder).path();
    }
    return folder;
}

QString cleanFolderPath(const QString &path)
{
    return QDir::cleanPath(QDir(path.isEmpty() ? u"/"_s : path).absolutePath());
}

bool isTaken(const QString &path)
{
    const QFileInfo entry(path);
    return entry.exists() || entry.isSymLink();
}

} // namespace

struct QvexLocalFileModel::Private
{
    using Operation = LocalHelperThread::Operation;

    Private(QvexLocalFileModel *model, bool isReadOnly)
        : q(model)
        , readOnly(isReadOnly)
        , filter(isReadOnly)
    {
    }

    QFileSystemModel &files() const { return *filter.fileSystem(); }
    QModelIndex toSource(const QModelIndex &index) const
    {
        return filter.mapToSource(q->mapToFilter(index));
    }
    QModelIndex fromSource(const QModelIndex &index) const
    {
        return q->mapFromFilter(filter.mapFromSource(index));
    }
    void rememberListed(const QString &path);
    void forgetRemoved();
    void leaveVanishedRoot();
    void adoptRoot(const QString &path);
    void readAgain(const QString &path);
    long start(Operation operation, const QVector<QString> &paths, const QString &destination);
    void complete(Operation operation, long result, const QString &more);
    void ended();

    QvexLocalFileModel *const q;
    const bool readOnly;
    bool isBusy = false;
    QString root; ///< empty before the first setRootPath()
    QSet<QString> listed;
    QVector<QPersistentModelIndex> movedFrom; ///< while the layout changes: the filter's
    QModelIndexList moved; ///< and this model's
    QLocalFileSystemFilter filter;
    LocalHelperThread thread;
};

void QvexLocalFileModel::Private::rememberListed(const QString &path)
{
    // A folder that may not be read looks like an empty one.
    if (const QFileInfo folder(path); folder.isDir() && folder.isReadable()) {
        listed.insert(path);
        Q_EMIT q->directoryLoaded(path);
    } else {
        listed.remove(path);
        leaveVanishedRoot(); // that it is gone is told as if it had been read again
    }
}

/// Folders made anew under an old name are not listed yet.
void QvexLocalFileModel::Private::forgetRemoved()
{
    listed.removeIf([](const QString &path) { return !QFileInfo(path).isDir(); });
    leaveVanishedRoot();
}

void QvexLocalFileModel::Private::leaveVanishedRoot()
{
    if (!root.isEmpty() && !QFileInfo(root).isDir()) {
        adoptRoot(nearestFolder(root));
    }
}

void QvexLocalFileModel::Private::adoptRoot(const QString &path)
{
    filter.setRootPath(path);
    if (std::exchange(root, path) != path) {
        Q_EMIT q->rootPathChanged(path);
    }
}

/**
 * QFileSystemModel has no call for this, but it forgets what it knows of a root that it leaves:
 * coming back to it lists it and sets its watch once more.
 */
void QvexLocalFileModel::Private::readAgain(const QString &path)
{
    files().setRootPath(path);
    files().setRootPath(QString());
    files().setRootPath(root.isEmpty() ? path : root);
    files().fetchMore(files().index(path));
}

long QvexLocalFileModel::Private::start(Operation operation, const QVector<QString> &paths,
                                        const QString &destination)
{
    if (isBusy) {
        return Busy;
    }
    isBusy = true;
    if (readOnly) {
        const QString more = paths.value(0);
        QMetaObject::invokeMethod(
            q, [this, operation, more] { complete(operation, EROFS, more); }, Qt::QueuedConnection);
        return Done;
    }
    thread.setTask(operation, paths, destination);
    thread.start();
    return Done;
}

void QvexLocalFileModel::Private::complete(Operation operation, long result, const QString &more)
{
    switch (operation) {
    case Operation::Remove:
        return q->removeComplete_i(result, more);
    case Operation::Copy:
        return q->copyComplete_i(result, more);
    case Operation::Move:
        return q->moveComplete_i(result, more);
    }
}

/// The thread has said its last and is about to end.
void QvexLocalFileModel::Private::ended()
{
    thread.wait();
    isBusy = false;
}

QvexLocalFileModel::QvexLocalFileModel(QObject *parent, bool readOnly)
    : QvexFileModel(parent)
    , d(std::make_unique<Private>(this, readOnly))
{
    forwardRows();
    forwardLayout();
    connect(&d->filter, &QLocalFileSystemFilter::directoryLoaded, this,
            [this](const QString &path) { d->rememberListed(path); });
    connect(&d->filter, &QLocalFileSystemFilter::fileRenamed, this,
            &QvexLocalFileModel::fileRenamed);
    connect(&d->thread, &LocalHelperThread::removeComplete, this,
            &QvexLocalFileModel::removeComplete_i, Qt::QueuedConnection);
    connect(&d->thread, &LocalHelperThread::copyComplete, this, &QvexLocalFileModel::copyComplete_i,
            Qt::QueuedConnection);
    connect(&d->thread, &LocalHelperThread::moveComplete, this, &QvexLocalFileModel::moveComplete_i,
            Qt::QueuedConnection);
}

QvexLocalFileModel::~QvexLocalFileModel()
{
    d->filter.disconnect(this);
}

void QvexLocalFileModel::forwardRows()
{
    const QLocalFileSystemFilter *filter = &d->filter;
    connect(filter, &QAbstractItemModel::rowsAboutToBeInserted, this,
            [this](const QModelIndex &parent, int first, int last) {
                beginInsertRows(mapFromFilter(parent), first, last);
            });
    connect(filter, &QAbstractItemModel::rowsInserted, this, [this] { endInsertRows(); });
    connect(filter, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex &parent, int first, int last) {
                beginRemoveRows(mapFromFilter(parent), first, last);
            });
    connect(filter, &QAbstractItemModel::rowsRemoved, this, [this] { endRemoveRows(); });
    connect(
        filter, &QAbstractItemModel::rowsRemoved, this, [this] { d->forgetRemoved(); },
        Qt::QueuedConnection);
    connect(filter, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &first, const QModelIndex &last, const QVector<int> &roles) {
                Q_EMIT dataChanged(mapFromFilter(first), mapFromFilter(last), roles);
            });
    connect(filter, &QAbstractItemModel::modelAboutToBeReset, this, [this] { beginResetModel(); });
    connect(filter, &QAbstractItemModel::modelReset, this, [this] { endResetModel(); });
}

/// Rows move by changes of the layout only, columns never.
void QvexLocalFileModel::forwardLayout()
{
    const auto parentsOf = [this](const QList<QPersistentModelIndex> &parents) {
        QList<QPersistentModelIndex> mapped;
        for (const QPersistentModelIndex &parent : parents) {
            mapped.append(mapFromFilter(parent));
        }
        return mapped;
    };
    connect(&d->filter, &QAbstractItemModel::layoutAboutToBeChanged, this,
            [this, parentsOf](const QList<QPersistentModelIndex> &parents, LayoutChangeHint hint) {
                Q_EMIT layoutAboutToBeChanged(parentsOf(parents), hint);
                d->moved = persistentIndexList();
                for (const QModelIndex &index : std::as_const(d->moved)) {
                    d->movedFrom.append(mapToFilter(index));
                }
            });
    connect(&d->filter, &QAbstractItemModel::layoutChanged, this,
            [this, parentsOf](const QList<QPersistentModelIndex> &parents, LayoutChangeHint hint) {
                QModelIndexList now;
                for (const QPersistentModelIndex &index : std::as_const(d->movedFrom)) {
                    now.append(mapFromFilter(index));
                }
                changePersistentIndexList(d->moved, now);
                d->moved.clear();
                d->movedFrom.clear();
                Q_EMIT layoutChanged(parentsOf(parents), hint);
            });
}

QModelIndex QvexLocalFileModel::mapFromFilter(const QModelIndex &index) const
{
    return index.isValid() ? createIndex(index.row(), index.column(), index.internalPointer())
                           : QModelIndex();
}

QModelIndex QvexLocalFileModel::mapToFilter(const QModelIndex &index) const
{
    return index.isValid()
        ? d->filter.rebuiltIndex(index.row(), index.column(), index.internalPointer())
        : QModelIndex();
}

QModelIndex QvexLocalFileModel::setRootPath(const QString &path)
{
    const QString folder = cleanFolderPath(path);
    if (QFileInfo(folder).isDir()) {
        d->adoptRoot(folder);
    } else if (d->root.isEmpty()) {
        d->adoptRoot(nearestFolder(folder));
    } else {
        d->leaveVanishedRoot();
    }
    return fileIndex(d->root);
}

QString QvexLocalFileModel::rootPath() const
{
    return d->root;
}

QModelIndex QvexLocalFileModel::fileIndex(const QString &path) const
{
    return d->fromSource(d->files().index(path));
}

QString QvexLocalFileModel::filePath(const QModelIndex &index) const
{
    return index.isValid() ? d->files().filePath(d->toSource(index)) : QString();
}

bool QvexLocalFileModel::isDir(const QModelIndex &index) const
{
    return index.isValid() && d->files().isDir(d->toSource(index));
}

void QvexLocalFileModel::setFilter(QDir::Filters filters)
{
    d->filter.setFilter(filters);
}

QDir::Filters QvexLocalFileModel::filter() const
{
    return d->filter.filter();
}

void QvexLocalFileModel::setNameFilters(const QStringList &filters)
{
    d->filter.setNameFilters(filters);
}

void QvexLocalFileModel::setVexFilters(const QStringList &nameFilters, const QStringList &fileTypes)
{
    d->filter.setVexFilters(nameFilters, fileTypes);
}

void QvexLocalFileModel::setHeadFilter(const QString &appType, const QString &appTech)
{
    d->filter.setHeadFilter(appType, appTech);
}

void QvexLocalFileModel::showSpecialFolders(bool show)
{
    d->filter.showSpecialFolders(show);
}

QString QvexLocalFileModel::newDirectory(const QModelIndex &parent)
{
    const QString folder = parent.isValid() ? filePath(parent) : d->root;
    if (d->readOnly || folder.isEmpty() || !QFileInfo(folder).isDir()) {
        return QString();
    }
    const QDir place(folder);
    QString name = u"Untitled"_s;
    while (isTaken(place.filePath(name))) {
        name += u'_';
    }
    if (!place.mkpath(name)) {
        return QString();
    }
    d->files().index(place.filePath(name)); // its row need not wait for the watch
    return name;
}

long QvexLocalFileModel::deleteFileDirectory(const QVector<QString> &paths)
{
    return d->start(Private::Operation::Remove, paths, QString());
}

long QvexLocalFileModel::moveFileDirectory(const QVector<QString> &paths,
                                           const QString &destination)
{
    return d->start(Private::Operation::Move, paths, destination);
}

long QvexLocalFileModel::copyFileDirectory(const QVector<QString> &paths,
                                           const QString &destination)
{
    return d->start(Private::Operation::Copy, paths, destination);
}

void QvexLocalFileModel::cancelThread()
{
    d->thread.cancel();
}

void QvexLocalFileModel::refreshDirectory(const QModelIndex &index)
{
    const QString path = index.isValid() ? filePath(index) : d->root;
    d->leaveVanishedRoot();
    if (QFileInfo(path).isDir()) {
        d->readAgain(path);
    }
}

bool QvexLocalFileModel::isListed(const QModelIndex &index) const
{
    return index.isValid() && d->listed.contains(filePath(index));
}

QString QvexLocalFileModel::resultText(long result) const
{
    return LocalHelperThread::resultText(result);
}

void QvexLocalFileModel::removeComplete_i(long result, const QString &more)
{
    d->ended();
    Q_EMIT deleteComplete(result, more);
}

void QvexLocalFileModel::copyComplete_i(long result, const QString &more)
{
    d->ended();
    Q_EMIT copyComplete(result, more);
}

void QvexLocalFileModel::moveComplete_i(long result, const QString &more)
{
    d->ended();
    Q_EMIT moveComplete(result, more);
}

QModelIndex QvexLocalFileModel::index(int row, int column, const QModelIndex &parent) const
{
    return mapFromFilter(d->filter.index(row, column, mapToFilter(parent)));
}

QModelIndex QvexLocalFileModel::parent(const QModelIndex &child) const
{
    return mapFromFilter(d->filter.parent(mapToFilter(child)));
}

int QvexLocalFileModel::rowCount(const QModelIndex &parent) const
{
    return d->filter.rowCount(mapToFilter(parent));
}

int QvexLocalFileModel::columnCount(const QModelIndex &parent) const
{
    return d->filter.columnCount(mapToFilter(parent));
}

bool QvexLocalFileModel::hasChildren(const QModelIndex &parent) const
{
    return d->filter.hasChildren(mapToFilter(parent));
}

bool QvexLocalFileModel::canFetchMore(const QModelIndex &parent) const
{
    return d->filter.canFetchMore(mapToFilter(parent));
}

void QvexLocalFileModel::fetchMore(const QModelIndex &parent)
{
    d->filter.fetchMore(mapToFilter(parent));
}

QVariant QvexLocalFileModel::data(const QModelIndex &index, int role) const
{
    return d->filter.data(mapToFilter(index), role);
}

bool QvexLocalFileModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    return d->filter.setData(mapToFilter(index), value, role);
}

QVariant QvexLocalFileModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return d->filter.headerData(section, orientation, role);
}

Qt::ItemFlags QvexLocalFileModel::flags(const QModelIndex &index) const
{
    return d->filter.flags(mapToFilter(index));
}

void QvexLocalFileModel::sort(int column, Qt::SortOrder order)
{
    d->filter.sort(column, order);
}

#include "QvexRemoteFileModel.h"

#include "FilePaths.h"
#include "QvexRemoteFileModel_p.h"
#include "corba/FcpAppCORBA.h"

using namespace Qt::StringLiterals;

QvexRemoteFileModel::QvexRemoteFileModel(FcpAppCORBA *controller, QObject *parent)
    : QvexFileModel(parent)
    , d(std::make_unique<Private>(this, controller))
{
    connect(d->helper.get(), &RemoteHelperThread::removeComplete, this,
            &QvexRemoteFileModel::removeComplete_i, Qt::QueuedConnection);
    connect(d->helper.get(), &RemoteHelperThread::copyComplete, this,
            &QvexRemoteFileModel::copyComplete_i, Qt::QueuedConnection);
    connect(d->helper.get(), &RemoteHelperThread::moveComplete, this,
            &QvexRemoteFileModel::moveComplete_i, Qt::QueuedConnection);
    connect(d->helper.get(), &RemoteHelperThread::makeFolderComplete, this,
            &QvexRemoteFileModel::makeFolderComplete_i, Qt::QueuedConnection);
    connect(d->helper.get(), &RemoteHelperThread::renameComplete, this,
            &QvexRemoteFileModel::renameComplete_i, Qt::QueuedConnection);
}

QvexRemoteFileModel::~QvexRemoteFileModel() = default;

void QvexRemoteFileModel::setAsynchronous(bool asynchronous)
{
    d->asynchronous = asynchronous;
}

bool QvexRemoteFileModel::isAsynchronous() const
{
    return d->asynchronous;
}

bool QvexRemoteFileModel::isLoading(const QModelIndex &index) const
{
    return index.isValid() && d->isLoading(Private::nodeOf(index));
}

QModelIndex QvexRemoteFileModel::setRootPath(const QString &path)
{
    const QString clean = QvexRemoteFileSystemAbstract::cleanPath(path);
    RemoteNode *node = clean.isEmpty() ? nullptr : d->makeKnown(clean);
    if (!node) {
        return {};
    }
    if (const bool changes = clean != d->rootPath; changes || !node->isListed()) {
        d->rootPath = clean;
        if (!d->isLoading(node)) {
            d->list(node);
        }
        if (changes) {
            Q_EMIT rootPathChanged(clean);
        }
    }
    return fileIndex(clean);
}

QString QvexRemoteFileModel::rootPath() const
{
    return d->rootPath;
}

QModelIndex QvexRemoteFileModel::fileIndex(const QString &path) const
{
    // An empty path is that of an entry without one; cleaned it would be the root's.
    return path.isEmpty() ? QModelIndex()
                          : d->indexOf(d->tree.find(QvexRemoteFileSystemAbstract::cleanPath(path)));
}

QString QvexRemoteFileModel::filePath(const QModelIndex &index) const
{
    return index.isValid() ? d->tree.path(Private::nodeOf(index)) : QString();
}

bool QvexRemoteFileModel::isDir(const QModelIndex &index) const
{
    return index.isValid() && Private::nodeOf(index)->item.isdir;
}

void QvexRemoteFileModel::setFilter(QDir::Filters filters)
{
    if (filters != d->filter) {
        d->filter = filters;
        d->refilter();
    }
}

QDir::Filters QvexRemoteFileModel::filter() const
{
    return d->filter;
}

void QvexRemoteFileModel::setNameFilters(const QStringList &filters)
{
    setVexFilters(filters, d->fileTypes);
}

void QvexRemoteFileModel::setVexFilters(const QStringList &nameFilters,
                                        const QStringList &fileTypes)
{
    d->fileTypes = fileTypes;
    if (nameFilters != d->nameFilters) {
        d->nameFilters = nameFilters;
        d->refilter();
    }
}

QString QvexRemoteFileModel::newDirectory(const QModelIndex &parent)
{
    const QString directory = isDir(parent) ? filePath(parent) : QString();
    const QString made = directory.isEmpty() ? QString() : d->controller->newDirectory(directory);
    if (!made.isEmpty()) {
        d->list(Private::nodeOf(parent));
    }
    return made.sliced(made.lastIndexOf(u'/') + 1);
}

long QvexRemoteFileModel::createDirectory(const QModelIndex &parent)
{
    return d->startTask(RemoteHelperThread::Kind::MakeFolder,
                        {isDir(parent) ? filePath(parent) : QString()});
}

long QvexRemoteFileModel::rename(const QModelIndex &index, const QString &newName)
{
    const bool can = index.isValid() && d->canRename(Private::nodeOf(index), newName);
    const long started = d->startTask(RemoteHelperThread::Kind::Rename,
                                      {can ? filePath(index) : QString()}, newName);
    if (started == Done) {
        d->renamed = index;
    }
    return started;
}

long QvexRemoteFileModel::deleteFileDirectory(const QVector<QString> &paths)
{
    return d->startTask(RemoteHelperThread::Kind::Remove, paths);
}

long QvexRemoteFileModel::moveFileDirectory(const QVector<QString> &paths,
                                            const QString &destination)
{
    return d->startTask(RemoteHelperThread::Kind::Move, paths, destination);
}

long QvexRemoteFileModel::copyFileDirectory(const QVector<QString> &paths,
                                            const QString &destination)
{
    return d->startTask(RemoteHelperThread::Kind::Copy, paths, destination);
}

void QvexRemoteFileModel::cancelThread()
{
    d->helper->cancel();
}

void QvexRemoteFileModel::removeComplete_i(long result, const QString &more, bool final)
{
    d->taskReported(more, final);
    if (final) {
        Q_EMIT deleteComplete(result, more);
    }
}

void QvexRemoteFileModel::copyComplete_i(long result, const QString &src, const QString &,
                                         bool final)
{
    d->taskReported(src, final);
    if (final) {
        Q_EMIT copyComplete(result, src);
    }
}

void QvexRemoteFileModel::moveComplete_i(long result, const QString &src, const QString &,
                                         bool final)
{
    d->taskReported(src, final);
    if (final) {
        Q_EMIT moveComplete(result, src);
    }
}

void QvexRemoteFileModel::makeFolderComplete_i(long result, const QString &parent,
                                               const QString &path)
{
    d->taskRuns = false;
    d->refresh(parent);
    Q_EMIT newDirectoryComplete(result, path);
}

void QvexRemoteFileModel::renameComplete_i(long result, const QString &path, const QString &newName)
{
    d->taskRuns = false;
    const QString oldName = path.sliced(path.lastIndexOf(u'/') + 1);
    // A listing that came meanwhile may have taken the row away, or brought the new name.
    if (result == Done && newName != oldName && filePath(d->renamed) == path) {
        d->giveName(Private::nodeOf(d->renamed), newName);
    }
    d->renamed = QModelIndex();
    if (!path.isEmpty()) {
        d->refresh(FilePaths::parentOf(path));
    }
    Q_EMIT renameComplete(result, oldName, newName);
}

void QvexRemoteFileModel::refreshDirectory(const QModelIndex &index)
{
    if (index.isValid()) {
        d->list(Private::nodeOf(index));
    }
}

bool QvexRemoteFileModel::isListed(const QModelIndex &index) const
{
    return index.isValid() && Private::nodeOf(index)->isListed();
}

QString QvexRemoteFileModel::resultText(long result) const
{
    switch (result) {
    case Done:
        return {};
    case Cancelled:
        return tr("It was cancelled.");
    case Busy:
        return tr("Another operation is still running.");
    case LinkLost:
        return tr("The link to the instrument was lost; it is not known whether it was done.");
    case NoPath:
        return tr("Its name can't be used.");
    case NotMade:
        return tr("No folder could be made here: it may be protected.");
    default:
        return RemoteDisplay::errorText(result);
    }
}

QModelIndex QvexRemoteFileModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    return d->indexOf(parent.isValid() ? Private::nodeOf(parent)->child(row) : d->tree.root(),
                      column);
}

QModelIndex QvexRemoteFileModel::parent(const QModelIndex &index) const
{
    return index.isValid() ? d->indexOf(Private::nodeOf(index)->parent) : QModelIndex();
}

int QvexRemoteFileModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid()) {
        return 1;
    }
    return parent.column() == NameColumn ? Private::nodeOf(parent)->childCount() : 0;
}

int QvexRemoteFileModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

bool QvexRemoteFileModel::hasChildren(const QModelIndex &parent) const
{
    if (!parent.isValid() || parent.column() != NameColumn) {
        return !parent.isValid();
    }
    const RemoteNode *node = Private::nodeOf(parent);
    const bool mayHave = !node->isListed() && node->item.dircount != 0 && d->canList(node);
    return node->childCount() > 0 || mayHave;
}

bool QvexRemoteFileModel::canFetchMore(const QModelIndex &parent) const
{
    return parent.isValid() && parent.column() == NameColumn
        && d->wantsListing(Private::nodeOf(parent));
}

void QvexRemoteFileModel::fetchMore(const QModelIndex &parent)
{
    if (canFetchMore(parent)) {
        d->list(Private::nodeOf(parent));
    }
}

Qt::ItemFlags QvexRemoteFileModel::flags(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    const RemoteNode *node = Private::nodeOf(index);
    Qt::ItemFlags flags = node->item.isdir ? Qt::NoItemFlags : Qt::ItemNeverHasChildren;
    if (node == d->tree.root()) {
        return flags | Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    }
    if (QvexRemoteFileSystemAbstract::hasPath(node)) {
        flags |= Qt::ItemIsSelectable | Qt::ItemIsEnabled;
        flags.setFlag(Qt::ItemIsEditable, index.column() == NameColumn);
    }
    return flags;
}

QVariant QvexRemoteFileModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const RemoteNode *node = Private::nodeOf(index);
    const int column = index.column();
    switch (role) {
    case Qt::EditRole:
        if (column == NameColumn && node != d->tree.root()) {
            return node->item.name;
        }
        [[fallthrough]];
    case Qt::DisplayRole:
        return d->displayText(node, column);
    case Qt::DecorationRole:
        return column == NameColumn ? QVariant(d->icon(node)) : QVariant();
    case Qt::TextAlignmentRole:
        return column == SizeColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case FilePathRole:
        return d->tree.path(node);
    case FileNameRole:
        return node->item.name;
    case FileSizeRole:
        return node->item.isdir ? qlonglong(0) : qlonglong(node->item.size);
    case FileTimeRole:
        return RemoteDisplay::time(node->item.date);
    case IsDirRole:
        return node->item.isdir;
    case EntryCountRole:
        return node->item.isdir ? std::max(-1, node->item.dircount) : -1;
    default:
        return {};
    }
}

bool QvexRemoteFileModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    return role == Qt::EditRole && index.isValid() && index.column() == NameColumn
        && d->rename(Private::nodeOf(index), value.toString());
}

QVariant QvexRemoteFileModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractItemModel::headerData(section, orientation, role);
    }
    return columnText(section);
}

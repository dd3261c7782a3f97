#include "QvexRemoteFileModel_p.h"

#include <algorithm>
#include <chrono>
#include <limits>

#include "FileNames.h"
#include "FilePaths.h"
#include "LateThread.h"
#include "corba/FcpAppCORBA.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A view that lays out its rows asks again and again for what failed; a person takes longer.
constexpr auto RetryPause = 250ms;

/// A slice of merging ends when it has taken so long; what comes in between are the views.
constexpr qint64 SliceNs = 5'000'000;
constexpr qint64 ShortStepNs = SliceNs / 4;
constexpr qint32 SmallestBatch = 16;
constexpr qint32 FirstBatch = 256;
constexpr qint32 LargestBatch = 16'384;
constexpr qint32 AllAtOnce = std::numeric_limits<qint32>::max();

/// A step's cost is that of the views behind the model, a sorting proxy's above all.
qint32 fittingBatch(qint32 batch, qint64 nanoseconds)
{
    if (nanoseconds > SliceNs) {
        return std::max(SmallestBatch, batch / 2);
    }
    return nanoseconds < ShortStepNs ? std::min(LargestBatch, batch * 2) : batch;
}

} // namespace

QvexRemoteFileModel::Private::Private(QvexRemoteFileModel *model, FcpAppCORBA *controllerProxy)
    : q(model)
    , controller(controllerProxy)
    , host(controllerProxy->getHost())
    , batch(FirstBatch)
    , helper(std::make_unique<RemoteHelperThread>(controllerProxy))
{
    slices.setInterval(0);
    QObject::connect(&slices, &QTimer::timeout, model, [this] { mergeSlice(); });
}

QvexRemoteFileModel::Private::~Private()
{
    helper->cancel();
    LateThread::letGo(std::move(helper), controller);
    if (lister) {
        lister->end();
        LateThread::letGo(std::move(lister), controller);
    }
}

void QvexRemoteFileModel::Private::readHost()
{
    if (const QString now = controller->getHost(); now != host) {
        host = now;
        Q_EMIT q->dataChanged(indexOf(tree.root()), indexOf(tree.root()));
    }
}

RemoteNode *QvexRemoteFileModel::Private::nodeOf(const QModelIndex &index)
{
    return static_cast<RemoteNode *>(index.internalPointer());
}

QModelIndex QvexRemoteFileModel::Private::indexOf(const RemoteNode *node, int column) const
{
    return node ? q->createIndex(node->row, column, node) : QModelIndex();
}

bool QvexRemoteFileModel::Private::canList(const RemoteNode *node) const
{
    return node && node->item.isdir && QvexRemoteFileSystemAbstract::hasPath(node);
}

bool QvexRemoteFileModel::Private::wantsListing(const RemoteNode *node) const
{
    return canList(node) && !node->isListed() && !isLoading(node)
        && (!node->branch || node->branch->retry.hasExpired()) && controller->isConnected();
}

/// Directories on the way that nobody has listed are put there; a later listing finds them by name.
RemoteNode *QvexRemoteFileModel::Private::makeKnown(const QString &path)
{
    RemoteNode *node = tree.root();
    const QStringList names = path.split(u'/', Qt::SkipEmptyParts);
    for (const QString &name : names) {
        RemoteNode *child = QvexRemoteFileSystemAbstract::child(node, name);
        if (!child) {
            RemoteNodes nodes;
            nodes.push_back(std::make_unique<RemoteNode>(
                FileSystemItem {.name = name, .date = {}, .isdir = true, .dircount = -1}));
            child = nodes.front().get();
            insertRows(node, node->childCount(), nodes.begin(), 1);
            restart(node);
        }
        if (!child->item.isdir) {
            return nullptr;
        }
        node = child;
    }
    return node;
}

// ---- Listing

void QvexRemoteFileModel::Private::list(RemoteNode *node)
{
    if (!canList(node)) {
        return;
    }
    const auto running = listings.find(node);
    if (running == listings.end()) {
        asynchronous ? listOnThread(node) : listNow(node);
        return;
    }
    Listing &listing = running->second;
    if (!listing.threaded || asynchronous) {
        // One that has not reached the controller yet will tell what is to be known.
        listing.again = !listing.threaded || !lister->isWaiting(listing.id);
        return;
    }
    drop(node);
    listNow(node);
}

RemoteLister::Request QvexRemoteFileModel::Private::request(quint64 id, RemoteNode *node,
                                                            const QString &path) const
{
    return {id, path, nameFilters, filter, QvexRemoteFileSystemAbstract::entries(node)};
}

void QvexRemoteFileModel::Private::listNow(RemoteNode *node)
{
    const QString path = tree.path(node);
    const quint64 id = ++lastListing;
    listings[node] = {.id = id, .path = path, .merge = {}};
    const auto diff = RemoteLister::list(controller, request(id, node, path));
    if (!diff) {
        fail(node);
        return;
    }
    listings[node].merge = std::make_shared<RemoteMerge>(this, node, diff);
    while (mergeStep(node, id, AllAtOnce)) { }
}

void QvexRemoteFileModel::Private::listOnThread(RemoteNode *node)
{
    if (!lister) {
        lister = std::make_unique<RemoteLister>(controller, [this] {
            QMetaObject::invokeMethod(
                q, [this] { deliver(); }, Qt::QueuedConnection);
        });
    }
    const QString path = tree.path(node);
    const quint64 id = ++lastListing;
    listings[node] = {.id = id, .path = path, .merge = {}, .threaded = true};
    lister->post(request(id, node, path));
    Q_EMIT q->loadingChanged(path, true);
}

void QvexRemoteFileModel::Private::deliver()
{
    for (const RemoteLister::Result &result : lister->takeResults()) {
        RemoteNode *node = directoryOf(result.id);
        if (node && result.diff) {
            listings[node].merge = std::make_shared<RemoteMerge>(this, node, result.diff);
            batch = FirstBatch;
            slices.start();
        } else if (node) { // else it has been dropped meanwhile
            fail(node);
        }
    }
}

RemoteNode *QvexRemoteFileModel::Private::directoryOf(quint64 id) const
{
    const auto found = std::find_if(listings.begin(), listings.end(),
                                    [id](const auto &entry) { return entry.second.id == id; });
    return found == listings.end() ? nullptr : const_cast<RemoteNode *>(found->first);
}

void QvexRemoteFileModel::Private::mergeSlice()
{
    QElapsedTimer slice;
    slice.start();
    while (slice.nsecsElapsed() < SliceNs) {
        const auto ready = std::find_if(listings.begin(), listings.end(), [](const auto &entry) {
            return entry.second.threaded && entry.second.merge;
        });
        if (ready == listings.end()) {
            slices.stop();
            return;
        }
        QElapsedTimer step;
        step.start();
        mergeStep(const_cast<RemoteNode *>(ready->first), ready->second.id, batch);
        batch = fittingBatch(batch, step.nsecsElapsed());
    }
}

/// @return whether more is to be done. What listens to the rows may have dropped the listing.
bool QvexRemoteFileModel::Private::mergeStep(RemoteNode *node, quint64 id, qint32 rows)
{
    const std::shared_ptr<RemoteMerge> merge = listings[node].merge;
    merge->step(rows);
    if (directoryOf(id) != node) {
        return false;
    }
    if (merge->isOver()) {
        finish(node);
        return false;
    }
    return true;
}

void QvexRemoteFileModel::Private::finish(RemoteNode *node)
{
    const bool changesSigns = listings[node].merge->changesSigns();
    node->makeBranch().listed = true;
    if (node == tree.root()) {
        readHost();
    }
    const quint64 id = listings[node].id;
    if (changesSigns) {
        relayout(node);
    }
    if (directoryOf(id) == node) {
        end(node, &QvexRemoteFileModel::directoryLoaded);
    }
}

void QvexRemoteFileModel::Private::fail(RemoteNode *node)
{
    const quint64 id = listings[node].id;
    RemoteBranch &directory = node->makeBranch();
    directory.listed = false;
    directory.retry.setRemainingTime(RetryPause);
    if (!directory.children.empty()) {
        removeRows(node, 0, node->childCount());
    }
    if (directoryOf(id) == node) {
        end(node, &QvexRemoteFileModel::listingFailed);
    }
}

void QvexRemoteFileModel::Private::end(RemoteNode *node,
                                       void (QvexRemoteFileModel::*outcome)(const QString &))
{
    const Listing listing = listings.extract(node).mapped();
    if (listing.again) {
        const auto listAgain = [this, index = QPersistentModelIndex(indexOf(node))] {
            list(index.isValid() ? nodeOf(index) : nullptr);
        };
        QMetaObject::invokeMethod(q, listAgain, Qt::QueuedConnection);
    }
    if (listing.threaded) {
        Q_EMIT q->loadingChanged(listing.path, false);
    }
    Q_EMIT(q->*outcome)(listing.path);
}

void QvexRemoteFileModel::Private::drop(RemoteNode *node)
{
    const Listing listing = listings.extract(node).mapped();
    if (listing.threaded) {
        lister->drop(listing.id);
        Q_EMIT q->loadingChanged(listing.path, false);
    }
}

void QvexRemoteFileModel::Private::dropBelow(RemoteNode *directory, qint32 row, qint32 count)
{
    std::vector<RemoteNode *> below;
    for (const auto &entry : listings) {
        auto *node = const_cast<RemoteNode *>(entry.first);
        RemoteNode *top = node;
        while (top && top->parent != directory) {
            top = top->parent;
        }
        if (top && top->row >= row && top->row < row + count) {
            below.push_back(node);
        }
    }
    for (RemoteNode *node : below) {
        drop(node);
    }
}

void QvexRemoteFileModel::Private::restart(RemoteNode *node)
{
    if (isLoading(node)) {
        drop(node);
        list(node);
    }
}

void QvexRemoteFileModel::Private::refresh(const QString &path)
{
    RemoteNode *node = tree.find(path);
    if (node && (node->isListed() || isLoading(node)) && controller->isConnected()) {
        list(node);
    }
}

void QvexRemoteFileModel::Private::refilter()
{
    const RemoteNode *top = tree.find(rootPath);
    QStringList paths;
    const QVector<RemoteNode *> listed =
        QvexRemoteFileSystemAbstract::listedDirectories(tree.root());
    for (RemoteNode *node : listed) {
        node->branch->listed = false;
        if (!top || QvexRemoteFileSystemAbstract::isBelow(node, top)) {
            paths.append(tree.path(node));
        }
    }
    std::vector<RemoteNode *> loading;
    for (const auto &entry : listings) {
        loading.push_back(const_cast<RemoteNode *>(entry.first));
    }
    std::for_each(loading.begin(), loading.end(), [this](RemoteNode *node) { restart(node); });
    for (const QString &path : std::as_const(paths)) {
        RemoteNode *node = tree.find(path); // unless a listing above has removed it
        if (wantsListing(node)) {
            list(node);
        }
    }
}

// ---- Operations

bool QvexRemoteFileModel::Private::canRename(const RemoteNode *node, const QString &newName) const
{
    return node != tree.root() && QvexRemoteFileSystemAbstract::hasPath(node)
        && QvexRemoteFileSystemAbstract::isName(newName);
}

bool QvexRemoteFileModel::Private::rename(RemoteNode *node, const QString &newName)
{
    const QString oldName = node->item.name;
    if (!canRename(node, newName)) {
        return false;
    }
    if (newName == oldName) {
        return true;
    }
    const QString directory = tree.path(node->parent);
    const quint64 link = controller->linkSerial();
    if (link == 0 || controller->renameFileDirectory(directory, oldName, newName) != 0
        || controller->linkSerial() != link) { // the proxy gives 0 for a lost link, too
        return false;
    }
    giveName(node, newName);
    return true;
}

void QvexRemoteFileModel::Private::giveName(RemoteNode *node, const QString &newName)
{
    const QString oldPath = tree.path(node);
    const QString oldName = std::exchange(node->item.name, newName);
    const QString directory = tree.path(node->parent);
    rowsChanged(node->parent, node->row, node->row);
    followRename(oldPath, FilePaths::join(directory, newName));
    Q_EMIT q->fileRenamed(directory, oldName, newName);
}

void QvexRemoteFileModel::Private::followRename(const QString &oldPath, const QString &newPath)
{
    std::vector<RemoteNode *> outdated;
    const QString directory = FilePaths::parentOf(oldPath);
    for (const auto &[node, listing] : listings) {
        if (listing.path == directory || listing.path == oldPath
            || listing.path.startsWith(oldPath + u'/')) {
            outdated.push_back(const_cast<RemoteNode *>(node));
        }
    }
    std::for_each(outdated.begin(), outdated.end(), [this](RemoteNode *node) { restart(node); });
    if (rootPath == oldPath || rootPath.startsWith(oldPath + u'/')) {
        rootPath.replace(0, oldPath.size(), newPath);
        Q_EMIT q->rootPathChanged(rootPath);
    }
}

long QvexRemoteFileModel::Private::startTask(RemoteHelperThread::Kind kind,
                                             const QVector<QString> &sources,
                                             const QString &destination)
{
    if (taskRuns) {
        return Busy;
    }
    taskRuns = true;
    taskDestination =
        destination.isEmpty() ? QString() : QvexRemoteFileSystemAbstract::cleanPath(destination);
    helper->setTask(kind, sources, destination);
    helper->start();
    return Done;
}

void QvexRemoteFileModel::Private::taskReported(const QString &source, bool final)
{
    if (!final) {
        expectEntries(taskDestination);
    }
    if (const QString path = QvexRemoteFileSystemAbstract::cleanPath(source); !source.isEmpty()) {
        refresh(FilePaths::parentOf(path));
    }
    if (final) {
        taskRuns = false;
        refresh(taskDestination);
    }
}

/// An empty directory that nobody has listed shows no expanding sign, but may have got entries.
void QvexRemoteFileModel::Private::expectEntries(const QString &path)
{
    RemoteNode *node = tree.find(path);
    if (node && node->item.isdir && !node->isListed() && node->item.dircount == 0) {
        node->item.dircount = -1;
        rowsChanged(node->parent, node->row, node->row);
        relayout(node->parent);
    }
}

// ---- Rows

void QvexRemoteFileModel::Private::insertRows(RemoteNode *directory, qint32 row,
                                              RemoteNodes::iterator first, qint32 count)
{
    q->beginInsertRows(indexOf(directory), row, row + count - 1);
    QvexRemoteFileSystemAbstract::insert(directory, row, first, count);
    q->endInsertRows();
}

void QvexRemoteFileModel::Private::removeRows(RemoteNode *directory, qint32 row, qint32 count)
{
    dropBelow(directory, row, count);
    q->beginRemoveRows(indexOf(directory), row, row + count - 1);
    const RemoteNodes removed = QvexRemoteFileSystemAbstract::take(directory, row, count);
    q->endRemoveRows();
}

void QvexRemoteFileModel::Private::reorderRows(RemoteNode *directory,
                                               const std::vector<qint32> &order)
{
    const QList<QPersistentModelIndex> parents {QPersistentModelIndex(indexOf(directory))};
    Q_EMIT q->layoutAboutToBeChanged(parents);
    const QModelIndexList before = q->persistentIndexList();
    QvexRemoteFileSystemAbstract::reorder(directory, order);
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &index : before) {
        after.append(indexOf(nodeOf(index), index.column()));
    }
    q->changePersistentIndexList(before, after);
    Q_EMIT q->layoutChanged(parents);
}

void QvexRemoteFileModel::Private::rowsChanged(RemoteNode *directory, qint32 first, qint32 last)
{
    Q_EMIT q->dataChanged(indexOf(directory->child(first)),
                          indexOf(directory->child(last), ColumnCount - 1));
}

/// Views learn so that rows show expanding signs, or don't any more.
void QvexRemoteFileModel::Private::relayout(RemoteNode *directory)
{
    const QList<QPersistentModelIndex> parents {QPersistentModelIndex(indexOf(directory))};
    Q_EMIT q->layoutAboutToBeChanged(parents);
    Q_EMIT q->layoutChanged(parents);
}

QString QvexRemoteFileModel::Private::displayText(const RemoteNode *node, int column) const
{
    switch (column) {
    case NameColumn:
        if (node == tree.root()) {
            return host.isEmpty() ? tr("Instrument") : tr("Instrument (%1)").arg(host);
        }
        return FileNames::shown(node->item.name);
    case SizeColumn:
        return node->item.isdir ? QString() : sizeText(node->item.size);
    case TypeColumn:
        return typeText(FileNames::shown(node->item.name), node->item.isdir);
    case DateColumn:
        return node->item.date;
    default:
        return {};
    }
}

QIcon QvexRemoteFileModel::Private::icon(const RemoteNode *node) const
{
    using RemoteDisplay::Icons;
    if (node == tree.root()) {
        return icons.icon(Icons::Instrument);
    }
    if (node->parent == tree.root() && node->item.name == tr("Internal")) {
        return icons.icon(Icons::InternalRoot);
    }
    if (node->parent == tree.root() && node->item.name == tr("Remote")) {
        return icons.icon(Icons::RemoteRoot);
    }
    return icons.icon(node->item.isdir ? Icons::Folder : Icons::File);
}

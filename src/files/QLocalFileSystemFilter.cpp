#include "QLocalFileSystemFilter.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QPointer>
#include <QRegularExpression>
#include <QSet>
#include <QTimer>
#include <QVector>

#include <algorithm>
#include <climits>

#include "FileHeadCache.h"
#include "FileKindIcons.h"
#include "LocalFileSystem.h"
#include "QvexFileModel.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Whether the suffix of @p name is one of @p suffixes.
bool hasSuffix(const QString &name, const QStringList &suffixes, Qt::CaseSensitivity sensitivity)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot >= 0 && suffixes.contains(QStringView(name).sliced(dot + 1), sensitivity);
}

bool isSpecialFolder(const QString &name)
{
    return name == "Logs"_L1 || name == "Properties"_L1;
}

/// Whether a new name for an entry of @p folder can be tried.
bool isFreeName(const QString &folder, const QString &name)
{
    if (name.isEmpty() || name == "."_L1 || name == ".."_L1 || name.contains(u'/')
        || name.contains(QChar::Null) || QFile::encodeName(name).size() > NAME_MAX) {
        return false;
    }
    const QFileInfo taken(folder + u'/' + name);
    return !taken.exists() && !taken.isSymLink();
}

} // namespace

struct QLocalFileSystemFilter::Private
{
    bool isNameListed(const QString &name) const;
    bool isHeadListed(const QFileInfo &file);
    bool isDotHidden(const QString &name) const;
    bool leadsToRoot(const QString &folder) const;
    void compileNameFilters();
    Qt::CaseSensitivity caseSensitivity() const;
    QString text(const QModelIndex &source) const;
    QIcon icon(const QModelIndex &source) const;

    FileKindIcons icons; ///< outlives the model that uses it
    std::unique_ptr<LocalFileSystem> files;
    QDir::Filters filter = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::AllDirs;
    QStringList nameFilters;
    QVector<QRegularExpression> namePatterns; ///< empty: all names
    QStringList fileTypes;
    QString appType;
    QString appTech;
    FileHeadCache heads;
    int sortColumn = -1;
    Qt::SortOrder sortOrder = Qt::AscendingOrder;
    QSet<QString> known; ///< folders that were listed once
    QString opening; ///< the root that is being listed for the first time, unsorted meanwhile
    QStringList loaded; ///< folders that were listed, of which nobody was told yet
    QTimer settling;
    bool showsSpecialFolders = false;
};

Qt::CaseSensitivity QLocalFileSystemFilter::Private::caseSensitivity() const
{
    return filter & QDir::CaseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

void QLocalFileSystemFilter::Private::compileNameFilters()
{
    namePatterns.clear();
    if (nameFilters.contains("*"_L1)) {
        return;
    }
    for (const QString &wildcard : nameFilters) {
        namePatterns.append(QRegularExpression::fromWildcard(wildcard, caseSensitivity()));
    }
}

bool QLocalFileSystemFilter::Private::isNameListed(const QString &name) const
{
    return namePatterns.isEmpty()
        || std::any_of(
               namePatterns.cbegin(), namePatterns.cend(),
               [&](const QRegularExpression &pattern) { return pattern.match(name).hasMatch(); });
}

/// Without reading it, which another thread does: until then the file is not listed.
bool QLocalFileSystemFilter::Private::isHeadListed(const QFileInfo &file)
{
    if (!file.isFile()) {
        return false;
    }
    const FileHead *head = heads.headOf(file);
    return head && head->isValid && (appType.isEmpty() || head->appType == appType)
        && (appTech.isEmpty() || head->appTech == appTech);
}

bool QLocalFileSystemFilter::Private::isDotHidden(const QString &name) const
{
    return (name == "."_L1 && filter & QDir::NoDot) || (name == ".."_L1 && filter & QDir::NoDotDot);
}

bool QLocalFileSystemFilter::Private::leadsToRoot(const QString &folder) const
{
    const QString root = files->rootPath();
    return root == folder || root.startsWith(folder + u'/');
}

QString QLocalFileSystemFilter::Private::text(const QModelIndex &source) const
{
    switch (source.column()) {
    case QvexFileModel::NameColumn:
        return files->fileName(source);
    case QvexFileModel::SizeColumn:
        return files->isDir(source) ? QString() : QvexFileModel::sizeText(files->size(source));
    case QvexFileModel::TypeColumn:
        return QvexFileModel::typeText(files->fileName(source.siblingAtColumn(0)),
                                       files->isDir(source));
    default:
        return QLocale().toString(files->lastModified(source), QLocale::ShortFormat);
    }
}

QIcon QLocalFileSystemFilter::Private::icon(const QModelIndex &source) const
{
    return icons.iconOf(files->isDir(source) ? QAbstractFileIconProvider::Folder
                                             : QAbstractFileIconProvider::File);
}

QLocalFileSystemFilter::QLocalFileSystemFilter(bool readOnly, QObject *parent)
    : QSortFilterProxyModel(parent)
    , d(std::make_unique<Private>())
{
    d->files = std::make_unique<LocalFileSystem>();
    d->files->setReadOnly(readOnly);
    d->files->setNameFilterDisables(true);
    d->files->setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
    d->files->setIconProvider(&d->icons);
    followListing();
    setSourceModel(d->files.get());
    setSortRole(Qt::DisplayRole);
    setSortCaseSensitivity(Qt::CaseSensitive);
    setFilterRole(Qt::DisplayRole);
    setFilterCaseSensitivity(Qt::CaseSensitive);
}

QLocalFileSystemFilter::~QLocalFileSystemFilter()
{
    setSourceModel(nullptr);
}

void QLocalFileSystemFilter::followListing()
{
    const LocalFileSystem *files = d->files.get();
    connect(files, &LocalFileSystem::fetching, this, &QLocalFileSystemFilter::startListing);
    connect(files, &QFileSystemModel::directoryLoaded, this, [this](const QString &path) {
        d->loaded.append(path);
        d->settling.start();
    });
    connect(files, &QFileSystemModel::fileRenamed, this,
            [this](const QString &path, const QString &oldName, const QString &newName) {
                d->heads.rename(path + u'/' + oldName, path + u'/' + newName);
                Q_EMIT fileRenamed(path, oldName, newName);
            });
    connect(&d->heads, &FileHeadCache::headsRead, this, [this] {
        invalidateRowsFilter();
        d->settling.start();
    });
    // In a turn of the event loop of its own: the rows have just taken one.
    d->settling.setSingleShot(true);
    connect(&d->settling, &QTimer::timeout, this, &QLocalFileSystemFilter::settle);
}

/**
 * Rows that come into sorted ones are put between them one by one, which takes a time that grows
 * with the square of their number. They are sorted once, instead, when all are there.
 */
void QLocalFileSystemFilter::startListing(const QString &path)
{
    if (path.isEmpty() || path != d->files->rootPath() || d->known.contains(path)) {
        return;
    }
    d->opening = path;
    QSortFilterProxyModel::sort(-1);
    if (!d->fileTypes.isEmpty()) {
        const auto isWanted = [types = d->fileTypes,
                               sensitivity = d->caseSensitivity()](const QString &name) {
            return hasSuffix(name, types, sensitivity);
        };
        d->heads.readFolder(path, isWanted);
    }
}

void QLocalFileSystemFilter::settle()
{
    if (d->heads.isReading()) {
        return;
    }
    const QStringList loaded = std::exchange(d->loaded, {});
    if (loaded.contains(d->opening)) {
        endOpening();
    }
    d->known.unite({loaded.begin(), loaded.end()});
    const QPointer<QLocalFileSystemFilter> self(this);
    for (const QString &path : loaded) {
        Q_EMIT directoryLoaded(path);
        if (!self) {
            return; // a slot has taken it away
        }
    }
}

void QLocalFileSystemFilter::endOpening()
{
    if (!std::exchange(d->opening, {}).isEmpty()) {
        QSortFilterProxyModel::sort(d->sortColumn, d->sortOrder);
    }
}

QFileSystemModel *QLocalFileSystemFilter::fileSystem() const
{
    return d->files.get();
}

void QLocalFileSystemFilter::setFilter(QDir::Filters filters)
{
    if (d->filter == filters) {
        return;
    }
    d->filter = filters;
    d->compileNameFilters();
    d->files->setFilter(filters);
    invalidateFilter();
}

QDir::Filters QLocalFileSystemFilter::filter() const
{
    return d->filter;
}

void QLocalFileSystemFilter::setNameFilters(const QStringList &filters)
{
    setVexFilters(filters, d->fileTypes);
}

QStringList QLocalFileSystemFilter::nameFilters() const
{
    return d->nameFilters;
}

void QLocalFileSystemFilter::setVexFilters(const QStringList &nameFilters,
                                           const QStringList &fileTypes)
{
    if (d->nameFilters == nameFilters && d->fileTypes == fileTypes) {
        return;
    }
    d->nameFilters = nameFilters;
    d->fileTypes = fileTypes;
    d->compileNameFilters();
    invalidateFilter();
}

QStringList QLocalFileSystemFilter::fileTypes() const
{
    return d->fileTypes;
}

void QLocalFileSystemFilter::setHeadFilter(const QString &appType, const QString &appTech)
{
    if (d->appType == appType && d->appTech == appTech) {
        return;
    }
    d->appType = appType;
    d->appTech = appTech;
    invalidateFilter();
}

void QLocalFileSystemFilter::showSpecialFolders(bool show)
{
    if (d->showsSpecialFolders != show) {
        d->showsSpecialFolders = show;
        invalidateFilter();
    }
}

QModelIndex QLocalFileSystemFilter::setRootPath(const QString &path)
{
    const bool wasInSpecialFolder = d->files->rootPath().contains("/Logs"_L1)
        || d->files->rootPath().contains("/Properties"_L1);
    if (path != d->files->rootPath()) {
        endOpening();
    }
    d->files->setRootPath(path);
    const bool isInSpecialFolder = path.contains("/Logs"_L1) || path.contains("/Properties"_L1);
    if (!d->showsSpecialFolders && (wasInSpecialFolder || isInSpecialFolder)) {
        invalidateFilter(); // which folders lead to the root has changed
    }
    return mapFromSource(d->files->index(path));
}

bool QLocalFileSystemFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    const QModelIndex index = d->files->index(row, 0, parent);
    const QString name = d->files->nameOf(index);
    if (d->isDotHidden(name)) {
        return false;
    }
    if (d->files->isDir(index)) {
        return d->showsSpecialFolders || !isSpecialFolder(name)
            || d->leadsToRoot(d->files->filePath(index));
    }
    if (!d->isNameListed(name)) {
        return false;
    }
    return !hasSuffix(name, d->fileTypes, d->caseSensitivity())
        || d->isHeadListed(d->files->fileInfo(index));
}

bool QLocalFileSystemFilter::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const auto bytes = [this](const QModelIndex &index) {
        return d->files->isDir(index) ? -1 : d->files->size(index);
    };
    switch (left.column()) {
    case QvexFileModel::SizeColumn:
        return bytes(left) < bytes(right);
    case QvexFileModel::NameColumn:
        return d->files->nameOf(left).compare(d->files->nameOf(right), sortCaseSensitivity()) < 0;
    case QvexFileModel::DateColumn:
        return d->files->timeOf(left) < d->files->timeOf(right);
    default:
        return d->text(left).compare(d->text(right), sortCaseSensitivity()) < 0;
    }
}

void QLocalFileSystemFilter::sort(int column, Qt::SortOrder order)
{
    d->sortColumn = column;
    d->sortOrder = order;
    d->files->setUnsorted(column >= 0);
    if (d->opening.isEmpty()) {
        QSortFilterProxyModel::sort(column, order);
    }
}

QVariant QLocalFileSystemFilter::data(const QModelIndex &index, int role) const
{
    const QModelIndex source = mapToSource(index);
    if (!source.isValid()) {
        return QVariant();
    }
    const bool isDir = d->files->isDir(source);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return d->text(source);
    case Qt::DecorationRole:
        return source.column() == QvexFileModel::NameColumn ? d->icon(source) : QVariant();
    case QvexFileModel::FileSizeRole:
        return isDir ? qlonglong(0) : qlonglong(d->files->size(source));
    case QvexFileModel::FileTimeRole:
        return d->files->lastModified(source);
    case QvexFileModel::IsDirRole:
        return isDir;
    case QvexFileModel::EntryCountRole:
        return -1;
    default: // path, name and permissions among them
        return d->files->data(source, role);
    }
}

QVariant QLocalFileSystemFilter::headerData(int section, Qt::Orientation orientation,
                                            int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    return QvexFileModel::columnText(section);
}

Qt::ItemFlags QLocalFileSystemFilter::flags(const QModelIndex &index) const
{
    // What is dropped would be copied in the GUI thread.
    return QSortFilterProxyModel::flags(index) & ~(Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled);
}

bool QLocalFileSystemFilter::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const QModelIndex source = mapToSource(index);
    if (!source.isValid() || role != Qt::EditRole || source.column() != QvexFileModel::NameColumn
        || !isFreeName(d->files->filePath(source.parent()), value.toString())) {
        return false;
    }
    const QPersistentModelIndex renamed(source);
    if (!d->files->setData(source, value, role)) {
        return false;
    }
    if (renamed.isValid()) {
        // The file system model tells nobody that a filter may have to look again.
        Q_EMIT d->files->dataChanged(renamed, renamed);
    }
    return true;
}

QModelIndex QLocalFileSystemFilter::rebuiltIndex(int row, int column, void *id) const
{
    return createIndex(row, column, id);
}

#include "FilePane.h"

#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QLineEdit>
#include <QListView>
#include <QStackedLayout>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

#include "BreadcrumbBar.h"
#include "FileListView.h"
#include "FileNames.h"
#include "FileOperations.h"
#include "FilePaths.h"
#include "FileSortFilter.h"
#include "FilesTheme.h"
#include "FolderWatch.h"
#include "LinkWatch.h"
#include "PaneNotice.h"
#include "PlaceBar.h"
#include "QvexLocalFileModel.h"
#include "StatusStrip.h"
#include "dialogs/DialogTheme.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int narrowTypes = 64;
constexpr int widestHeadButton = 200;

} // namespace

FilePane::FilePane(const FileStores &stores, LinkWatch *link, bool placesAbove, QWidget *parent)
    : QFrame(parent)
    , m_stores(stores)
    , m_link(link)
    , m_filter(new FileSortFilter(this))
    , m_operations(new FileOperations(this))
    , m_watch(new FolderWatch(stores.controller, this))
{
    setObjectName(u"FilePaneFrame"_s);
    setProperty("active", false);
    makeParts(placesAbove);
    arrange(placesAbove);
    updateText();
    connectParts();
    connectOperations();
    m_types->hide();
}

FilePane::~FilePane()
{
    // Parts tell of what they lose while they go, which is after all else here.
    m_list->disconnect(this);
    m_filter->disconnect(this);
    m_operations->disconnect(this);
    m_watch->disconnect(this);
    if (files()) {
        files()->disconnect(this);
    }
}

void FilePane::makeParts(bool placesAbove)
{
    m_placeBar = new PlaceBar(placesAbove ? Qt::Horizontal : Qt::Vertical, this);
    m_placeBar->setObjectName(u"PlaceBar"_s);
    m_up = FilesTheme::toolButton(u"UpButton"_s, u"up"_s, this);
    m_crumbs = new BreadcrumbBar(this);
    m_crumbs->setObjectName(u"Breadcrumbs"_s);
    m_search = new QLineEdit(this);
    m_search->setObjectName(u"SearchEdit"_s);
    m_search->setClearButtonEnabled(true);
    m_search->setMinimumWidth(96);
    m_search->setMaximumWidth(240);
    m_types = new QComboBox(this);
    m_types->setObjectName(u"TypeCombo"_s);
    m_types->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_types->setView(new QListView(m_types)); // whose rows can be made large enough
    m_types->setMinimumWidth(100);
    m_types->setMaximumWidth(360);
    m_headOnly = new QToolButton(this);
    m_headOnly->setObjectName(u"HeadButton"_s);
    m_headOnly->setProperty("place", true); // it has a border
    m_headOnly->setCheckable(true);
    m_headOnly->setChecked(true);
    m_headOnly->setMinimumHeight(DialogTheme::touchTarget + 4);
    m_headOnly->setMaximumWidth(widestHeadButton);
    m_headOnly->hide();
    m_actions = new FileActionBar(this);
    m_actions->setObjectName(u"FileActions"_s);
    m_list = new FileListView(this);
    m_list->setObjectName(u"FileList"_s);
    m_list->setMinimumHeight(FilesTheme::headerHeight + FilesTheme::rowHeight + 2);
    m_list->setModel(m_filter);
    m_notice = new PaneNotice(this);
    m_notice->setObjectName(u"PaneNotice"_s);
    m_status = new StatusStrip(this);
    m_status->setObjectName(u"StatusStrip"_s);
}

void FilePane::arrange(bool placesAbove)
{
    auto *path = new QHBoxLayout;
    path->setSpacing(FilesTheme::gap);
    path->addWidget(m_up);
    path->addWidget(m_crumbs, 2);
    path->addWidget(m_search, 1);
    auto *tools = new QHBoxLayout;
    tools->setSpacing(FilesTheme::gap);
    if (placesAbove) { // and two panes side by side: the tools need all of their row
        path->addWidget(m_types, 1);
        m_types->setMinimumWidth(narrowTypes);
    } else {
        tools->addWidget(m_types, 1);
    }
    tools->addWidget(m_headOnly);
    tools->addWidget(m_actions, 0, Qt::AlignLeft);
    tools->addStretch();
    m_stack = new QStackedLayout;
    m_stack->addWidget(m_list);
    m_stack->addWidget(m_notice);
    auto *column = new QVBoxLayout;
    column->setSpacing(4);
    column->addLayout(path);
    column->addLayout(tools);
    column->addLayout(m_stack, 1);
    column->addWidget(m_status);
    auto *all =
        new QBoxLayout(placesAbove ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, this);
    all->setContentsMargins(4, 4, 4, 0);
    all->setSpacing(FilesTheme::gap);
    all->addWidget(m_placeBar);
    all->addLayout(column, 1);
}

void FilePane::connectParts()
{
    connect(m_placeBar, &PlaceBar::placeChosen, this,
            [this](const FilePlace &place) { showPlace(place); });
    connect(m_up, &QToolButton::clicked, this, &FilePane::goUp);
    connect(m_crumbs, &BreadcrumbBar::folderChosen, this, &FilePane::showFolder);
    connect(m_search, &QLineEdit::textChanged, m_filter, &FileSortFilter::setSearch);
    connect(m_search, &QLineEdit::textChanged, this, &FilePane::updateHint);
    connect(m_types, &QComboBox::currentIndexChanged, this, [this](int at) {
        m_filter->setPatterns(FilePaths::patternsOf(m_nameFilters.value(at)));
        updateHint();
    });
    connect(m_headOnly, &QToolButton::toggled, this, [this] { applyFilters(files()); });
    connect(m_actions, &FileActionBar::triggered, this, &FilePane::act);
    connect(m_list, &FileListView::opened, this, &FilePane::open);
    connect(m_list, &FileListView::upRequested, this, &FilePane::goUp);
    connect(m_list, &FileListView::refreshRequested, this, &FilePane::refresh);
    connect(m_list, &FileListView::deleteRequested, this, [this] { act(FileActionBar::Delete); });
    connect(m_list, &FileListView::selectionHasChanged, this, [this] {
        updateActions();
        Q_EMIT selectionHasChanged();
    });
    // Rows of a new folder may come before its name is known here.
    connect(m_filter, &QAbstractItemModel::rowsInserted, this, &FilePane::editAwaited,
            Qt::QueuedConnection);
    connect(m_filter, &QAbstractItemModel::layoutChanged, this, &FilePane::editAwaited,
            Qt::QueuedConnection);
    const auto rowsLeft = [this] {
        updateActions();
        Q_EMIT selectionHasChanged();
    };
    connect(m_filter, &QAbstractItemModel::rowsRemoved, this, rowsLeft);
    connect(m_filter, &QAbstractItemModel::layoutChanged, this, rowsLeft);
    connect(m_link, &LinkWatch::lost, this, &FilePane::updateLink);
    connect(m_link, &LinkWatch::restored, this, [this] {
        updateLink();
        if (!m_place.isLocal()) {
            rootIndex().isValid() ? refresh() : showFolder(m_folder);
        }
    });
    connect(m_link, &LinkWatch::retryFailed, this, [this] {
        if (!m_place.isLocal()) {
            showError(tr("The instrument can't be reached."));
        }
    });
    connect(m_watch, &FolderWatch::failed, this, &FilePane::updateHint);
    connect(m_watch, &FolderWatch::gone, this, &FilePane::rootMoved);
    connect(m_notice, &PaneNotice::buttonTapped, m_link, &LinkWatch::retry);
    for (QWidget *part : findChildren<QWidget *>()) {
        part->installEventFilter(this);
    }
}

void FilePane::connectOperations()
{
    connect(m_list, &FileListView::renamed, this,
            [this](const QModelIndex &index, const QString &name) {
                m_operations->rename(m_filter->mapToSource(index), name);
            });
    connect(m_operations, &FileOperations::started, m_status, &StatusStrip::showBusy);
    connect(m_operations, &FileOperations::done, m_status, &StatusStrip::showMessage);
    connect(m_operations, &FileOperations::failed, m_status, &StatusStrip::showError);
    connect(m_operations, &FileOperations::pickedUp, this, &FilePane::updateActions);
    connect(m_operations, &FileOperations::folderMade, this, &FilePane::awaitFolder);
    connect(m_status, &StatusStrip::cancelRequested, m_operations, &FileOperations::cancel);
}

void FilePane::updateText()
{
    FilesTheme::setName(m_up, tr("Up"));
    m_search->setAccessibleName(tr("Search in this folder"));
    m_search->setPlaceholderText(tr("Search"));
    m_types->setAccessibleName(tr("Types of files"));
    m_list->setAccessibleName(tr("Files"));
    updateHeadButton();
}

void FilePane::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        updateText();
        updateHint();
        updateLink();
    }
}

bool FilePane::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::FocusIn) {
        Q_EMIT touched();
    }
    return QFrame::eventFilter(watched, event);
}

QvexFileModel *FilePane::files() const
{
    return m_filter->files();
}

QModelIndex FilePane::rootIndex() const
{
    return files() ? files()->fileIndex(m_folder) : QModelIndex();
}

void FilePane::setPlaces(const QVector<FilePlace> &places)
{
    m_placeBar->setPlaces(places);
    const bool isGone = !m_folder.isEmpty() && !places.contains(m_place);
    if (isGone && !places.isEmpty()) {
        const QString title = m_place.title;
        const auto next =
            std::find_if(places.cbegin(), places.cend(), [this](const FilePlace &place) {
                return place.isLocal() == m_place.isLocal();
            });
        showPlace(next == places.cend() ? places.constFirst() : *next);
        showError(tr("%1 was removed.").arg(FileNames::shown(title)));
    }
}

void FilePane::showPlace(const FilePlace &place, const QString &folder)
{
    const bool isInstrument = !place.isLocal();
    if (!m_models.contains(isInstrument)) {
        const auto &make = isInstrument ? m_stores.makeInstrument : m_stores.makeComputer;
        m_models.insert(isInstrument, make(this));
    }
    m_place = place;
    m_placeBar->setCurrent(place);
    useModel(m_models.value(isInstrument));
    m_operations->setPlace(files(), place);
    m_folder.clear();
    const QString last = m_lastFolders.value(place.home, place.home);
    showFolder(folder.isEmpty() ? last : folder);
    if (m_folder.isEmpty()) {
        showFolder(place.home);
    }
    updateHeadButton();
    updateLink();
}

void FilePane::useModel(QvexFileModel *model)
{
    if (model == files()) {
        return;
    }
    if (files()) {
        files()->disconnect(this);
    }
    m_filter->setSourceModel(model);
    applyFilters(model);
    connect(model, &QvexFileModel::directoryLoaded, this, &FilePane::updateHint);
    connect(model, &QvexFileModel::rootPathChanged, this, &FilePane::rootMoved);
    m_watch->setModel(model);
}

void FilePane::applyFilters(QvexFileModel *model) const
{
    if (!m_vexTypes.isEmpty()) {
        model->setVexFilters(m_vexPatterns, m_vexTypes);
    }
    if (auto *local = qobject_cast<QvexLocalFileModel *>(model)) {
        const bool isOn = m_headOnly->isChecked();
        local->setHeadFilter(isOn ? m_appType : QString(), isOn ? m_appTech : QString());
    }
}

void FilePane::showFolder(const QString &path)
{
    const QString clean = QDir::cleanPath(path);
    if (!files()) {
        return;
    }
    if (clean == m_folder) {
        refresh();
    }
    m_watch->setFolder(clean);
    const QString before = std::exchange(m_folder, clean);
    const QModelIndex root = files()->setRootPath(clean);
    if (!root.isValid() || files()->filePath(root) != clean) {
        m_folder = before;
        m_watch->setFolder(before);
        m_status->showError(tr("There is no folder \"%1\".").arg(FileNames::shown(clean)));
        return;
    }
    m_lastFolders.insert(m_place.home, clean);
    if (before != clean) {
        m_awaited.clear();
        m_search->clear();
        m_status->showMessage({});
    }
    showRoot(root);
}

void FilePane::showRoot(const QModelIndex &root)
{
    m_list->selectionModel()->clear();
    m_filter->setFolder(root);
    m_list->scrollToTop();
    const bool isInstrument = !m_place.isLocal();
    m_crumbs->setPath(m_folder, isInstrument ? m_place.title : u"/"_s);
    m_up->setEnabled(m_folder != "/"_L1);
    updateHint();
    updateActions();
    Q_EMIT folderChanged();
    Q_EMIT selectionHasChanged();
}

void FilePane::refresh()
{
    const QModelIndex root = rootIndex();
    if (root.isValid()) {
        m_watch->setFolder(m_folder);
        files()->refreshDirectory(root);
        updateHint();
    }
}

void FilePane::rootMoved(const QString &path)
{
    if (path == m_folder || FilePaths::parentOf(m_folder) == m_folder) {
        return;
    }
    const QString gone = m_folder;
    showFolder(path);
    m_status->showError(tr("The folder \"%1\" is gone.").arg(FilePaths::shownNameOf(gone)));
}

void FilePane::updateHint()
{
    const QModelIndex root = rootIndex();
    if (m_watch->hasFailed()) {
        m_list->setHint(tr("This folder can't be listed."));
    } else if (!root.isValid() || !files()->isListed(root)) {
        m_list->setHint(tr("Loading\u2026"));
    } else if (m_filter->isSearching()) {
        m_list->setHint(tr("Nothing here fits the search."));
    } else {
        m_list->setHint(m_filter->isFiltering() ? tr("There are no files of this type here.")
                                                : tr("This folder is empty."));
    }
}

void FilePane::updateLink()
{
    const bool isLost = !m_place.isLocal() && m_link->isLost();
    m_notice->setNotice(tr("The link to the instrument is lost"), tr("Try again"));
    m_stack->setCurrentWidget(isLost ? static_cast<QWidget *>(m_notice) : m_list);
    m_search->setEnabled(!isLost);
    m_up->setEnabled(!isLost && m_folder != "/"_L1);
    m_crumbs->setEnabled(!isLost);
    updateActions();
    Q_EMIT selectionHasChanged();
}

void FilePane::updateActions()
{
    const bool usable = m_stack->currentWidget() == m_list && files();
    const auto count = usable ? m_list->selectedNames().size() : 0;
    m_actions->setActionEnabled(FileActionBar::Refresh, usable);
    m_actions->setActionEnabled(FileActionBar::NewFolder, usable);
    m_actions->setActionEnabled(FileActionBar::Rename, count == 1);
    m_actions->setActionEnabled(FileActionBar::Copy, count > 0);
    m_actions->setActionEnabled(FileActionBar::Move, count > 0);
    m_actions->setActionEnabled(FileActionBar::Paste, usable && m_operations->canPaste());
    m_actions->setActionEnabled(FileActionBar::Delete, count > 0);
}

void FilePane::open(const QModelIndex &index)
{
    const QModelIndex entry = m_filter->mapToSource(index);
    const QString path = files()->filePath(entry);
    if (path.isEmpty()) {
        showError(tr("This entry's name can't be used."));
    } else if (files()->isDir(entry)) {
        showFolder(path);
        m_list->setCurrentIndex(m_list->model()->index(0, 0, m_list->rootIndex()));
        m_list->selectionModel()->clearSelection();
    } else {
        Q_EMIT fileOpened(path);
    }
}

void FilePane::goUp()
{
    if (m_folder != "/"_L1) {
        const QString name = FilePaths::nameOf(m_folder);
        showFolder(FilePaths::parentOf(m_folder));
        const QModelIndex from =
            m_filter->mapFromSource(files()->fileIndex(FilePaths::join(m_folder, name)));
        m_list->selectionModel()->setCurrentIndex(from, QItemSelectionModel::NoUpdate);
        m_list->scrollTo(from);
    }
}

void FilePane::act(FileActionBar::Action action)
{
    QModelIndexList entries;
    for (const QModelIndex &index : m_list->selectedNames()) {
        entries += m_filter->mapToSource(index);
    }
    switch (action) {
    case FileActionBar::Refresh:
        return refresh();
    case FileActionBar::NewFolder:
        return makeFolder();
    case FileActionBar::Rename:
        return entries.isEmpty() ? void() : m_list->editName(m_list->selectedNames().constFirst());
    case FileActionBar::Copy:
    case FileActionBar::Move:
        return m_operations->pickUp(selectedPaths(false), action == FileActionBar::Move);
    case FileActionBar::Paste:
        return m_operations->paste(m_folder);
    case FileActionBar::Delete:
        return m_operations->remove(entries);
    case FileActionBar::ActionCount:
        break;
    }
}

void FilePane::makeFolder()
{
    m_search->clear(); // or else the new one may be hidden
    m_operations->makeFolder(rootIndex());
}

void FilePane::awaitFolder(const QString &path)
{
    if (FilePaths::parentOf(path) == m_folder) { // a person may have gone on meanwhile
        m_awaited = path;
        editAwaited();
    }
}

void FilePane::editAwaited()
{
    const QModelIndex index = m_awaited.isEmpty()
        ? QModelIndex()
        : m_filter->mapFromSource(files()->fileIndex(m_awaited));
    if (index.isValid()) {
        m_awaited.clear();
        m_list->selectionModel()->select(
            index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        m_list->editName(index);
    }
    updateHint();
}

void FilePane::setNameFilters(const QStringList &filters)
{
    m_nameFilters = filters;
    m_types->clear();
    m_types->addItems(filters);
    m_types->setVisible(!filters.isEmpty());
    m_filter->setPatterns(FilePaths::patternsOf(filters.value(0)));
}

void FilePane::setVexFilters(const QStringList &nameFilters, const QStringList &fileTypes)
{
    m_vexPatterns = nameFilters;
    m_vexTypes = fileTypes;
    for (QvexFileModel *model : std::as_const(m_models)) {
        model->setVexFilters(nameFilters, fileTypes);
    }
}

void FilePane::setHeadFilter(const QString &appType, const QString &appTech)
{
    m_appType = appType;
    m_appTech = appTech;
    for (QvexFileModel *model : std::as_const(m_models)) {
        applyFilters(model);
    }
    updateHeadButton();
}

/// The instrument lets nobody look into its files.
void FilePane::updateHeadButton()
{
    const QString application = FileNames::shown((m_appType + u' ' + m_appTech).trimmed());
    const QString text = tr("Only %1").arg(application);
    m_headOnly->setText(FilePaths::buttonText(
        m_headOnly->fontMetrics().elidedText(text, Qt::ElideMiddle, widestHeadButton - 24)));
    m_headOnly->setAccessibleName(tr("List only files of %1").arg(application));
    m_headOnly->setVisible(!application.isEmpty() && m_place.isLocal());
}

void FilePane::setMultiple(bool multiple)
{
    m_list->setMultiple(multiple);
}

void FilePane::setActive(bool active)
{
    if (property("active").toBool() != active) {
        setProperty("active", active);
        style()->unpolish(this); // a selector by property is not looked at again otherwise
        style()->polish(this);
    }
}

QStringList FilePane::selectedPaths(bool filesOnly) const
{
    QStringList paths;
    for (const QModelIndex &index : m_list->selectedNames()) {
        const QModelIndex entry = m_filter->mapToSource(index);
        const QString path = files()->filePath(entry);
        if (!path.isEmpty() && !(filesOnly && files()->isDir(entry))) {
            paths += path;
        }
    }
    return paths;
}

bool FilePane::hasEntry(const QString &name) const
{
    return files() && files()->fileIndex(FilePaths::join(m_folder, name)).isValid();
}

void FilePane::selectName(const QString &name)
{
    const QModelIndex index =
        m_filter->mapFromSource(files()->fileIndex(FilePaths::join(m_folder, name)));
    if (index.isValid() && index.parent() == m_list->rootIndex()) {
        m_list->setCurrentIndex(index);
        m_list->scrollTo(index);
    }
}

void FilePane::showMessage(const QString &text)
{
    m_status->showMessage(text);
}

void FilePane::showError(const QString &text)
{
    m_status->showError(text);
}

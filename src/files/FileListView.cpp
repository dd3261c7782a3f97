#include "FileListView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

#include "FileItemDelegate.h"
#include "FilesTheme.h"
#include "QvexFileModel.h"
#include "dialogs/DialogTheme.h"
#include "dialogs/FingerScroll.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int sizeWidth = 112;
constexpr int typeWidth = 140;
constexpr int dateWidth = 196;
constexpr int leastNameWidth = 260;

QModelIndex nameOf(const QModelIndex &index)
{
    return index.siblingAtColumn(QvexFileModel::NameColumn);
}

} // namespace

FileListView::FileListView(QWidget *parent)
    : QTreeView(parent)
    , m_delegate(new FileItemDelegate(this))
{
    setItemDelegate(m_delegate);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setIndentation(0);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setSortingEnabled(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideMiddle);
    setMultiple(false);
    setUpHeader();
    new FingerScroll(this);
    connect(m_delegate, &FileItemDelegate::renamed, this, &FileListView::renamed);
}

void FileListView::setUpHeader()
{
    header()->setObjectName(u"FileHeader"_s);
    header()->setAccessibleName(tr("Columns"));
    header()->setFixedHeight(FilesTheme::headerHeight);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(true);
    header()->setHighlightSections(false);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header()->setMinimumSectionSize(DialogTheme::touchTarget);
}

void FileListView::setModel(QAbstractItemModel *model)
{
    QTreeView::setModel(model);
    if (model) {
        using Model = QAbstractItemModel;
        connect(model, &Model::rowsAboutToBeInserted, this, &FileListView::holdRows);
        connect(model, &Model::rowsAboutToBeRemoved, this, &FileListView::holdRows);
        connect(model, &Model::modelAboutToBeReset, this, [this] { m_held.clear(); });
        connect(model, &Model::layoutAboutToBeChanged, this,
                [this](const auto &, Model::LayoutChangeHint hint) {
                    // Who sorts wants to see another part.
                    hint == Model::VerticalSortHint ? m_held.clear() : holdRows();
                });
    }
    if (model && header()->count() == QvexFileModel::ColumnCount) {
        header()->setSectionResizeMode(QHeaderView::Fixed);
        header()->setSectionResizeMode(QvexFileModel::NameColumn, QHeaderView::Stretch);
        header()->resizeSection(QvexFileModel::SizeColumn, sizeWidth);
        header()->resizeSection(QvexFileModel::TypeColumn, typeWidth);
        header()->resizeSection(QvexFileModel::DateColumn, dateWidth);
        sortByColumn(QvexFileModel::NameColumn, Qt::AscendingOrder);
        fitColumns();
    }
}

void FileListView::holdRows()
{
    if (!m_held.isEmpty() || verticalScrollBar()->value() == 0) {
        return;
    }
    const QModelIndex first = indexAt({0, 0});
    m_heldTop = visualRect(first).top();
    for (int i = 0; first.isValid() && i * FilesTheme::rowHeight < viewport()->height(); ++i) {
        m_held += first.siblingAtRow(first.row() + i);
    }
}

void FileListView::doItemsLayout()
{
    QTreeView::doItemsLayout();
    const QVector<QPersistentModelIndex> held = std::exchange(m_held, {});
    const auto there =
        std::find_if(held.cbegin(), held.cend(), [](const auto &index) { return index.isValid(); });
    if (there != held.cend()) {
        const int before = m_heldTop + int(there - held.cbegin()) * FilesTheme::rowHeight;
        verticalScrollBar()->setValue(verticalScrollBar()->value() + visualRect(*there).top()
                                      - before);
    }
}

void FileListView::setMultiple(bool multiple)
{
    setSelectionMode(multiple ? MultiSelection : SingleSelection);
}

bool FileListView::isMultiple() const
{
    return selectionMode() == MultiSelection;
}

void FileListView::setHint(const QString &hint)
{
    if (hint != m_hint) {
        m_hint = hint;
        viewport()->update();
    }
}

QModelIndexList FileListView::selectedNames() const
{
    if (!selectionModel()) {
        return {};
    }
    QModelIndexList rows = selectionModel()->selectedRows(QvexFileModel::NameColumn);
    // What was selected in a folder that is no longer shown is not meant.
    rows.removeIf([this](const QModelIndex &index) { return index.parent() != rootIndex(); });
    std::sort(rows.begin(), rows.end());
    return rows;
}

void FileListView::editName(const QModelIndex &index)
{
    scrollTo(index);
    setCurrentIndex(index);
    edit(nameOf(index));
}

void FileListView::fitColumns()
{
    if (!model() || header()->count() != QvexFileModel::ColumnCount) {
        return;
    }
    int room = viewport()->width() - leastNameWidth;
    const std::pair<int, int> columns[] {{QvexFileModel::SizeColumn, sizeWidth},
                                         {QvexFileModel::DateColumn, dateWidth},
                                         {QvexFileModel::TypeColumn, typeWidth}};
    for (const auto &[column, width] : columns) {
        room -= width;
        setColumnHidden(column, room < 0);
    }
}

void FileListView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    fitColumns();
}

void FileListView::changeEvent(QEvent *event)
{
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        header()->setAccessibleName(tr("Columns"));
        header()->viewport()->update();
    }
}

void FileListView::mousePressEvent(QMouseEvent *event)
{
    m_doubleTap = false;
    m_pressed = indexAt(event->position().toPoint());
    setFocus(Qt::MouseFocusReason);
}

void FileListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QModelIndex before = nameOf(m_pressed);
    mousePressEvent(event); // a quick second tap comes as this and not as a press
    m_doubleTap = m_pressed.isValid() && nameOf(m_pressed) == before;
}

void FileListView::mouseMoveEvent(QMouseEvent *) { }

void FileListView::mouseReleaseEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid() && nameOf(index) == nameOf(m_pressed)) {
        tap(nameOf(index), int(event->position().x()));
    }
}

void FileListView::tap(const QModelIndex &index, int x)
{
    const bool isDir = index.data(QvexFileModel::IsDirRole).toBool();
    if (x < FilesTheme::tickWidth) {
        select(index);
    } else if (isDir) {
        m_pressed = QModelIndex();
        Q_EMIT opened(index);
    } else if (m_doubleTap && !isMultiple()) {
        Q_EMIT opened(index);
    } else {
        select(index);
    }
}

void FileListView::select(const QModelIndex &index)
{
    using Model = QItemSelectionModel;
    selectionModel()->setCurrentIndex(index, Model::NoUpdate);
    selectionModel()->select(index,
                             (isMultiple() ? Model::Toggle : Model::ClearAndSelect) | Model::Rows);
}

bool FileListView::handleKey(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (currentIndex().isValid()) {
            Q_EMIT opened(nameOf(currentIndex()));
        }
        return true;
    case Qt::Key_Backspace:
        Q_EMIT upRequested();
        return true;
    case Qt::Key_Delete:
        Q_EMIT deleteRequested();
        return true;
    case Qt::Key_F2:
        if (currentIndex().isValid()) {
            editName(currentIndex());
        }
        return true;
    case Qt::Key_F5:
        Q_EMIT refreshRequested();
        return true;
    default:
        return false;
    }
}

void FileListView::keyPressEvent(QKeyEvent *event)
{
    if (state() == EditingState || event->modifiers().testFlag(Qt::AltModifier)
        || !handleKey(event->key())) {
        QTreeView::keyPressEvent(event);
    }
}

void FileListView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (!m_hint.isEmpty() && model() && model()->rowCount(rootIndex()) == 0) {
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(viewport()->rect().adjusted(16, 16, -16, -16),
                         int(Qt::AlignCenter) | Qt::TextWordWrap, m_hint);
    }
}

void FileListView::selectionChanged(const QItemSelection &selected,
                                    const QItemSelection &deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    Q_EMIT selectionHasChanged();
}

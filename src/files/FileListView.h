#pragma once

#include <QPersistentModelIndex>
#include <QTreeView>

class FileItemDelegate;

/**
 * One folder's rows, in touch size. What a tap does is decided where the finger leaves, so that a
 * drag scrolls and selects nothing: on the tick it selects, on a folder it opens, on a file it
 * selects. Columns that find no room are left out; the name always has its share.
 *
 * Rows that come or go above those that are seen don't move them, unless the list is at its top.
 */
class FileListView : public QTreeView
{
    Q_OBJECT

public:
    explicit FileListView(QWidget *parent);

    void setModel(QAbstractItemModel *model) override;
    /** False by default: a tap takes the place of the tap before. */
    void setMultiple(bool multiple);
    bool isMultiple() const;
    void doItemsLayout() override;
    /** Shown in place of rows while there are none. */
    void setHint(const QString &hint);
    /** The name column's indexes of selected rows, as they are listed. */
    QModelIndexList selectedNames() const;
    /** Lets a name be edited in its row. */
    void editName(const QModelIndex &index);

Q_SIGNALS:
    /** By a tap on a folder, a double tap on a file, or Return. */
    void opened(const QModelIndex &index);
    void selectionHasChanged();
    void upRequested();
    void deleteRequested();
    void refreshRequested();
    void renamed(const QModelIndex &index, const QString &name);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;

private:
    void setUpHeader();
    void fitColumns();
    void holdRows();
    void tap(const QModelIndex &index, int x);
    void select(const QModelIndex &index);
    bool handleKey(int key);

    FileItemDelegate *m_delegate;
    QPersistentModelIndex m_pressed;
    QVector<QPersistentModelIndex> m_held; ///< what is seen before rows change, from the top
    int m_heldTop = 0; ///< of the first of them
    QString m_hint;
    bool m_doubleTap = false;
};

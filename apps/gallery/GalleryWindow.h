#pragma once

#include <QHash>
#include <QWidget>

#include "PageList.h"

class PageView;
class QListWidget;
class QStackedWidget;

/// The gallery: the list of pages at the left, the current page at the right.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    /// @p pages must outlive the window.
    explicit GalleryWindow(const PageList &pages);

    const PageList &pages() const { return m_pages; }
    /// Shows a page, which is made when it is shown for the first time.
    void showPage(int index);

private:
    QListWidget *makeList();

    const PageList &m_pages;
    QListWidget *m_list;
    QStackedWidget *m_stack;
    QHash<int, PageView *> m_views;
};

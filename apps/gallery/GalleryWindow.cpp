#include "GalleryWindow.h"

#include "PageView.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QScroller>
#include <QStackedWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int listWidth = 220;
constexpr int rowHeight = 48;

// The colours of the artwork's plates.
const auto listLook = u"QListWidget { background: #22364a; color: white; outline: 0; }"
                      "QListWidget::item { border-left: 14px solid transparent; }"
                      "QListWidget::item:selected { background: #3d6a99; color: white; }"_s;

} // namespace

GalleryWindow::GalleryWindow(const PageList &pages)
    : m_pages(pages)
    , m_list(makeList())
    , m_stack(new QStackedWidget)
{
    // The name by which dialogs find the application's window.
    setObjectName(u"FwMainWindow"_s);
    setWindowTitle(tr("Widget gallery"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_list);
    layout->addWidget(m_stack, 1);
    connect(m_list, &QListWidget::currentRowChanged, this, &GalleryWindow::showPage);
    resize(1280, 800);
}

QListWidget *GalleryWindow::makeList()
{
    auto *list = new QListWidget;
    list->setObjectName(u"Pages"_s);
    list->setAccessibleName(tr("Pages"));
    list->setFixedWidth(listWidth);
    list->setStyleSheet(listLook);
    list->setFrameShape(QFrame::NoFrame);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const auto &page : m_pages) {
        auto *item = new QListWidgetItem(page->title(), list);
        item->setSizeHint({listWidth, rowHeight});
    }
    QScroller::grabGesture(list->viewport(), QScroller::TouchGesture);
    return list;
}

void GalleryWindow::showPage(int index)
{
    PageView *&view = m_views[index];
    if (!view) {
        view = new PageView(*m_pages.at(static_cast<size_t>(index)));
        m_stack->addWidget(view);
    }
    m_stack->setCurrentWidget(view);
    m_list->setCurrentRow(index);
}

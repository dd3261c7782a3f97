#include "ChoiceDialog.h"

#include "Look.h"

#include <QListWidget>
#include <QScroller>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

int ChoiceDialog::choose(QWidget *parent, const QString &title, const QStringList &choices,
                         int current)
{
    ChoiceDialog dialog(parent, choices, current);
    dialog.setWindowTitle(title);
    return dialog.exec() == Accepted ? dialog.m_list->currentRow() : -1;
}

ChoiceDialog::ChoiceDialog(QWidget *parent, const QStringList &choices, int current)
    : QvexDialog(parent)
    , m_list(new QListWidget(this))
{
    constexpr int mostRows = 10;
    setObjectName(u"ChoiceDialog"_s);
    setAutoClose(true);
    m_list->setObjectName(u"Choices"_s);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setStyleSheet(u"QListWidget::item { padding-left: 12px; }"_s);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    for (const QString &choice : choices) {
        auto *item = new QListWidgetItem(choice, m_list);
        item->setSizeHint({320, Look::fingerSize});
    }
    m_list->setCurrentRow(current);
    const auto rows = static_cast<int>(qBound(qsizetype(1), choices.size(), qsizetype(mostRows)));
    m_list->setFixedSize(360, rows * Look::fingerSize + 4);
    QScroller::grabGesture(m_list->viewport(), QScroller::TouchGesture);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    connect(m_list, &QListWidget::itemClicked, this, &QDialog::accept);
}

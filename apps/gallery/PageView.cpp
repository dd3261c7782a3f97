#include "PageView.h"

#include "Page.h"

#include <QFontDatabase>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScroller>
#include <QVBoxLayout>
#include <QtMath>

#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int signalsKept = 100;
constexpr int asideWidth = 360;
constexpr int sourceLines = 18;

QLabel *label(const QString &text, double size, QFont::Weight weight)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(size);
    font.setWeight(weight);
    label->setFont(font);
    return label;
}

// Leaves a widget that wants the room all of it, and centres the others.
void place(QWidget *widget, QVBoxLayout *layout)
{
    const bool expands = widget->sizePolicy().expandingDirections().testFlag(Qt::Vertical);
    layout->addWidget(widget, 1, expands ? Qt::Alignment() : Qt::AlignCenter);
}

QFont codeFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(10);
    return font;
}

} // namespace

PageView::PageView(Page &page, QWidget *parent)
    : QWidget(parent)
    , m_page(page)
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(16, 12, 16, 16);
    layout->setSpacing(12);
    layout->addWidget(makeHead(), 0, 0, 1, 2);
    layout->addWidget(makeStage(), 1, 0);
    layout->addLayout(makeAside(), 1, 1);
    layout->addWidget(makeSource(), 2, 0, 1, 2);
    layout->setColumnStretch(0, 1);
    layout->setRowStretch(1, 1);
    connect(&m_page, &Page::noted, this, &PageView::log);
    connect(&m_timer, &QTimer::timeout, this, &PageView::refresh);
    m_timer.start(100ms);
    refresh();
}

QWidget *PageView::makeHead()
{
    auto *head = new QWidget;
    auto *layout = new QVBoxLayout(head);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(label(m_page.title(), 18, QFont::DemiBold));
    layout->addWidget(label(m_page.purpose(), 11, QFont::Normal));
    return head;
}

QWidget *PageView::makeStage()
{
    auto *stage = new QGroupBox(tr("Live"));
    stage->setObjectName(u"Stage"_s);
    auto *layout = new QVBoxLayout(stage);
    place(m_page.recipe(stage), layout);
    if (QWidget *controls = m_page.controls(stage)) {
        layout->addWidget(controls);
    }
    return stage;
}

QLayout *PageView::makeAside()
{
    auto *layout = new QVBoxLayout;
    layout->addWidget(makeState());
    layout->addWidget(makeSignals(), 1);
    return layout;
}

QWidget *PageView::makeState()
{
    auto *box = new QGroupBox(tr("State"));
    box->setFixedWidth(asideWidth);
    auto *layout = new QFormLayout(box);
    layout->setHorizontalSpacing(16);
    layout->setVerticalSpacing(4);
    for (const Page::Watched &watched : m_page.watched()) {
        m_values.append(new QLabel);
        m_values.constLast()->setTextInteractionFlags(Qt::NoTextInteraction);
        layout->addRow(watched.label, m_values.constLast());
    }
    if (m_values.isEmpty()) {
        box->hide();
    }
    return box;
}

QWidget *PageView::makeSignals()
{
    auto *box = new QGroupBox(tr("Last signals, newest first"));
    box->setFixedWidth(asideWidth);
    m_signals = new QListWidget;
    m_signals->setObjectName(u"Signals"_s);
    m_signals->setAccessibleName(tr("Last signals"));
    m_signals->setSelectionMode(QAbstractItemView::NoSelection);
    m_signals->setFocusPolicy(Qt::NoFocus);
    m_signals->setFont(codeFont());
    m_signals->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    QScroller::grabGesture(m_signals->viewport(), QScroller::TouchGesture);
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(m_signals);
    return box;
}

QWidget *PageView::makeSource()
{
    auto *box = new QGroupBox(tr("Recipe"));
    auto *text = new QPlainTextEdit(m_page.source());
    text->setObjectName(u"Source"_s);
    text->setAccessibleName(tr("Recipe"));
    text->setReadOnly(true);
    text->setFont(codeFont());
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    const int lines = qMin(sourceLines, text->blockCount());
    if (lines == text->blockCount()) {
        text->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }
    const int margins = 2 * (qCeil(text->document()->documentMargin()) + text->frameWidth());
    text->setFixedHeight(qCeil(QFontMetricsF(text->font()).lineSpacing()) * lines + margins);
    QScroller::grabGesture(text->viewport(), QScroller::TouchGesture);
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(text);
    return box;
}

void PageView::refresh()
{
    for (qsizetype i = 0; i < m_values.size(); ++i) {
        m_values[i]->setText(m_page.watched().at(i).value().toString());
    }
}

void PageView::log(const QString &line)
{
    m_signals->insertItem(0, u"%1  %2"_s.arg(++m_count, 3).arg(line));
    delete m_signals->takeItem(signalsKept);
    refresh();
}

#include "FwLogView.h"

#include <QComboBox>
#include <QEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QSet>
#include <QTimer>
#include <QVBoxLayout>

#include <dialogs/DialogTheme.h>
#include <dialogs/FingerScroll.h>

#include "FwLog.h"
#include "FwLogModel.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int refreshMs = 100;
constexpr qsizetype mostLines = 5000;

QString viewStyle(const QPalette &palette)
{
    const QString combo =
        u"QComboBox { min-height: %1px; padding: 0 12px; font-size: %2px; color: %3;"
        " background-color: %4; border: 1px solid %5; border-radius: 6px; }"
        "QComboBox:focus { border: 3px solid %6; }"
        "QComboBox::drop-down { border: none; width: %1px; }"
        "QComboBox::down-arrow { image: url(:/images/chevron_down.png); }"
        "QComboBox QAbstractItemView { color: %3; background-color: %4; font-size: %2px; }"
        "QComboBox QAbstractItemView::item { min-height: %1px; padding: 0 12px; }"_s;
    return DialogTheme::buttonStyle(palette)
        + combo.arg(DialogTheme::touchTarget)
              .arg(DialogTheme::fontSize)
              .arg(palette.color(QPalette::ButtonText).name(),
                   palette.color(QPalette::Button).name(), DialogTheme::outline(palette).name(),
                   palette.color(QPalette::Highlight).name());
}

} // namespace

class FwLogView::Private
{
public:
    explicit Private(FwLogView *view);

    void makeBar(QLayout *layout);
    void makeList();
    void updateTexts();
    void refresh();
    void addCategories(const QVector<FwLogLine> &lines);
    void applyFilter();

    FwLogView *const q;
    FwLogModel model;
    QTimer timer;
    QComboBox *levels = nullptr;
    QComboBox *categories = nullptr;
    QPushButton *pause = nullptr;
    QPushButton *clear = nullptr;
    QListView *list = nullptr;
    bool paused = false;
};

FwLogView::Private::Private(FwLogView *view)
    : q(view)
{
    timer.setInterval(refreshMs);
    connect(&timer, &QTimer::timeout, q, [this] { refresh(); });
}

void FwLogView::Private::makeBar(QLayout *layout)
{
    levels = new QComboBox(q);
    levels->setObjectName(u"LogLevel"_s);
    for (const QtMsgType level : {QtDebugMsg, QtInfoMsg, QtWarningMsg, QtCriticalMsg}) {
        levels->addItem(QString(), int(level));
    }
    categories = new QComboBox(q);
    categories->setObjectName(u"LogCategory"_s);
    categories->addItem(QString(), QString());
    for (QComboBox *box : {levels, categories}) {
        // The style's own pop-up has rows that are too low for a finger.
        box->setView(new QListView(box));
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(8);
        box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        connect(box, &QComboBox::currentIndexChanged, q, [this] { applyFilter(); });
        layout->addWidget(box);
    }
    pause = new QPushButton(q);
    pause->setObjectName(u"LogPause"_s);
    connect(pause, &QPushButton::clicked, q, [this] { q->setPaused(!paused); });
    clear = new QPushButton(q);
    clear->setObjectName(u"LogClear"_s);
    connect(clear, &QPushButton::clicked, q, &FwLogView::clear);
    layout->addWidget(pause);
    layout->addWidget(clear);
}

void FwLogView::Private::makeList()
{
    list = new QListView(q);
    list->setObjectName(u"LogLines"_s);
    list->setModel(&model);
    list->setUniformItemSizes(true);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setTextElideMode(Qt::ElideNone);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(DialogTheme::fontSize - 2);
    list->setFont(font);
    new FingerScroll(list);
}

void FwLogView::Private::updateTexts()
{
    const QStringList names {tr("All levels"), tr("From info"), tr("From warning"), tr("Errors")};
    for (int i = 0; i < names.size(); ++i) {
        levels->setItemText(i, names.at(i));
    }
    categories->setItemText(0, tr("All categories"));
    levels->setAccessibleName(tr("Level"));
    categories->setAccessibleName(tr("Category"));
    pause->setText(paused ? tr("Resume") : tr("Pause"));
    clear->setText(tr("Clear"));
    list->setAccessibleName(tr("Log"));
}

void FwLogView::Private::refresh()
{
    const FwLog &log = FwLog::instance();
    if (paused || log.newestLine() == model.newest()) {
        return;
    }
    const QScrollBar *bar = list->verticalScrollBar();
    const bool atBottom = bar->value() == bar->maximum();
    const QVector<FwLogLine> lines = log.lines(model.newest());
    addCategories(lines);
    model.append(lines, mostLines);
    if (atBottom) {
        list->scrollToBottom();
    }
}

void FwLogView::Private::addCategories(const QVector<FwLogLine> &lines)
{
    QSet<QString> seen;
    for (const FwLogLine &line : lines) {
        seen.insert(line.category);
    }
    for (const QString &category : std::as_const(seen)) {
        if (categories->findData(category) < 0) {
            categories->addItem(category, category);
        }
    }
}

void FwLogView::Private::applyFilter()
{
    model.setFilter(QtMsgType(levels->currentData().toInt()), categories->currentData().toString());
    list->scrollToBottom();
}

FwLogView::FwLogView(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *bar = new QHBoxLayout;
    layout->addLayout(bar);
    d->makeBar(bar);
    d->makeList();
    layout->addWidget(d->list, 1);
    d->updateTexts();
}

FwLogView::~FwLogView() = default;

void FwLogView::setLevel(QtMsgType lowest)
{
    d->levels->setCurrentIndex(qMin(FwLogLine::severity(lowest), d->levels->count() - 1));
}

QtMsgType FwLogView::level() const
{
    return d->model.level();
}

void FwLogView::setCategory(const QString &category)
{
    if (d->categories->findData(category) < 0) {
        d->categories->addItem(category, category);
    }
    d->categories->setCurrentIndex(d->categories->findData(category));
}

QString FwLogView::category() const
{
    return d->model.category();
}

bool FwLogView::isPaused() const
{
    return d->paused;
}

void FwLogView::setPaused(bool paused)
{
    if (paused == d->paused) {
        return;
    }
    d->paused = paused;
    d->updateTexts();
    d->refresh();
    Q_EMIT pausedChanged(paused);
}

void FwLogView::clear()
{
    d->model.clear();
}

void FwLogView::showEvent(QShowEvent *event)
{
    DialogTheme::apply(this, &viewStyle);
    d->refresh();
    d->timer.start();
    QWidget::showEvent(event);
}

void FwLogView::hideEvent(QHideEvent *event)
{
    d->timer.stop();
    QWidget::hideEvent(event);
}

void FwLogView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        d->updateTexts();
    } else if (event->type() == QEvent::PaletteChange) {
        d->model.updateColors();
        if (isVisible()) {
            DialogTheme::apply(this, &viewStyle);
        }
    }
}

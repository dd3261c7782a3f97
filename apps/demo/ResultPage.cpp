#include "ResultPage.h"

#include "EventList.h"
#include "Look.h"
#include "PlotPanel.h"
#include "StatusChip.h"
#include "Wording.h"

#include <QDir>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QScroller>
#include <QTableWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr int listWidth = 300;
constexpr int mostListed = 500; // the newest; older ones are found by the file browser

} // namespace

ResultPage::ResultPage(const QString &folder, QWidget *parent)
    : QWidget(parent)
    , m_folder(folder)
{
    setObjectName(u"ResultPage"_s);
    setAutoFillBackground(true);
    auto *halves = new QHBoxLayout;
    halves->setSpacing(Look::spacing * 2);
    halves->addWidget(makeList());
    halves->addWidget(makeDetails(), 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, Look::spacing, 60, 40);
    layout->setSpacing(Look::spacing);
    layout->addLayout(halves, 1);
    layout->addWidget(makeButtons());
    retranslate();
}

QWidget *ResultPage::makeList()
{
    auto *side = new QWidget(this);
    m_side = side;
    m_listHeading = Look::heading(side);
    m_list = new QListWidget(side);
    m_list->setObjectName(u"Results"_s);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QScroller::grabGesture(m_list->viewport(), QScroller::TouchGesture);
    m_empty = new QLabel(side);
    m_empty->setWordWrap(true);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_listHeading);
    layout->addWidget(m_empty);
    layout->addWidget(m_list, 1);
    connect(m_list, &QListWidget::itemClicked, this, &ResultPage::chooseCurrent);
    return side;
}

QWidget *ResultPage::makeDetails()
{
    auto *side = new QWidget(this);
    m_name = Look::heading(side);
    m_name->setObjectName(u"ResultName"_s);
    m_verdict = new StatusChip(side);
    m_verdict->setObjectName(u"ResultVerdict"_s);
    m_plot = new PlotPanel(side);
    m_table = new QTableWidget(0, 2, side);
    m_table->setObjectName(u"ResultTable"_s);
    m_table->horizontalHeader()->hide();
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(28);
    m_table->setShowGrid(false);
    m_table->setFrameShape(QFrame::NoFrame);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionMode(QAbstractItemView::NoSelection);
    m_table->setFocusPolicy(Qt::NoFocus);
    m_table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    QScroller::grabGesture(m_table->viewport(), QScroller::TouchGesture);
    m_events = new EventList(side);

    auto *top = new QHBoxLayout;
    top->addWidget(m_name, 1);
    top->addWidget(m_verdict);
    auto *bottom = new QHBoxLayout;
    bottom->setSpacing(Look::spacing);
    bottom->addWidget(m_table, 1);
    bottom->addWidget(m_events, 1);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(m_plot, 3);
    layout->addLayout(bottom, 2);
    return side;
}

QWidget *ResultPage::makeButtons()
{
    auto *bar = new QWidget(this);
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Look::spacing);
    m_browse = Look::button(u"Browse"_s, bar);
    m_upload = Look::button(u"Upload"_s, bar);
    m_transfer = Look::button(u"Transfer"_s, bar);
    m_delete = Look::button(u"Delete"_s, bar);
    for (QPushButton *button : {m_browse, m_upload, m_transfer, m_delete}) {
        button->setMinimumWidth(96);
        button->setMaximumWidth(200);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        layout->addWidget(button, 2);
    }
    m_uploadBar = new QProgressBar(bar);
    m_uploadBar->setObjectName(u"UploadProgress"_s);
    m_uploadBar->setTextVisible(false);
    m_uploadBar->setFixedHeight(16);
    m_uploadBar->setMinimumWidth(40);
    QSizePolicy policy = m_uploadBar->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_uploadBar->setSizePolicy(policy);
    m_uploadBar->hide();
    layout->addWidget(m_uploadBar, 1);
    connect(m_browse, &QPushButton::clicked, this, &ResultPage::browseWanted);
    connect(m_upload, &QPushButton::clicked, this, [this] { Q_EMIT uploadWanted(m_path); });
    connect(m_transfer, &QPushButton::clicked, this, &ResultPage::transferWanted);
    connect(m_delete, &QPushButton::clicked, this, [this] { Q_EMIT deleteWanted(m_path); });
    return bar;
}

void ResultPage::refresh()
{
    m_list->clear();
    const QFileInfoList files = QDir(m_folder).entryInfoList(
        {u"*."_s + RunFile::suffix()}, QDir::Files | QDir::Readable, QDir::Time);
    for (const QFileInfo &file : files.first(qMin(files.size(), qsizetype(mostListed)))) {
        const QString date = QLocale().toString(file.lastModified(), QLocale::ShortFormat);
        auto *item = new QListWidgetItem(file.completeBaseName() + u'\n' + date, m_list);
        item->setData(Qt::UserRole, file.absoluteFilePath());
        item->setSizeHint({listWidth, 60});
        if (file.absoluteFilePath() == m_path) {
            m_list->setCurrentItem(item);
        }
    }
    m_empty->setVisible(files.isEmpty());
    if (!m_path.isEmpty() && !QFileInfo::exists(m_path)) {
        showRun({}, RunFile());
    }
}

void ResultPage::showRun(const QString &path, const RunFile &file)
{
    m_path = path;
    m_file = file;
    m_plot->setRun(&m_file.run);
    m_events->setEvents(m_file.run.events);
    showDetails();
    showButtons();
    for (int i = 0; i < m_list->count(); ++i) {
        if (m_list->item(i)->data(Qt::UserRole) == path) {
            m_list->setCurrentRow(i);
        }
    }
}

void ResultPage::setCanUpload(bool canUpload)
{
    m_canUpload = canUpload;
    showButtons();
}

void ResultPage::showUpload(qint64 bytes, qint64 total)
{
    constexpr int steps = 1000;
    m_isUploading = true;
    m_uploadBar->setRange(0, total > 0 ? steps : 0);
    m_uploadBar->setValue(total > 0 ? static_cast<int>(steps * bytes / total) : 0);
    m_uploadBar->show();
    showButtons();
}

void ResultPage::endUpload()
{
    m_isUploading = false;
    m_uploadBar->hide();
    showButtons();
}

void ResultPage::chooseCurrent()
{
    Q_EMIT openWanted(m_list->currentItem()->data(Qt::UserRole).toString());
}

void ResultPage::showDetails()
{
    const Run &run = m_file.run;
    const RunFigures &figures = run.figures();
    m_name->setText(m_path.isEmpty() ? tr("Choose a result at the left.")
                                     : QFileInfo(m_path).fileName());
    m_verdict->setVisible(!m_path.isEmpty());
    m_verdict->setStatus(Wording::verdict(run.verdict()), Wording::verdictColour(run.verdict()));
    m_table->setRowCount(0);
    if (m_path.isEmpty()) {
        return;
    }
    addRow(tr("Measured"), QLocale().toString(run.started, QLocale::ShortFormat));
    addRow(tr("Ended"), Wording::ending(run.ending));
    addRow(tr("Lowest level"), Wording::level(figures.lowest()));
    addRow(tr("Highest level"), Wording::level(figures.highest()));
    addRow(tr("Mean power"), Wording::level(figures.mean()));
    addRow(tr("Bit errors"), QString::number(figures.errors()));
    addRow(tr("Error ratio"), Wording::ratio(figures.ratio()));
    addRow(tr("Lowest level allowed"), Wording::level(run.settings.threshold));
    addRow(tr("Error ratio allowed"), Wording::ratio(run.settings.ratioLimit()));
    addRow(tr("Optical frequency"), tr("%1 THz").arg(run.settings.frequency));
    addRow(tr("Bit rate"), tr("%1 Gbit/s").arg(run.settings.bitRate));
    addRow(tr("Instrument"), m_file.head.serverId);
    addRow(tr("Ports"), m_file.head.ports);
    m_table->resizeColumnToContents(0);
}

void ResultPage::addRow(const QString &name, const QString &value)
{
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    m_table->setItem(row, 0, new QTableWidgetItem(name));
    m_table->setItem(row, 1, new QTableWidgetItem(value));
}

void ResultPage::showButtons()
{
    m_upload->setEnabled(m_canUpload && !m_isUploading && !m_path.isEmpty());
    m_transfer->setEnabled(m_canUpload);
    m_delete->setEnabled(!m_path.isEmpty());
}

void ResultPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void ResultPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

void ResultPage::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const bool isCompact = width() < Look::compactWidth;
    m_side->setFixedWidth(isCompact ? listWidth * 2 / 3 : listWidth);
    m_events->setVisible(!isCompact);
    m_plot->setCompact(isCompact);
}

void ResultPage::retranslate()
{
    m_listHeading->setText(tr("Saved results"));
    m_list->setAccessibleName(m_listHeading->text());
    m_empty->setText(tr("Nothing was saved yet. A run that is over is saved in the test window."));
    m_table->setAccessibleName(tr("Figures of the result"));
    m_browse->setText(tr("Open another file"));
    m_upload->setText(tr("Upload to instrument"));
    m_uploadBar->setAccessibleName(tr("Progress of the upload"));
    m_transfer->setText(tr("Files of instrument"));
    m_delete->setText(tr("Delete"));
    showDetails();
    showButtons();
}

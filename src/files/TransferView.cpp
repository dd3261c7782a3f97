#include "TransferView.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>

#include "ConflictQuestions.h"
#include "FileListView.h"
#include "FileNames.h"
#include "FileOperations.h"
#include "FilePane.h"
#include "FilePaths.h"
#include "FileQuestions.h"
#include "FilesTheme.h"
#include "LinkWatch.h"
#include "TransferPanel.h"
#include "dialogs/QvexMessageBox.h"

using namespace Qt::Literals::StringLiterals;

namespace {

FileTransfer::Kind kindOf(const FilePlace &from, const FilePlace &to)
{
    if (from.isLocal()) {
        return to.isLocal() ? FileTransfer::Kind::LocalCopy : FileTransfer::Kind::Upload;
    }
    return FileTransfer::Kind::Download;
}

/// A folder does not fit into itself.
QString wrongTarget(const QStringList &paths, const QString &folder)
{
    for (const QString &path : paths) {
        if (folder == path || folder.startsWith(path + u'/')) {
            return TransferView::tr("\"%1\" can't be copied into itself.")
                .arg(FilePaths::shownNameOf(path));
        }
        if (FilePaths::parentOf(path) == folder) {
            return TransferView::tr("Both sides show the same folder.");
        }
    }
    return {};
}

} // namespace

TransferView::TransferView(const FileStores &stores, LinkWatch *link, QWidget *parent)
    : QWidget(parent)
    , m_stores(stores)
    , m_link(link)
    , m_left(new FilePane(stores, link, true, this))
    , m_right(new FilePane(stores, link, true, this))
    , m_active(m_left)
    , m_toRight(FilesTheme::toolButton(u"CopyToRight"_s, u"forward"_s, this))
    , m_toLeft(FilesTheme::toolButton(u"CopyToLeft"_s, u"back"_s, this))
    , m_panel(new TransferPanel(this))
    , m_questions(new ConflictQuestions(this))
{
    m_panel->setObjectName(u"TransferPanel"_s);
    m_panel->hide();
    for (FilePane *pane : {m_left, m_right}) {
        pane->setMultiple(true);
        connect(pane, &FilePane::touched, this, [this, pane] { setActive(pane); });
        connect(pane, &FilePane::selectionHasChanged, this, &TransferView::updateArrows);
    }
    connect(m_toRight, &QToolButton::clicked, this, [this] { carry(m_left, m_right); });
    connect(m_toLeft, &QToolButton::clicked, this, [this] { carry(m_right, m_left); });
    connect(m_panel, &TransferPanel::cancelRequested, this, &TransferView::cancel);
    connect(m_link, &LinkWatch::lost, this, &TransferView::updateArrows);
    connect(m_link, &LinkWatch::restored, this, &TransferView::updateArrows);
    arrange();
    updateText();
    m_left->setActive(true);
    updateArrows();
}

TransferView::~TransferView()
{
    delete m_transfer; // before the questions that it may still ask
}

void TransferView::updateText()
{
    FilesTheme::setName(m_toRight, tr("Copy to the right side"));
    FilesTheme::setName(m_toLeft, tr("Copy to the left side"));
}

void TransferView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        updateText();
    }
}

void TransferView::arrange()
{
    auto *arrows = new QVBoxLayout;
    arrows->setSpacing(2 * FilesTheme::gap);
    arrows->addStretch();
    arrows->addWidget(m_toRight);
    arrows->addWidget(m_toLeft);
    arrows->addStretch();
    auto *panes = new QHBoxLayout;
    panes->setSpacing(2);
    panes->addWidget(m_left, 1);
    panes->addLayout(arrows);
    panes->addWidget(m_right, 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addLayout(panes, 1);
    column->addWidget(m_panel);
}

void TransferView::setActive(FilePane *pane)
{
    m_active = pane;
    m_left->setActive(pane == m_left);
    m_right->setActive(pane == m_right);
}

bool TransferView::isTransferring() const
{
    return m_transfer != nullptr;
}

void TransferView::updateArrows()
{
    const auto usable = [this](const FilePane *pane) {
        return pane->files() && (pane->place().isLocal() || !m_link->isLost());
    };
    const bool free = !isTransferring() && usable(m_left) && usable(m_right);
    m_toRight->setEnabled(free && !m_left->selectedPaths(false).isEmpty());
    m_toLeft->setEnabled(free && !m_right->selectedPaths(false).isEmpty());
}

void TransferView::carry(FilePane *from, FilePane *to)
{
    const QStringList paths = from->selectedPaths(false);
    const bool sameSide = from->place().isLocal() == to->place().isLocal();
    const QString fault = sameSide ? wrongTarget(paths, to->folder()) : QString();
    if (!fault.isEmpty()) {
        from->showError(fault);
    } else if (sameSide && !from->place().isLocal()) {
        to->operations()->copy(paths, to->folder()); // the instrument does it alone
    } else {
        begin(kindOf(from->place(), to->place()), paths, to);
    }
}

void TransferView::begin(FileTransfer::Kind kind, const QStringList &paths, FilePane *to)
{
    m_target = to;
    m_transfer = new FileTransfer(m_stores.controller, kind, paths, to->folder(), this);
    m_transfer->setObjectName(u"Transfer"_s);
    m_transfer->setQuestions(m_questions);
    connect(m_transfer, &FileTransfer::progressChanged, m_panel, &TransferPanel::showProgress);
    connect(m_transfer, &FileTransfer::finished, this, &TransferView::end);
    m_panel->begin(tr("To %1:").arg(FileNames::shown(to->place().title)));
    m_panel->show();
    updateArrows();
    m_transfer->start();
}

void TransferView::cancel()
{
    if (m_transfer) {
        m_panel->showCancelling();
        m_transfer->cancel();
    }
}

void TransferView::end(const TransferSummary &summary)
{
    m_transfer->deleteLater(); // it is what calls
    m_questions->withdraw();
    m_transfer = nullptr;
    m_panel->hide();
    if (m_target) {
        m_target->refresh();
    }
    for (FilePane *pane : {m_left, m_right}) {
        pane->list()->clearSelection();
    }
    updateArrows();
    tell(summary);
    Q_EMIT transferEnded();
}

void TransferView::tell(const TransferSummary &summary)
{
    const QString text = FileQuestions::summaryText(summary);
    FilePane *pane = m_target ? m_target.data() : m_left;
    if (summary.outcome == TransferSummary::Outcome::Done && summary.failures.isEmpty()) {
        pane->showMessage(text);
        return;
    }
    pane->showError(text);
    if (summary.outcome == TransferSummary::Outcome::Cancelled) {
        return; // whoever did that knows
    }
    auto *box = new QvexMessageBox(this);
    box->setObjectName(u"TransferSummary"_s);
    box->setWindowTitle(tr("Transfer"));
    box->setIcon(QvexMessageBox::Warning);
    box->setText(text);
    const QString lines = FileQuestions::failureLines(summary);
    const bool isOne = summary.reason.isEmpty() && summary.failures.size() == 1;
    box->setInformativeText(isOne ? lines : summary.reason);
    box->setDetailedText(isOne ? QString() : lines);
    connect(box, &QDialog::finished, box, &QObject::deleteLater);
    box->open();
}

#include "TransferPanel.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

#include "FileNames.h"
#include "FileQuestions.h"
#include "FilesTheme.h"
#include "QvexFileModel.h"
#include "dialogs/DialogTheme.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int barSteps = 1000;

QString numbersText(const TransferProgress &progress)
{
    QStringList parts {
        TransferPanel::tr("%1 of %2").arg(progress.fileNumber).arg(progress.fileCount),
        TransferPanel::tr("%1 of %2")
            .arg(QvexFileModel::sizeText(progress.bytesDone),
                 QvexFileModel::sizeText(progress.bytesTotal))};
    if (progress.bytesPerSecond > 0) {
        parts += TransferPanel::tr("%1/s").arg(
            QvexFileModel::sizeText(qRound64(progress.bytesPerSecond)));
    }
    const QString remaining = FileQuestions::remainingText(progress.remaining);
    if (!remaining.isEmpty()) {
        parts += remaining;
    }
    return parts.join(u"  \u00b7  "_s);
}

} // namespace

TransferPanel::TransferPanel(QWidget *parent)
    : QFrame(parent)
    , m_file(new QLabel(this))
    , m_numbers(new QLabel(this))
    , m_bar(new QProgressBar(this))
    , m_cancel(new QToolButton(this))
{
    m_file->setObjectName(u"TransferFile"_s);
    m_file->setTextFormat(Qt::PlainText);
    m_file->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_numbers->setObjectName(u"TransferNumbers"_s);
    m_bar->setObjectName(u"TransferBar"_s);
    m_bar->setRange(0, barSteps);
    m_bar->setTextVisible(false);
    m_cancel->setObjectName(u"TransferCancel"_s);
    m_cancel->setMinimumSize(DialogTheme::buttonWidth, DialogTheme::touchTarget + 4);
    m_cancel->setStyleSheet(u"QToolButton { border: 1px solid palette(window-text); }"_s);
    connect(m_cancel, &QToolButton::clicked, this, &TransferPanel::cancelRequested);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setVerticalSpacing(2);
    grid->setHorizontalSpacing(DialogTheme::spacing);
    grid->addWidget(m_file, 0, 0);
    grid->addWidget(m_numbers, 0, 1);
    grid->addWidget(m_bar, 1, 0, 1, 2);
    grid->addWidget(m_cancel, 0, 2, 2, 1);
    grid->setColumnStretch(0, 1);
    updateText();
}

void TransferPanel::updateText()
{
    m_bar->setAccessibleName(tr("Progress of the transfer"));
    m_cancel->setText(tr("Cancel"));
    m_cancel->setAccessibleName(tr("Cancel the transfer"));
}

void TransferPanel::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        updateText();
    }
}

void TransferPanel::begin(const QString &title)
{
    m_title = title;
    m_fileText = title;
    m_numbers->clear();
    m_bar->setValue(0);
    m_cancel->setEnabled(true);
    elide();
}

void TransferPanel::showProgress(const TransferProgress &progress)
{
    m_fileText =
        progress.file.isEmpty() ? m_title : m_title + u"  "_s + FileNames::shown(progress.file);
    m_numbers->setText(progress.fileCount > 0 ? numbersText(progress) : QString());
    const double share = progress.bytesTotal > 0
        ? static_cast<double>(progress.bytesDone) / static_cast<double>(progress.bytesTotal)
        : 0;
    m_bar->setValue(qBound(0, qRound(share * barSteps), barSteps));
    elide();
}

void TransferPanel::showCancelling()
{
    m_cancel->setEnabled(false);
    m_fileText = tr("Cancelling\u2026");
    elide();
}

void TransferPanel::elide()
{
    m_file->setText(m_file->fontMetrics().elidedText(m_fileText, Qt::ElideMiddle, m_file->width()));
}

void TransferPanel::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    elide();
}

#include "StatusStrip.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "FilesTheme.h"
#include "dialogs/DialogTheme.h"

using namespace Qt::Literals::StringLiterals;

StatusStrip::StatusStrip(QWidget *parent)
    : QFrame(parent)
    , m_label(new QLabel(this))
    , m_cancel(new QToolButton(this))
{
    m_label->setObjectName(u"StatusText"_s);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_cancel->setObjectName(u"StatusCancel"_s);
    m_cancel->setMinimumSize(80, DialogTheme::touchTarget);
    m_cancel->hide();
    connect(m_cancel, &QToolButton::clicked, this, &StatusStrip::cancelRequested);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(4, 0, 4, 0);
    row->addWidget(m_label, 1);
    row->addWidget(m_cancel);
    setMinimumHeight(28);
    updateText();
}

void StatusStrip::updateText()
{
    m_cancel->setText(tr("Stop"));
    m_cancel->setAccessibleName(tr("Stop what is under way"));
}

void StatusStrip::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        updateText();
    }
}

void StatusStrip::showMessage(const QString &text)
{
    show(text, false, false);
}

void StatusStrip::showError(const QString &text)
{
    show(text, true, false);
}

void StatusStrip::showBusy(const QString &text)
{
    show(text, false, true);
}

void StatusStrip::show(const QString &text, bool isError, bool isBusy)
{
    m_text = text;
    QPalette colors;
    colors.setColor(QPalette::WindowText,
                    isError ? FilesTheme::errorInk(palette())
                            : palette().color(QPalette::WindowText));
    m_label->setPalette(colors);
    m_label->setAccessibleName(text);
    m_cancel->setVisible(isBusy);
    elide();
}

void StatusStrip::elide()
{
    const QString line = m_text.simplified();
    m_label->setText(m_label->fontMetrics().elidedText(line, Qt::ElideMiddle, m_label->width()));
}

void StatusStrip::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    elide();
}

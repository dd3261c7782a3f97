#include "LogPanel.h"

#include "Look.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <frame/FwLog.h>
#include <frame/FwLogView.h>

using namespace Qt::StringLiterals;

LogPanel::LogPanel(QWidget *parent)
    : QWidget(parent)
    , m_heading(Look::heading(this))
    , m_path(new QLabel(this))
{
    setObjectName(u"LogPanel"_s);
    setAutoFillBackground(true);
    m_path->setObjectName(u"LogPath"_s);
    m_path->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->setSpacing(Look::spacing);
    layout->addWidget(m_heading);
    layout->addWidget(new FwLogView(this), 1);
    layout->addWidget(m_path);
    retranslate();
}

void LogPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void LogPanel::retranslate()
{
    const QString path = FwLog::instance().filePath();
    m_heading->setText(tr("Log"));
    m_path->setText(path.isEmpty() ? tr("The log is not kept in a file.")
                                   : tr("The log is kept in %1").arg(path));
}

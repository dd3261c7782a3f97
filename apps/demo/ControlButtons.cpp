#include "ControlButtons.h"

#include "Look.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

ControlButtons::ControlButtons(QWidget *parent)
    : QWidget(parent)
    , m_autoSave(Look::button(u"AutoSave"_s, this))
    , m_log(Look::button(u"ShowLog"_s, this))
{
    setObjectName(u"ControlButtons"_s);
    m_autoSave->setCheckable(true);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Look::spacing);
    layout->addWidget(m_autoSave, 1);
    layout->addWidget(m_log, 1);
    connect(m_autoSave, &QPushButton::toggled, this, [this](bool on) {
        retranslate();
        Q_EMIT autoSaveWanted(on);
    });
    connect(m_log, &QPushButton::clicked, this, &ControlButtons::logWanted);
    retranslate();
}

void ControlButtons::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

/// A button's text says what it is, not by its colour alone whether it is on.
void ControlButtons::retranslate()
{
    m_autoSave->setText(m_autoSave->isChecked() ? tr("Autosave: on") : tr("Autosave: off"));
    m_log->setText(tr("Log"));
}

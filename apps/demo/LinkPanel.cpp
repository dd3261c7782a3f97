#include "LinkPanel.h"

#include "Look.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

LinkPanel::LinkPanel(ControllerLink &link, QWidget *parent)
    : QWidget(parent)
    , m_link(link)
    , m_state(Look::heading(this))
    , m_reason(new QLabel(this))
    , m_retry(Look::button(u"RetryLink"_s, this))
{
    setObjectName(u"LinkPanel"_s);
    m_reason->setWordWrap(true);
    m_reason->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Look::spacing, Look::spacing, Look::spacing, Look::spacing);
    layout->addWidget(m_state);
    layout->addWidget(m_reason, 1);
    layout->addWidget(m_retry);
    connect(m_retry, &QPushButton::clicked, &m_link, &ControllerLink::retryNow);
    connect(&m_link, &ControllerLink::stateChanged, this, &LinkPanel::showState);
    showState();
}

QString LinkPanel::stateText(ControllerLink::State state)
{
    switch (state) {
    case ControllerLink::State::Connected:
        return tr("Link up");
    case ControllerLink::State::Suspect:
        return tr("Link slow");
    case ControllerLink::State::Restoring:
        return tr("Connecting");
    case ControllerLink::State::Lost:
        return tr("Link lost");
    default:
        return tr("No link");
    }
}

QByteArray LinkPanel::stateColour(ControllerLink::State state)
{
    switch (state) {
    case ControllerLink::State::Connected:
        return "pass";
    case ControllerLink::State::Suspect:
    case ControllerLink::State::Restoring:
        return "warning";
    default:
        return "fail";
    }
}

void LinkPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        showState();
    }
}

void LinkPanel::showState()
{
    setWindowTitle(tr("Link"));
    m_state->setText(stateText(m_link.state()));
    m_reason->setText(m_link.address() + u'\n' + m_link.reason());
    m_retry->setText(tr("Try again now"));
    m_retry->setEnabled(m_link.state() == ControllerLink::State::Lost);
}

#include "AppHelpWidget.h"

#include <dialogs/DialogTheme.h>
#include <dialogs/HelpBrowser.h>

#include <QEvent>
#include <QHBoxLayout>

#include "PanelButton.h"
#include "PanelLook.h"

using namespace Qt::StringLiterals;

struct AppHelpWidget::Private
{
    PanelButton *addButton(const QString &name, const QString &icon);
    void make(AppHelpWidget *panel);

    QWidget *content = nullptr;
    QHBoxLayout *row = nullptr;
    HelpBrowser *browser = nullptr;
    PanelButton *back = nullptr;
    PanelButton *forward = nullptr;
    PanelButton *close = nullptr;
};

PanelButton *AppHelpWidget::Private::addButton(const QString &name, const QString &icon)
{
    auto *button = new PanelButton(content);
    button->setObjectName(name);
    button->setIcon(DialogTheme::icon(icon));
    row->addWidget(button);
    return button;
}

void AppHelpWidget::Private::make(AppHelpWidget *panel)
{
    content = new QWidget(panel);
    content->setObjectName(u"HelpContent"_s);
    auto *column = new QVBoxLayout(content);
    column->setSpacing(DialogTheme::spacing);
    const int margin = DialogTheme::spacing;
    column->setContentsMargins(margin, margin, margin, margin);
    row = new QHBoxLayout;
    row->setSpacing(DialogTheme::spacing);
    column->addLayout(row);
    back = addButton(u"HelpBack"_s, u":/images/back.png"_s);
    forward = addButton(u"HelpForward"_s, u":/images/forward.png"_s);
    row->addStretch();
    close = addButton(u"HelpClose"_s, u":/close-icon-48.png"_s);

    browser = new HelpBrowser(content);
    browser->setObjectName(u"HelpBrowser"_s);
    browser->setFont(PanelLook::font(browser->font(), DialogTheme::fontSize));
    browser->document()->setDocumentMargin(DialogTheme::spacing);
    column->addWidget(browser, 1);

    back->setEnabled(false);
    forward->setEnabled(false);
    connect(back, &QPushButton::clicked, browser, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, browser, &QTextBrowser::forward);
    connect(close, &QPushButton::clicked, panel, &AppHelpWidget::hideHelpWindow);
    connect(browser, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
    connect(browser, &QTextBrowser::forwardAvailable, forward, &QPushButton::setEnabled);
}

AppHelpWidget::AppHelpWidget(QWidget *parent)
    : SidePanel(parent)
    , d(std::make_unique<Private>())
{
    setObjectName(u"AppHelpWidget"_s);
    d->make(this);
    d->content->setGeometry(contentRect());
    updateText();
    connect(this, &SidePanel::panelShown, this, &AppHelpWidget::helpPanelShown);
}

AppHelpWidget::~AppHelpWidget() = default;

void AppHelpWidget::updateText()
{
    d->back->setText(tr("Back"));
    d->forward->setText(tr("Forward"));
    d->close->setText(tr("Close help"));
    d->browser->setAccessibleName(tr("Help page"));
}

void AppHelpWidget::showHelpWindow(const QString &url)
{
    d->browser->open(url);
    slideIn();
}

void AppHelpWidget::hideHelpWindow()
{
    slideOut();
}

bool AppHelpWidget::event(QEvent *event)
{
    const bool handled = SidePanel::event(event);
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::LayoutDirectionChange:
        if (d) {
            d->content->setGeometry(contentRect());
        }
        break;
    default:
        break;
    }
    return handled;
}

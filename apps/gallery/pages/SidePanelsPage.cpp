#include "SidePanelsPage.h"

#include "../Controls.h"
#include "../Look.h"

#include <frame/AppCustomWidget.h>
#include <frame/AppHelpWidget.h>

#include <QLabel>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

SidePanelsPage::SidePanelsPage()
    : Page(u"side-panels"_s, tr("AppCustomWidget, AppHelpWidget"),
           tr("Panels over all of an application, pulled shut to the side."))
{
}

QWidget *SidePanelsPage::recipe(QWidget *parent)
{
    auto *frame = new QFrame(parent);
    frame->setFixedSize(624, 272);
    m_custom = new AppCustomWidget(frame);
    auto *label = new QLabel(tr("Whatever the application puts here"));
    label->setAlignment(Qt::AlignCenter);
    m_custom->registerWidget(label);
    m_help = new AppHelpWidget(frame);
    connect(m_custom, &AppCustomWidget::customPanelShown, this,
            [this](bool shown) { note(u"customPanelShown"_s, shown); });
    connect(m_help, &AppHelpWidget::helpPanelShown, this,
            [this](bool shown) { note(u"helpPanelShown"_s, shown); });
    return frame;
}

QWidget *SidePanelsPage::controls(QWidget *parent)
{
    watch(u"custom shown"_s, [this] { return m_custom->isPanelShown(); });
    watch(u"help shown"_s, [this] { return m_help->isPanelShown(); });
    auto *controls = new Controls(parent);
    controls->addButton(tr("showPanel()"), [this] { m_custom->showPanel(); });
    controls->addButton(tr("hidePanel()"), [this] { m_custom->hidePanel(); });
    controls->addButton(tr("showHelpWindow()"),
                        [this] { m_help->showHelpWindow(u":/gallery/help/index.html"_s); });
    controls->addButton(tr("hideHelpWindow()"), [this] { m_help->hideHelpWindow(); });
    return controls;
}

QVector<Page::Scene> SidePanelsPage::scenes()
{
    return {{{}, [this] { m_custom->showPanel(); }, 150},
            {u"custom"_s, [this] { m_custom->showPanel(); }, 700},
            {u"help"_s, [this] { m_help->showHelpWindow(u":/gallery/help/index.html"_s); }, 700},
            {u"mirrored"_s, [this] { m_help->setLayoutDirection(Qt::RightToLeft); }}};
}

#include "MissionControlPage.h"

#include "../Controls.h"

#include <frame/AppMissionControlWidget.h>

#include <QLabel>

using namespace Qt::Literals::StringLiterals;

MissionControlPage::MissionControlPage()
    : Page(u"mission-control"_s, tr("AppMissionControlWidget"),
           tr("What an application is and how far it is, pulled up from the lower edge."))
{
}

QWidget *MissionControlPage::recipe(QWidget *parent)
{
    auto *frame = new QFrame(parent);
    frame->setFixedSize(624, 340);
    m_panel = new AppMissionControlWidget(frame);
    m_panel->setApplicationName(tr("Bit error rate"));
    m_panel->setApplicationPort(u"1/2"_s);
    m_panel->registerWidget(new QLabel(tr("Lanes in use: 4")), 0, 0);
    m_panel->registerWidget(new QLabel(tr("Pattern: PRBS31")), 0, 1);
    return frame;
}

void MissionControlPage::noteSignals()
{
    using Panel = AppMissionControlWidget;
    connect(m_panel, &Panel::expanded, this, [this] { note(u"expanded"_s); });
    connect(m_panel, &Panel::contracted, this, [this] { note(u"contracted"_s); });
    connect(m_panel, &Panel::requestCloseApplication, this,
            [this] { note(u"requestCloseApplication"_s); });
    connect(m_panel, &Panel::requestFwMissionControl, this,
            [this] { note(u"requestFwMissionControl"_s); });
    watch(u"isExpanded()"_s, [this] { return m_panel->isExpanded(); });
    watch(u"panelWidth()"_s, [this] { return int(m_panel->panelWidth()); });
}

QWidget *MissionControlPage::controls(QWidget *parent)
{
    noteSignals();
    auto *controls = new Controls(parent);
    controls->addButton(tr("expand()"), [this] { m_panel->expand(); });
    controls->addChoice(tr("Verdict: %1"), {0, 1, 2, 3},
                        [this](int state) { m_panel->setApplicationPassFail(state); });
    controls->addChoice(tr("Progress: %1"), {0, 33, 66, 100}, [this](int done) {
        m_panel->setApplicationProgress(done, done > 0 ? 100 : 0);
    });
    controls->addSwitch(tr("Lamp"), [this](bool on) { m_panel->setIndicator(on); });
    controls->addSwitch(tr("System"), [this](bool on) {
        on ? m_panel->fwMissionControlOpening(60) : m_panel->fwMissionControlClosing(60);
    });
    return controls;
}

QVector<Page::Scene> MissionControlPage::scenes()
{
    const auto show = [this](AppPassFail verdict, long complete, AppMissionControlWidth width) {
        m_panel->setDuration(0);
        m_panel->setPanelWidth(width);
        m_panel->setApplicationPassFail(int(verdict));
        m_panel->setApplicationProgress(complete, 100);
        m_panel->expand();
    };
    return {{{}, [] {}},
            {u"running"_s,
             [this, show] {
                 m_panel->setApplicationIcon(u":/images/information.png"_s, true);
                 m_panel->setIndicator(true);
                 m_panel->setApplicationStatus(tr("Measuring, 12 s to go"));
                 show(AppPassFail::None, 42, AppMissionControlWidth::Medium);
             }},
            {u"pass"_s, [show] { show(AppPassFail::Pass, 100, AppMissionControlWidth::Wide); }},
            {u"fail"_s,
             [this, show] {
                 m_panel->setApplicationSummary(int(AppPassFail::Fail));
                 m_panel->enableCloseButton(false);
                 m_panel->setIndicator(false);
                 m_panel->setApplicationStatus(tr("Lane 3 has lost its signal"));
                 show(AppPassFail::Fail, 71, AppMissionControlWidth::Narrow);
             }},
            {u"mirrored"_s, [this] { m_panel->setLayoutDirection(Qt::RightToLeft); }}};
}

#include "MiniMissionControlPage.h"

#include "../Controls.h"
#include "../Look.h"

#include <frame/AppMiniMissionControlWidget.h>

#include <QFrame>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

MiniMissionControlPage::MiniMissionControlPage()
    : Page(u"mini-mission-control"_s, tr("AppMiniMissionControlWidget"),
           tr("Small panels at the edge, each with a button that slides it in."))
{
}

QWidget *MiniMissionControlPage::recipe(QWidget *parent)
{
    auto *frame = new QFrame(parent);
    frame->setFixedSize(624, 280);
    m_panels = new AppMiniMissionControlWidget(frame);
    m_marker = Look::target(tr("Set marker A"), frame);
    m_laser = Look::target(tr("Switch off"), frame);
    m_panels->registerWidget(m_marker, 283, 82, 0);
    m_panels->registerWidget(m_laser, 283, 82, 1);
    m_panels->setExpandButtonText(m_marker, tr("Marker"));
    m_panels->setExpandButtonText(m_laser, tr("Laser"));
    m_panels->setExpandButtonIcon(m_laser, u":/images/warning.png"_s);
    return frame;
}

QWidget *MiniMissionControlPage::controls(QWidget *parent)
{
    watch(u"marker shown"_s, [this] { return m_panels->isPanelShown(m_marker); });
    watch(u"laser shown"_s, [this] { return m_panels->isPanelShown(m_laser); });
    auto *controls = new Controls(parent);
    controls->addButton(tr("Marker"), [this] { m_panels->showPanel(m_marker); });
    controls->addButton(tr("Laser alone"), [this] { m_panels->showPanel(m_laser, true); });
    controls->addSwitch(tr("Hidden"), [this](bool on) { m_panels->setVisible(!on); });
    return controls;
}

QVector<Page::Scene> MiniMissionControlPage::scenes()
{
    m_panels->setDuration(0);
    return {{{}, [] {}},
            {u"open"_s, [this] { m_panels->showPanel(m_marker); }},
            {u"both"_s, [this] { m_panels->showPanel(m_laser); }},
            {u"exclusive"_s,
             [this] { m_panels->showPanel(m_laser, true), m_panels->hidePanel(m_marker); }}};
}

#include "DelayClickPage.h"

#include "../Finger.h"
#include "../Look.h"

#include <frame/DelayClickButton.h>

using namespace Qt::Literals::StringLiterals;

DelayClickPage::DelayClickPage()
    : Page(u"delay-click-button"_s, tr("DelayClickButton"),
           tr("Tells a tap from a long press; a tap is told at once."))
{
}

QWidget *DelayClickPage::recipe(QWidget *parent)
{
    m_button = new DelayClickButton(parent);
    m_button->setText(tr("Tap or hold"));
    m_button->setStyleSheet(Look::plateSheet);
    m_button->setFixedSize(360, 160);
    connect(m_button, &DelayClickButton::mouseSingleClicked, this,
            [this](QPoint position) { note(u"mouseSingleClicked"_s, position); });
    connect(m_button, &DelayClickButton::mouseDelayClicked, this,
            [this](QPoint position) { note(u"mouseDelayClicked"_s, position); });
    watch(u"isDown()"_s, [this] { return m_button->isDown(); });
    return m_button;
}

QVector<Page::Scene> DelayClickPage::scenes()
{
    const auto play = [this] {
        Finger::tap(m_button);
        Finger::press(m_button);
    };
    return {{{}, play, 500}};
}

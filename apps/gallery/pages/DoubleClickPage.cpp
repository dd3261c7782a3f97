#include "DoubleClickPage.h"

#include "../Finger.h"
#include "../Look.h"

#include <frame/DoubleClickButton.h>

using namespace Qt::Literals::StringLiterals;

DoubleClickPage::DoubleClickPage()
    : Page(u"double-click-button"_s, tr("DoubleClickButton"),
           tr("Tells a tap from a double tap; a tap is told when no second one has come."))
{
}

QWidget *DoubleClickPage::recipe(QWidget *parent)
{
    m_button = new DoubleClickButton(parent);
    m_button->setText(tr("Tap or double-tap"));
    m_button->setStyleSheet(Look::plateSheet);
    m_button->setFixedSize(360, 160);
    connect(m_button, &DoubleClickButton::mouseSingleClicked, this,
            [this](QPoint position) { note(u"mouseSingleClicked"_s, position); });
    connect(m_button, &DoubleClickButton::mouseDoubleClicked, this,
            [this](QPoint position) { note(u"mouseDoubleClicked"_s, position); });
    watch(u"isDown()"_s, [this] { return m_button->isDown(); });
    return m_button;
}

QVector<Page::Scene> DoubleClickPage::scenes()
{
    const auto play = [this] {
        Finger::doubleTap(m_button);
        Finger::tap(m_button);
    };
    return {{{}, play, 800}};
}

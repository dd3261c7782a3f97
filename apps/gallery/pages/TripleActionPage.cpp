#include "TripleActionPage.h"

#include "../Finger.h"
#include "../Look.h"

#include <frame/TripleActionButton.h>

#include <QTimer>

using namespace Qt::Literals::StringLiterals;

TripleActionPage::TripleActionPage()
    : Page(u"triple-action-button"_s, tr("TripleActionButton"),
           tr("Tells a tap, a long press and a double tap apart."))
{
}

QWidget *TripleActionPage::recipe(QWidget *parent)
{
    m_button = new TripleActionButton(parent);
    m_button->setText(tr("Tap, hold or double-tap"));
    m_button->setStyleSheet(Look::plateSheet);
    m_button->setFixedSize(360, 160);
    connect(m_button, &TripleActionButton::mouseSingleClicked, this,
            [this](QPoint position) { note(u"mouseSingleClicked"_s, position); });
    connect(m_button, &TripleActionButton::mouseDelayClicked, this,
            [this](QPoint position) { note(u"mouseDelayClicked"_s, position); });
    connect(m_button, &TripleActionButton::mouseDoubleClicked, this,
            [this](QPoint position) { note(u"mouseDoubleClicked"_s, position); });
    watch(u"isDown()"_s, [this] { return m_button->isDown(); });
    return m_button;
}

QVector<Page::Scene> TripleActionPage::scenes()
{
    const auto play = [this] {
        Finger::tap(m_button);
        QTimer::singleShot(700, m_button, [this] { Finger::doubleTap(m_button); });
        QTimer::singleShot(1000, m_button, [this] { Finger::press(m_button); });
    };
    return {{{}, play, 1500}};
}

#include "DirectionKeysPage.h"

#include "../Finger.h"
#include "../Look.h"

#include <input/QLrudDialog.h>

#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

DirectionKeysPage::DirectionKeysPage()
    : Page(u"direction-keys"_s, tr("QLrudDialog"),
           tr("The direction keys on the screen, at its right edge."))
{
}

QWidget *DirectionKeysPage::recipe(QWidget *parent)
{
    m_open = Look::target(tr("Show the keys"), parent);
    QLrudDialog *keys = QLrudDialog::Instance();
    connect(m_open, &QPushButton::clicked, keys, &QWidget::show);
    connect(keys, &QLrudDialog::pressedUp, this, [this] { note(u"pressedUp"_s); });
    connect(keys, &QLrudDialog::releasedUp, this, [this] { note(u"releasedUp"_s); });
    connect(keys, &QLrudDialog::pressedLeft, this, [this] { note(u"pressedLeft"_s); });
    connect(keys, &QLrudDialog::advanceWheel, this,
            [this](int steps, int mode) { note(u"advanceWheel"_s, steps, mode); });
    connect(keys, &QLrudDialog::clickedShowNumpad, this, [this] { note(u"clickedShowNumpad"_s); });
    connect(keys, &QLrudDialog::hidden, this, [this] { note(u"hidden"_s); });
    return m_open;
}

QVector<Page::Scene> DirectionKeysPage::scenes()
{
    constexpr int slideIn = 450; // milliseconds, and a little more
    return {{{}, [] {}},
            {u"open"_s, [this] { m_open->click(); }, slideIn},
            {u"pressed"_s,
             [this] {
                 m_open->click();
                 Finger::press(QLrudDialog::Instance()->findChild<QWidget *>(u"LrudArrow_up"_s));
             },
             slideIn}};
}

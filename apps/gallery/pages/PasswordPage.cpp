#include "PasswordPage.h"

#include "../Controls.h"
#include "../Finger.h"
#include "../Look.h"

#include <QPushButton>
#include <QTimer>

#include <input/QvexPasswordPopup.h>

using namespace Qt::Literals::StringLiterals;

PasswordPage::PasswordPage()
    : Page(u"password"_s, tr("QvexPasswordPopup"), tr("Asks once for a burst of operations."))
{
}

QWidget *PasswordPage::recipe(QWidget *parent)
{
    m_open = Look::target(tr("Do it (4711)"), parent);
    auto *popup = QvexPasswordPopup::instance();
    popup->setLocalNormalPassword(u"4711"_s);
    popup->setLocalPasswordLevel(1);
    connect(m_open, &QPushButton::clicked, this, [this, popup] {
        popup->setParentApplication(m_open->window());
        note(u"may go on"_s, popup->testAndRemoveProtectionPopup(false, false));
    });
    connect(popup, &QvexPasswordPopup::disableModProtection, this,
            [this] { note(u"disableModProtection"_s); });
    watch(u"isInHysteresis"_s, [popup] { return popup->isInHysteresis(); });
    return m_open;
}

QWidget *PasswordPage::controls(QWidget *parent)
{
    auto *popup = QvexPasswordPopup::instance();
    auto *controls = new Controls(parent);
    controls->addButton(tr("Remove protection"), [this] { removeProtection(); });
    controls->addButton(tr("Protect again"), [popup] { popup->setLocalPasswordLevel(1); });
    controls->addSwitch(tr("Remote control"), [popup](bool on) { popup->setRcActive(on); });
    return controls;
}

void PasswordPage::removeProtection()
{
    auto *popup = QvexPasswordPopup::instance();
    popup->setParentApplication(m_open->window());
    note(u"may go on"_s, popup->testAndRemoveProtectionPopup(true, false));
}

/// Taps the digits as soon as the popup runs.
void PasswordPage::type(const QString &digits)
{
    QTimer::singleShot(0, this, [digits] {
        const auto *popup = QvexPasswordPopup::instance();
        for (const QChar digit : digits) {
            Finger::tap(popup->findChild<QWidget *>(u"NumpadKey_"_s + digit));
        }
    });
}

QVector<Page::Scene> PasswordPage::scenes()
{
    const auto display = [] {
        QTimer::singleShot(0, QvexPasswordPopup::instance(), [] {
            Finger::tap(QvexPasswordPopup::instance()->findChild<QWidget *>(u"DisplayPassword"_s));
        });
    };
    return {{{}, [] {}},
            {u"entered"_s,
             [this] {
                 type(u"4711"_s);
                 removeProtection();
             }},
            {u"in-clear"_s, [this, display] {
                 type(u"4711"_s);
                 display();
                 removeProtection();
             }}};
}

#include "MessageBoxPage.h"

#include "../Controls.h"
#include "../Look.h"

#include <QMetaEnum>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

MessageBoxPage::MessageBoxPage()
    : Page(u"message-box"_s, tr("QvexMessageBox"), tr("A message or a question with buttons."))
{
}

QWidget *MessageBoxPage::recipe(QWidget *parent)
{
    m_open = Look::target(tr("Ask"), parent);
    connect(m_open, &QPushButton::clicked, this, [this] {
        auto *box = new QvexMessageBox(m_open);
        box->setIcon(m_icon);
        box->setWindowTitle(tr("Results"));
        box->setText(tr("Save the results before the test is closed?"));
        box->setInformativeText(tr("They are lost if they are not saved."));
        box->setDetailedText(tr("Loss map\t12 MiB\nTrace\t3 MiB\nEvent table\t48 KiB"));
        box->setStandardButtons(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
        box->addButton(tr("Don't save"), QDialogButtonBox::DestructiveRole);
        connect(box, &QDialog::finished, box, &QObject::deleteLater);
        connect(box, &QDialog::finished, this, [this](int r) { note(u"finished"_s, r); });
        box->open();
    });
    return m_open;
}

QWidget *MessageBoxPage::controls(QWidget *parent)
{
    auto *controls = new Controls(parent);
    controls->addButton(tr("Information"), [this] { ask(QvexMessageBox::Information); });
    controls->addButton(tr("Warning"), [this] { ask(QvexMessageBox::Warning); });
    controls->addButton(tr("Critical"), [this] { ask(QvexMessageBox::Critical); });
    controls->addButton(tr("Question"), [this] { ask(QvexMessageBox::Question); });
    return controls;
}

void MessageBoxPage::ask(QvexMessageBox::Icon icon)
{
    m_icon = icon;
    m_open->click();
}

QVector<Page::Scene> MessageBoxPage::scenes()
{
    using Icon = QvexMessageBox::Icon;
    QVector<Scene> scenes {{{}, [] {}}};
    const auto names = QMetaEnum::fromType<Icon>();
    for (const Icon icon : {Icon::Information, Icon::Warning, Icon::Critical, Icon::Question}) {
        scenes.append(
            {QString::fromLatin1(names.valueToKey(icon)).toLower(), [this, icon] { ask(icon); }});
    }
    scenes.append({u"details"_s, [this] {
                       ask(Icon::Warning);
                       const QvexDialog *box = QvexDialog::activeDialog();
                       box->findChild<QPushButton *>(u"MsgDetailsButton"_s)->click();
                   }});
    return scenes;
}

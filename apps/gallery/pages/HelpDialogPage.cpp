#include "HelpDialogPage.h"

#include "../Finger.h"
#include "../Look.h"

#include <dialogs/QvextHelpDialog.h>

#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

HelpDialogPage::HelpDialogPage()
    : Page(u"help-dialog"_s, tr("QvextHelpDialog"),
           tr("Shows a help page, with links and a way back."))
{
}

QWidget *HelpDialogPage::recipe(QWidget *parent)
{
    m_open = Look::target(tr("Open the help"), parent);
    connect(m_open, &QPushButton::clicked, this, [this] {
        auto *help = new QvextHelpDialog(u":/gallery/help/index.html"_s);
        help->setParent(m_open);
        connect(help, &QDialog::finished, help, &QObject::deleteLater);
        connect(help, &QDialog::finished, this, [this](int r) { note(u"finished"_s, r); });
        help->open();
    });
    return m_open;
}

QVector<Page::Scene> HelpDialogPage::scenes()
{
    return {{{}, [] {}}, {u"open"_s, [this] { Finger::tap(m_open); }}};
}

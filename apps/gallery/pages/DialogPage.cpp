#include "DialogPage.h"

#include "../Controls.h"
#include "../Finger.h"
#include "../Look.h"

#include <dialogs/QvexDialog.h>

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

// The offset holds for all dialogs to come, so it is taken back in the end.
void move(QvexDialog *dialog, int distance)
{
    for (int moved = 0; moved < qAbs(distance); moved += 10) {
        distance < 0 ? dialog->moveLtDialog() : dialog->moveRtDialog();
    }
}

} // namespace

DialogPage::DialogPage()
    : Page(u"dialog"_s, tr("QvexDialog"),
           tr("The base of all dialogs: its border, the stack of dialogs, the remote lock."))
{
}

QWidget *DialogPage::recipe(QWidget *parent)
{
    m_open = Look::target(tr("Open a dialog"), parent);
    connect(m_open, &QPushButton::clicked, this, [this] {
        auto *dialog = new QvexDialog(m_open, true, m_movable);
        dialog->setWindowTitle(tr("A dialog"));
        dialog->setHelpUrl(u":/gallery/help/index.html"_s); // there is a help button now
        dialog->setAutoClose(m_autoClose); // a tap outside closes
        fill(dialog);
        connect(dialog, &QDialog::finished, dialog, &QObject::deleteLater);
        connect(dialog, &QDialog::finished, this, [this](int r) { note(u"finished"_s, r); });
        dialog->open(); // answers by finished(), at once under the remote lock
    });
    watch(u"isRemoteLocked()"_s, [] { return QvexDialog::isRemoteLocked(); });
    return m_open;
}

void DialogPage::fill(QvexDialog *dialog)
{
    auto *layout = new QVBoxLayout(dialog);
    layout->addWidget(new QLabel(tr("What a dialog holds is laid out as in any other.")));
    auto *controls = new Controls(dialog);
    controls->addButton(tr("One more"), [this] { m_open->click(); });
    controls->addButton(tr("Cancel all"), [] { QvexDialog::cancellAllDialogBoxes(); });
    controls->addButton(tr("Accept"), [dialog] { dialog->accept(); });
    layout->addWidget(controls);
}

QWidget *DialogPage::controls(QWidget *parent)
{
    auto *controls = new Controls(parent);
    controls->addSwitch(tr("Movable"), [this](bool on) { m_movable = on; })->setChecked(true);
    controls->addSwitch(tr("Auto-close"), [this](bool on) { m_autoClose = on; });
    controls->addSwitch(tr("Remote lock"), [](bool on) { QvexDialog::setRemoteLock(on); });
    return controls;
}

void DialogPage::nest()
{
    m_open->click();
    QvexDialog *outer = QvexDialog::activeDialog();
    move(outer, -160);
    connect(outer, &QDialog::finished, outer, [outer] { move(outer, 160); });
    m_movable = false;
    m_open->click();
    m_movable = true;
}

QVector<Page::Scene> DialogPage::scenes()
{
    return {{{}, [] {}}, {u"open"_s, [this] { Finger::tap(m_open); }}, {u"nested"_s, [this] {
                                                                            nest();
                                                                        }}};
}

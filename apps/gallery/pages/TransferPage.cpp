#include "TransferPage.h"

#include "../FileScenes.h"
#include "../Instrument.h"
#include "../Look.h"

#include <files/FwLoadSaveDialog.h>

#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leftList = 0;
constexpr int rightList = 1;

} // namespace

TransferPage::TransferPage()
    : Page(u"transfer"_s, tr("Transfer"),
           tr("FwLoadSaveDialog carries files between the instrument and this computer."))
{
}

QWidget *TransferPage::recipe(QWidget *parent)
{
    m_open = Look::target(tr("Transfer files"), parent);
    connect(m_open, &QPushButton::clicked, this, [this] {
        const auto mode = FwLoadSaveDialog::Mode::Transfer;
        auto *dialog = new FwLoadSaveDialog(mode, Instrument::controller(), m_open);
        dialog->setFolder(FwLoadSaveDialog::Place::Instrument, u"/Internal/Traces"_s);
        dialog->setFolder(FwLoadSaveDialog::Place::Computer, Instrument::localFolder());
        connect(dialog, &QDialog::finished, dialog, &QObject::deleteLater);
        connect(dialog, &QDialog::finished, this, [this](int r) { note(u"finished"_s, r); });
        dialog->open(); // the dialog itself does the work
    });
    return m_open;
}

void TransferPage::upload(const QStringList &names)
{
    m_open->click();
    FileScenes::select(rightList, names);
    FileScenes::tap(0, u"CopyToLeft"_s);
}

QVector<Page::Scene> TransferPage::scenes()
{
    return {{{}, [] {}},
            {u"open"_s,
             [this] {
                 m_open->click();
                 FileScenes::select(leftList, {u"ring-nord-2.trc"_s, u"ring-nord-3.trc"_s});
             },
             900},
            {u"running"_s, [this] { upload({u"ring-nord-survey.trc"_s}); }, 1000},
            {u"conflict"_s,
             [this] {
                 upload({u"ring-nord-10.trc"_s, u"ring-nord-11.trc"_s});
                 FileScenes::tick(u"ConflictForAll"_s);
             },
             900},
            {u"summary"_s,
             [this] {
                 upload({u"Calibration"_s, u"ring-nord-16.trc"_s});
             },
             1600},
            {u"link-lost"_s,
             [this] {
                 m_open->click();
                 FileScenes::select(rightList, {u"ring-nord-9.trc"_s});
                 Instrument::pullPlug();
                 FileScenes::tap(leftList, u"Action_refresh"_s);
             },
             1600}};
}

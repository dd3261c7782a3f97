#include "LoadSavePage.h"

#include "../Controls.h"
#include "../FileScenes.h"
#include "../Instrument.h"
#include "../Look.h"

#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

using Mode = FwLoadSaveDialog::Mode;
using Place = FwLoadSaveDialog::Place;

LoadSavePage::LoadSavePage()
    : Page(u"load-save"_s, tr("FwLoadSaveDialog"),
           tr("Finds a file to load or a name to save under, here or on the instrument."))
{
}

QWidget *LoadSavePage::recipe(QWidget *parent)
{
    m_open = Look::target(tr("Load or save"), parent);
    connect(m_open, &QPushButton::clicked, this, [this] {
        auto *dialog = new FwLoadSaveDialog(m_mode, Instrument::controller(), m_open);
        dialog->setNameFilters({tr("Traces (*.trc)"), tr("All files (*)")});
        dialog->setDefaultSuffix(u"trc"_s);
        const bool isHere = m_place == Place::Computer;
        dialog->setFolder(m_place, isHere ? Instrument::localFolder() : u"/Internal/Traces"_s);
        connect(dialog, &FwLoadSaveDialog::filesChosen, this,
                [this](Place place, const QStringList &paths) {
                    note(u"filesChosen"_s, place, paths);
                });
        connect(dialog, &QDialog::finished, dialog, &QObject::deleteLater);
        dialog->open(); // answers by filesChosen()
    });
    return m_open;
}

QWidget *LoadSavePage::controls(QWidget *parent)
{
    auto *controls = new Controls(parent);
    controls->addButton(tr("Load"), [this] { open(Mode::Load, Place::Computer); });
    controls->addButton(tr("Load from the instrument"),
                        [this] { open(Mode::Load, Place::Instrument); });
    controls->addButton(tr("Save"), [this] { open(Mode::Save, Place::Computer); });
    return controls;
}

void LoadSavePage::open(Mode mode, Place place)
{
    m_mode = mode;
    m_place = place;
    m_open->click();
}

QVector<Page::Scene> LoadSavePage::scenes()
{
    return {{{}, [] {}},
            {u"load"_s,
             [this] {
                 open(Mode::Load, Place::Computer);
                 FileScenes::select(0, {u"ring-nord-10.trc"_s});
             },
             800},
            {u"load-instrument"_s, [this] { open(Mode::Load, Place::Instrument); }, 800},
            {u"save"_s,
             [this] {
                 open(Mode::Save, Place::Computer);
                 FileScenes::dialog()->setFileName(u"ring-nord-18"_s);
             },
             800},
            {u"save-refused"_s,
             [this] {
                 open(Mode::Save, Place::Computer);
                 FileScenes::dialog()->setFileName(u"ring/nord"_s);
             },
             800},
            {u"delete"_s,
             [this] {
                 open(Mode::Load, Place::Instrument);
                 FileScenes::select(0, {u"Calibration"_s});
                 FileScenes::tap(0, u"Action_delete"_s);
             },
             800}};
}

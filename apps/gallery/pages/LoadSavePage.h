#pragma once

#include "../Page.h"

#include <files/FwLoadSaveDialog.h>

class QPushButton;

class LoadSavePage : public Page
{
    Q_OBJECT

public:
    LoadSavePage();

    QWidget *recipe(QWidget *parent) override;
    QWidget *controls(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    void open(FwLoadSaveDialog::Mode mode, FwLoadSaveDialog::Place place);

    QPushButton *m_open = nullptr;
    FwLoadSaveDialog::Mode m_mode = FwLoadSaveDialog::Mode::Load;
    FwLoadSaveDialog::Place m_place = FwLoadSaveDialog::Place::Computer;
};

#pragma once

#include "../Page.h"

class AppMissionControlWidget;

class MissionControlPage : public Page
{
    Q_OBJECT

public:
    MissionControlPage();

    QWidget *recipe(QWidget *parent) override;
    QWidget *controls(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    void noteSignals();

    AppMissionControlWidget *m_panel = nullptr;
};

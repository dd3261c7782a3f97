#pragma once

#include "../Page.h"

class AppMiniMissionControlWidget;

class MiniMissionControlPage : public Page
{
    Q_OBJECT

public:
    MiniMissionControlPage();

    QWidget *recipe(QWidget *parent) override;
    QWidget *controls(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    AppMiniMissionControlWidget *m_panels = nullptr;
    QWidget *m_marker = nullptr;
    QWidget *m_laser = nullptr;
};

#pragma once

#include "../Page.h"

class AppCustomWidget;
class AppHelpWidget;

class SidePanelsPage : public Page
{
    Q_OBJECT

public:
    SidePanelsPage();

    QWidget *recipe(QWidget *parent) override;
    QWidget *controls(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    AppCustomWidget *m_custom = nullptr;
    AppHelpWidget *m_help = nullptr;
};

#pragma once

#include "../Page.h"

class FwButtonTabWidget;

class ButtonTabsPage : public Page
{
    Q_OBJECT

public:
    ButtonTabsPage();

    QWidget *recipe(QWidget *parent) override;
    QWidget *controls(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    void addMany();

    FwButtonTabWidget *m_tabs = nullptr;
};

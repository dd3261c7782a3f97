#pragma once

#include "../Page.h"

class QPushButton;

class HelpDialogPage : public Page
{
    Q_OBJECT

public:
    HelpDialogPage();

    QWidget *recipe(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    QPushButton *m_open = nullptr;
};

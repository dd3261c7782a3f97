#pragma once

#include "../Page.h"

class QPushButton;

class StylesPage : public Page
{
    Q_OBJECT

public:
    StylesPage();

    QWidget *recipe(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    QPushButton *m_menuButton = nullptr;
};

#pragma once

#include "../Page.h"

class DoubleClickButton;

class DoubleClickPage : public Page
{
    Q_OBJECT

public:
    DoubleClickPage();

    QWidget *recipe(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    DoubleClickButton *m_button = nullptr;
};

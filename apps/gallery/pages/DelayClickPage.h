#pragma once

#include "../Page.h"

class DelayClickButton;

class DelayClickPage : public Page
{
    Q_OBJECT

public:
    DelayClickPage();

    QWidget *recipe(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    DelayClickButton *m_button = nullptr;
};

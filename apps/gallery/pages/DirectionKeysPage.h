#pragma once

#include "../Page.h"

class QPushButton;

class DirectionKeysPage : public Page
{
    Q_OBJECT

public:
    DirectionKeysPage();

    QWidget *recipe(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    QPushButton *m_open = nullptr;
};

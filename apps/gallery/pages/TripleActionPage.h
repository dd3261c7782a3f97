#pragma once

#include "../Page.h"

class TripleActionButton;

class TripleActionPage : public Page
{
    Q_OBJECT

public:
    TripleActionPage();

    QWidget *recipe(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    TripleActionButton *m_button = nullptr;
};

#pragma once

#include "../Page.h"

class SlidingStackedWidget;

class SlidingStackPage : public Page
{
    Q_OBJECT

public:
    SlidingStackPage();

    QWidget *recipe(QWidget *parent) override;
    QWidget *controls(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    SlidingStackedWidget *m_stack = nullptr;
};

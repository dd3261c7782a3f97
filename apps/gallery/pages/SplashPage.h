#pragma once

#include "../Page.h"

class SplashLines;

class SplashPage : public Page
{
    Q_OBJECT

public:
    SplashPage();

    QWidget *recipe(QWidget *parent) override;
    QWidget *controls(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    SplashLines *m_lines = nullptr;
};

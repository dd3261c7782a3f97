#pragma once

#include <QTemporaryDir>

#include <frame/FwLogView.h>

#include "../Page.h"

class LogPage : public Page
{
    Q_OBJECT

public:
    LogPage();
    ~LogPage() override;

    QWidget *recipe(QWidget *parent) override;
    QWidget *controls(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    void startTest();

    QTemporaryDir m_directory;
    FwLogView *m_view = nullptr;
    int m_tests = 0;
};

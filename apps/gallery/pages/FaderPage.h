#pragma once

#include <QPointer>

#include "../Page.h"

class FaderWidget;

class FaderPage : public Page
{
    Q_OBJECT

public:
    FaderPage();

    QWidget *recipe(QWidget *parent) override;
    QWidget *controls(QWidget *parent) override;
    QVector<Scene> scenes() override;

Q_SIGNALS:
    void fadeAsked(bool in);

private:
    int m_duration = 333;
    QPointer<FaderWidget> m_fader;
};

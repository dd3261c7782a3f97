#pragma once

#include <dialogs/QvexMessageBox.h>

#include "../Page.h"

class QPushButton;

class MessageBoxPage : public Page
{
    Q_OBJECT

public:
    MessageBoxPage();

    QWidget *recipe(QWidget *parent) override;
    QWidget *controls(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    void ask(QvexMessageBox::Icon icon);

    QPushButton *m_open = nullptr;
    QvexMessageBox::Icon m_icon = QvexMessageBox::Question;
};

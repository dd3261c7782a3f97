#pragma once

#include "../Page.h"

class QPushButton;
class QvexDialog;

class DialogPage : public Page
{
    Q_OBJECT

public:
    DialogPage();

    QWidget *recipe(QWidget *parent) override;
    QWidget *controls(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    void fill(QvexDialog *dialog);
    void nest();

    QPushButton *m_open = nullptr;
    bool m_movable = true;
    bool m_autoClose = false;
};

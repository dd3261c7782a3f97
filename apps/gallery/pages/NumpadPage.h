#pragma once

#include "../Page.h"

#include <input/QvexNumpadDlg.h>

class QPushButton;

class NumpadPage : public Page
{
    Q_OBJECT

public:
    NumpadPage();

    QWidget *recipe(QWidget *parent) override;
    QWidget *controls(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    void openRadix(QvexNumpadDlg::Inp_Type type);
    void type(const QString &keys);

    QPushButton *m_field = nullptr;
    QvexNumpadDlg *m_numpad = nullptr;
};

#pragma once

#include "../Page.h"

class QPushButton;

class PasswordPage : public Page
{
    Q_OBJECT

public:
    PasswordPage();

    QWidget *recipe(QWidget *parent) override;
    QWidget *controls(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    void removeProtection();
    void type(const QString &digits);

    QPushButton *m_open = nullptr;
};

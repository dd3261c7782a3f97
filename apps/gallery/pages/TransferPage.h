#pragma once

#include "../Page.h"

class QPushButton;

class TransferPage : public Page
{
    Q_OBJECT

public:
    TransferPage();

    QWidget *recipe(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    void upload(const QStringList &names);

    QPushButton *m_open = nullptr;
};

#pragma once

#include "../Page.h"

class FileTreesPage : public Page
{
    Q_OBJECT

public:
    FileTreesPage();

    QWidget *recipe(QWidget *parent) override;
    QVector<Scene> scenes() override;
};

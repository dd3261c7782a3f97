#pragma once

#include <properties/PropertiesListener.h>

#include <QTemporaryDir>

#include "../Page.h"

class PropertiesPage : public Page, public PropertiesListener
{
    Q_OBJECT

public:
    PropertiesPage();
    ~PropertiesPage() override;

    QWidget *recipe(QWidget *parent) override;
    QWidget *controls(QWidget *parent) override;
    QVector<Scene> scenes() override;

    void PropertyChanged(long id) override;
    void PropertyGroupChanged(long group) override;

private:
    void step(int by);

    QTemporaryDir m_directory;
    const QString m_path;
};

#pragma once

#include "../Page.h"

class QFormLayout;
class QLineEditNumber;

class NumberFieldsPage : public Page
{
    Q_OBJECT

public:
    NumberFieldsPage();

    QWidget *recipe(QWidget *parent) override;
    QVector<Scene> scenes() override;

private:
    static void addField(QFormLayout *form, const QString &label, QWidget *field);
    template<typename Field>
    void addRadix(QFormLayout *form, const QString &label);

    QLineEditNumber *m_level = nullptr;
};

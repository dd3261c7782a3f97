#pragma once

#include <QPalette>
#include <QPointer>

#include "../Page.h"

class ThemesPage : public Page
{
    Q_OBJECT

public:
    ThemesPage();

    QWidget *recipe(QWidget *parent) override;
    QWidget *controls(QWidget *parent) override;
    QVector<Scene> scenes() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void choose(const QStringList &colors);
    void ask();

    QPointer<QWidget> m_sampler;
    QPalette m_before; ///< of the other pages
    bool m_isChosen = false;
};

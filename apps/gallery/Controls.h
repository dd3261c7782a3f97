#pragma once

#include <QWidget>

#include <functional>

class QPushButton;

/// A row of buttons, large enough for a finger, to play with a page's widget.
class Controls : public QWidget
{
    Q_OBJECT

public:
    explicit Controls(QWidget *parent);

    QPushButton *addButton(const QString &text, const std::function<void()> &action);
    /// A button that stays down; @p action gets whether it is.
    QPushButton *addSwitch(const QString &text, const std::function<void(bool)> &action);
    /// A button that goes from one of @p values to the next and shows where it is.
    QPushButton *addChoice(const QString &text, const QVector<int> &values,
                           const std::function<void(int)> &action);
};

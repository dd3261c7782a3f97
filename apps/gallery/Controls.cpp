#include "Controls.h"

#include "Look.h"

#include <QHBoxLayout>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

Controls::Controls(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
}

QPushButton *Controls::addButton(const QString &text, const std::function<void()> &action)
{
    auto *button = new QPushButton(text);
    button->setMinimumHeight(Look::fingerSize);
    connect(button, &QPushButton::clicked, this, action);
    layout()->addWidget(button);
    return button;
}

QPushButton *Controls::addSwitch(const QString &text, const std::function<void(bool)> &action)
{
    QPushButton *button = addButton(text, [] {});
    button->setCheckable(true);
    button->setStyleSheet(Look::switchSheet);
    connect(button, &QPushButton::toggled, this, action);
    return button;
}

QPushButton *Controls::addChoice(const QString &text, const QVector<int> &values,
                                 const std::function<void(int)> &action)
{
    const auto show = [text, values](QPushButton *button, qsizetype index) {
        button->setProperty("index", index);
        button->setText(text.arg(values[index]));
    };
    QPushButton *button = addButton({}, [] {});
    show(button, 0);
    connect(button, &QPushButton::clicked, this, [button, values, show, action] {
        const auto next = (button->property("index").toLongLong() + 1) % values.size();
        show(button, next);
        action(values[next]);
    });
    return button;
}

#include "Look.h"

#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

const QString Look::plateSheet =
    u"QPushButton { background: #2b4257; color: white; border: 1px solid #8ea4b8; "
    "border-radius: 8px; font-size: 20px; } QPushButton:pressed { background: #3d6a99; }"
    "QPushButton:focus { border: 2px solid #f5b21a; }"_s;

const QString Look::switchSheet =
    u"QPushButton { background: white; color: black; border: 1px solid #6b7f92; border-radius: "
    u"4px; "
    "padding: 0 10px; } QPushButton:checked { background: #2b4257; color: white; }"
    "QPushButton:focus { border: 2px solid #1f66a8; }"_s;

QPushButton *Look::target(const QString &text, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setStyleSheet(plateSheet);
    button->setFixedSize(280, 80);
    return button;
}

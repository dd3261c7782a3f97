#include "Look.h"

#include <QLabel>
#include <QPushButton>

#include <frame/ColorTheme.h>
#include <frame/ElidedButtonStyle.h>

QPushButton *Look::button(const QString &objectName, QWidget *parent)
{
    // One style for all buttons: a translation that is too long ends in an ellipsis.
    static auto *style = new ElidedButtonStyle;
    auto *button = new QPushButton(parent);
    button->setObjectName(objectName);
    button->setStyle(style);
    button->setMinimumSize(112, fingerSize);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QPushButton *Look::mainButton(const QString &objectName, QWidget *parent)
{
    QPushButton *main = button(objectName, parent);
    main->setMinimumSize(200, 60);
    main->setFont(scaled(main->font(), 1.3, true));
    return main;
}

QLabel *Look::heading(QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setFont(scaled(label->font(), 1.2, true));
    label->setMinimumHeight(32);
    return label;
}

QFont Look::scaled(const QFont &font, double factor, bool isBold)
{
    QFont scaled = font;
    scaled.setPointSizeF(font.pointSizeF() * factor);
    scaled.setBold(isBold);
    return scaled;
}

QColor Look::inkOn(const QColor &ground)
{
    const bool isBlackBetter =
        ColorTheme::contrast(Qt::black, ground) > ColorTheme::contrast(Qt::white, ground);
    return isBlackBetter ? Qt::black : Qt::white;
}

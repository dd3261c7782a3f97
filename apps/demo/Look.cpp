#include "Look.h"

#include <QLabel>
#include <QPushButton>

#include <frame/ColorTheme.h>
#include <frame/ElidedButtonStyle.h>

using namespace Qt::StringLiterals;

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

QString Look::sheet()
{
    const ColorTheme &theme = ColorTheme::current();
    const auto name = [&theme](QAnyStringView colour) { return theme.color(colour).name(); };
    return u"QPushButton { padding: 0 12px; color: %1; background-color: %2;"
           " border: 1px solid %3; border-radius: 6px; }"
           "QPushButton:focus { border: 3px solid %4; }"
           "QPushButton:pressed { color: %5; background-color: %4; }"
           "QPushButton:disabled { color: %6; background-color: transparent;"
           " border: 1px dashed %6; }"
           "QLineEdit { padding: 0 8px; border: 1px solid %3; border-radius: 6px; }"
           "QLineEdit:focus { border: 2px solid %4; padding: 0 7px; }"
           "QLineEdit:disabled { color: %6; border: 1px dashed %6; }"
           "QListWidget::item, QTableWidget::item { padding-left: 8px; }"
           "QProgressBar { border: 1px solid %3; border-radius: 4px; }"
           "QProgressBar::chunk { background-color: %7; border-radius: 3px; }"_s.arg(
               name("buttonText"), name("button"), name("border"), name("highlight"),
               name("highlightedText"), name("disabledText"), name("progress"));
}

QColor Look::inkOn(const QColor &ground)
{
    const bool isBlackBetter =
        ColorTheme::contrast(Qt::black, ground) > ColorTheme::contrast(Qt::white, ground);
    return isBlackBetter ? Qt::black : Qt::white;
}

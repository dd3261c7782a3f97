#include "DialogTheme.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QHash>

#include <cmath>

using namespace Qt::StringLiterals;

namespace DialogTheme {

QColor mixed(const QColor &first, const QColor &second, double share)
{
    const auto mix = [share](int a, int b) { return qRound(a * share + b * (1 - share)); };
    return QColor(mix(first.red(), second.red()), mix(first.green(), second.green()),
                  mix(first.blue(), second.blue()));
}

QColor outline(const QPalette &palette)
{
    return mixed(palette.color(QPalette::Active, QPalette::WindowText),
                 palette.color(QPalette::Active, QPalette::Window), 0.5);
}

QColor inkOn(const QColor &ground)
{
    const auto linear = [](double part) { return std::pow(part, 2.2); };
    const double luminance = 0.2126 * linear(ground.redF()) + 0.7152 * linear(ground.greenF())
        + 0.0722 * linear(ground.blueF());
    // Where both have the same contrast, by the formula of WCAG 2.
    return luminance > 0.18 ? Qt::black : Qt::white;
}

QString borderStyle(const QPalette &palette)
{
    // The title's green is legible on a light ground only, whatever the application's colours are.
    return u"QFrame#DlgBackFrame { background-color: palette(window);"
           " border: 1px solid %1; border-radius: %2px; }"
           "QFrame#DlgHeader { background-color: #fafafa; border-bottom: 1px solid %1;"
           " border-top-left-radius: %3px; border-top-right-radius: %3px; }"
           "QToolButton { background: transparent; border: none; border-radius: %2px; }"
           "QToolButton:pressed { background-color: palette(highlight); }"_s
               .arg(outline(palette).name())
               .arg(panelRadius)
               .arg(panelRadius - 1);
}

QString buttonStyle(const QPalette &palette)
{
    const QColor text = palette.color(QPalette::ButtonText);
    const QColor ground = palette.color(QPalette::Button);
    const QColor disabled =
        mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.6);
    return u"QPushButton { min-width: %1px; min-height: %2px; padding: 0 12px; font-size: %3px;"
           " color: %4; background-color: %5; border: 1px solid %6; border-radius: 6px; }"
           "QPushButton:default { font-weight: bold; }"
           "QPushButton:focus { border: 3px solid palette(highlight); outline: none; }"
           "QPushButton:pressed { color: %8; background-color: palette(highlight); }"
           "QPushButton:disabled { color: %7; background-color: transparent;"
           " border: 1px dashed %7; }"_s.arg(buttonWidth - 24)
               .arg(touchTarget)
               .arg(fontSize)
               .arg(text.name(), ground.name(), outline(palette).name(), disabled.name(),
                    inkOn(palette.color(QPalette::Highlight)).name());
}

QIcon icon(const QString &file)
{
    static QHash<QString, QIcon> icons;
    if (icons.isEmpty()) {
        // Pixmaps must not outlive the application.
        qAddPostRoutine([] { icons.clear(); });
    }
    if (!icons.contains(file)) {
        icons.insert(file, QIcon(file));
    }
    return icons.value(file);
}

void setText(QAbstractButton *button, const QString &text)
{
    button->setText(u' ' + text);
    button->setAccessibleName(text);
}

void apply(QWidget *widget, QString (*style)(const QPalette &))
{
    const QString sheet = style(widget->palette());
    if (sheet != widget->styleSheet()) {
        widget->setStyleSheet(sheet);
    }
}

} // namespace DialogTheme

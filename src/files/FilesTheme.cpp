#include "FilesTheme.h"

#include <QToolButton>

#include "dialogs/DialogTheme.h"

using namespace Qt::Literals::StringLiterals;

namespace FilesTheme {

QString style(const QPalette &palette)
{
    const QString outline = DialogTheme::outline(palette).name();
    const QString faint = DialogTheme::mixed(palette.color(QPalette::WindowText),
                                             palette.color(QPalette::Window), 0.6)
                              .name();
    const QString onHighlight = DialogTheme::inkOn(palette.color(QPalette::Highlight)).name();
    return u"QToolButton { border: 2px solid transparent; border-radius: 6px; font-size: 16px;"
           " color: palette(window-text); background: transparent; padding: 0 6px; }"
           "QToolButton:focus { border-color: palette(highlight); }"
           "QToolButton:pressed, QToolButton:checked { color: %3;"
           " background-color: palette(highlight); }"
           "QToolButton:disabled { color: %2; }"
           "QLineEdit, QComboBox { min-height: 44px; font-size: 16px; padding: 0 10px;"
           " color: palette(text); background-color: palette(base);"
           " border: 1px solid %1; border-radius: 6px; }"
           "QLineEdit:focus, QComboBox:focus { border: 2px solid palette(highlight); }"
           "QComboBox::drop-down { width: 40px; border: none; }"
           "QComboBox::down-arrow { image: url(:/images/chevron_down.png);"
           " width: 24px; height: 24px; }"
           "QComboBox QAbstractItemView { font-size: 16px; border: 1px solid %1; }"
           "QComboBox QAbstractItemView::item { min-height: 48px; padding: 0 10px; }"
           "QToolButton[place=\"true\"] { border: 1px solid %1; }"
           "QTreeView { font-size: 16px; border: 1px solid %1; border-radius: 6px;"
           " color: palette(text); background-color: palette(base); }"
           "QTreeView QLineEdit { min-height: 40px; padding: 0 6px; }"
           "QHeaderView { background-color: palette(button); border: none; }"
           "QHeaderView::section { height: 46px; padding: 0 8px; font-size: 15px; border: none;"
           " border-bottom: 1px solid %1; color: palette(button-text);"
           " background-color: palette(button); }"
           "QProgressBar { min-height: 24px; border: 1px solid %1; border-radius: 6px;"
           " background-color: palette(base); }"
           "QProgressBar::chunk { background-color: palette(highlight); border-radius: 5px; }"
           "QLabel { font-size: 16px; }"
           "QFrame#FilePaneFrame[active=\"true\"] { border: 2px solid palette(highlight);"
           " border-radius: 8px; }"
           "QFrame#FilePaneFrame[active=\"false\"] { border: 2px solid transparent; }"_s.arg(
               outline, faint, onHighlight);
}

QColor errorInk(const QPalette &palette)
{
    const bool isLight = DialogTheme::inkOn(palette.color(QPalette::Window)) == Qt::black;
    return isLight ? QColor(0xb0, 0x10, 0x20) : QColor(0xff, 0x9a, 0x9a);
}

QIcon icon(const QString &name)
{
    return DialogTheme::icon(u":/images/%1.png"_s.arg(name));
}

QToolButton *toolButton(const QString &objectName, const QString &iconName, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(objectName);
    button->setIcon(icon(iconName));
    button->setIconSize({DialogTheme::touchTarget, DialogTheme::touchTarget});
    button->setFixedSize(DialogTheme::touchTarget + 4, DialogTheme::touchTarget + 4);
    button->setStyleSheet(u"padding: 0;"_s);
    return button;
}

void setName(QToolButton *button, const QString &name)
{
    button->setAccessibleName(name);
    button->setToolTip(name);
}

} // namespace FilesTheme

#include "NumpadStyle.h"

#include <dialogs/DialogTheme.h>

using namespace Qt::StringLiterals;
using Verdict = NumericField::Verdict;

namespace NumpadStyle {

namespace {

struct Colours
{
    QString ground;
    QString ink;
    QString line;
};

/// Ink and line have a contrast of 4.5:1 and more on the ground, whatever the palette is.
Colours coloursOf(Verdict::State state)
{
    return state == Verdict::Refused ? Colours {u"#ffe0dd"_s, u"#7a0010"_s, u"#b3261e"_s}
                                     : Colours {u"#fff0c4"_s, u"#4a3200"_s, u"#8a5a00"_s};
}

} // namespace

QString panel(const QPalette &palette)
{
    const QColor window = palette.color(QPalette::Window);
    const QColor button = palette.color(QPalette::Button);
    const QColor ink = palette.color(QPalette::ButtonText);
    const QString outline = DialogTheme::outline(palette).name();
    const QString disabled =
        DialogTheme::mixed(palette.color(QPalette::WindowText), window, 0.6).name();
    const QString marked =
        DialogTheme::mixed(palette.color(QPalette::Highlight), button, 0.2).name();
    const QString highlightInk = DialogTheme::inkOn(palette.color(QPalette::Highlight)).name();
    return u"QLabel, QCheckBox { font-size: %1px; }"
           "QPushButton { outline: none; font-size: 18px; padding: 0 4px; color: %2; "
           "background-color: %3;"
           " border: 1px solid %4; border-radius: 6px; }"
           "QPushButton[objectName^=\"NumpadKey_\"] { font-size: 22px; }"
           "QPushButton[isUnit=\"true\"] { background-color: %5; font-weight: bold; }"
           "QPushButton#NumpadKey_Minimum, QPushButton#NumpadKey_Maximum,"
           "QPushButton#NumpadKey_Default, QPushButton#NumpadKey_Clear { font-size: 16px; }"
           "QPushButton#NumpadOk { color: %6; background-color: palette(highlight);"
           " font-weight: bold; }"
           "QPushButton:focus { border: 3px solid palette(highlight); }"
           "QPushButton#NumpadOk:focus { border: 3px solid %2; }"
           "QPushButton:pressed { color: %6; background-color: palette(highlight); }"
           "QPushButton#NumpadOk:pressed { color: %2; background-color: %3; }"
           "QPushButton:disabled, QPushButton#NumpadOk:disabled { color: %7;"
           " background-color: transparent; border: 1px dashed %7; font-weight: normal; }"_s
               .arg(DialogTheme::fontSize)
               .arg(ink.name(), button.name(), outline, marked, highlightInk, disabled);
}

QString entry(const QPalette &palette, Verdict::State state, int fontSize)
{
    const QString look = u"QLineEdit { min-height: 52px; padding: 0 8px; margin: 1px;"
                         " border-radius: 6px; font-size: %1px; color: %2;"
                         " background-color: %3; border: 2px solid %4; }"
                         "QLineEdit:focus { margin: 0; border: 3px solid %5; }"_s.arg(fontSize);
    if (state == Verdict::Valid) {
        return look.arg(palette.color(QPalette::Text).name(), palette.color(QPalette::Base).name(),
                        DialogTheme::outline(palette).name(),
                        palette.color(QPalette::Highlight).name());
    }
    const Colours colours = coloursOf(state);
    return look.arg(colours.ink, colours.ground, colours.line, colours.line);
}

QString mark(Verdict::State state)
{
    if (state == Verdict::Valid) {
        return {};
    }
    return u"QLabel { color: white; background-color: %1; border-radius: 12px;"
           " font-size: 16px; font-weight: bold; }"_s.arg(coloursOf(state).line);
}

} // namespace NumpadStyle

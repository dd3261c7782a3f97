#include "DialogTheme.h"

using namespace Qt::StringLiterals;

namespace DialogTheme {

QString borderStyle()
{
    // The title's green is legible on a light ground only, whatever the application's colours are.
    return u"QFrame#DlgBackFrame { background-color: palette(window);"
           " border: 1px solid palette(shadow); border-radius: %1px; }"
           "QFrame#DlgHeader { background-color: #fafafa; border: none;"
           " border-bottom: 1px solid palette(shadow);"
           " border-top-left-radius: %2px; border-top-right-radius: %2px; }"
           "QToolButton { background-color: #fafafa; border: none; border-radius: %2px; }"
           "QToolButton:pressed { background-color: #b8c8d8; }"
           "QToolButton[objectName^=\"DlgMoveBar\"] { border: 1px solid palette(shadow); }"_s
               .arg(panelRadius)
               .arg(panelRadius - 1);
}

} // namespace DialogTheme

#pragma once

#include <QPointer>

#include "DigitCursor.h"
#include "KeyTimers.h"
#include "QLineEditNumber.h"
#include "QLrudDialog.h"
#include "QvexNumpadDlg.h"

struct QLineEditNumber::Private
{
    explicit Private(QLineEditNumber *field)
        : numpad(std::make_unique<QvexNumpadDlg>(field, QvexNumpadDlg::Decimal, "numpad"))
        , keys(field)
    {
    }

    std::unique_ptr<QvexNumpadDlg> numpad; ///< holds the number
    KeyTimers keys;
    QPointer<QLrudDialog> lrud; ///< while the wheel editor is open
    QMetaObject::Connection keypad;
    QString text; ///< the number last shown, without leading zeros
    QString title;
    DigitCursor cursor;
    int lastDirection = 0; ///< in which the wheel was turned without any effect
    int wheelAngle = 0; ///< of an ordinary wheel, not yet a whole step
    bool selectionEnabled = false; ///< the wheel editor is open
    bool valueMode = true; ///< a wheel changes the value by itself, not the selected digit
    bool updateTextFromClient = true;
    bool isSelecting = false; ///< the field itself changes its selection
    bool isPressed = false;

    /// The one field that has the wheel editor.
    static inline QPointer<QLineEditNumber> edited;
};

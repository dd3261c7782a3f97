// How a number is edited: by its numpad, or digit by digit.

#include <QApplication>
#include <QKeyEvent>
#include <QWheelEvent>

#include <algorithm>

#include "dialogs/DialogGuard.h"
#include "properties/PropertiesManager.h"

#include "DecimalNumber.h"
#include "NumericField.h"
#include "QLineEditNumber_p.h"
#include "VexHID.h"

using namespace Qt::StringLiterals;

namespace {

/// The property that says whether a tap opens the numpad ("1") or the wheel editor ("0").
constexpr long LastEditorProperty = 103;
constexpr int AnglePerStep = 8 * 15;

enum ModeOverride { AsChosen = -1, ChangeValue = 0, MoveCursor = 1 };

bool isLeftButtonHeld()
{
    return QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
}

} // namespace

bool QLineEditNumber::m_lastShownIsNumpad = false;

/// Once, for the first field of the application.
void QLineEditNumber::readLastEditor()
{
    static bool isRead = false;
    if (!isRead) {
        isRead = true;
        const QString text = PropertiesManager::instance()->getProperty(LastEditorProperty);
        m_lastShownIsNumpad = text.toLong() != 0;
    }
}

void QLineEditNumber::rememberEditor(bool isNumpad)
{
    m_lastShownIsNumpad = isNumpad;
    PropertiesManager::instance()->setProperty(LastEditorProperty, isNumpad ? u"1"_s : u"0"_s,
                                               false);
}

void QLineEditNumber::connectOwnSignals()
{
    using Field = QLineEditNumber;
    connect(d->numpad.get(), &QvexNumpadDlg::showEditControllerClicked, this,
            &Field::on_showEditController);
    connect(this, &Field::selectionChanged, this, &Field::on_selection);
    connect(this, qOverload<int, int>(&Field::advanceWheel), this, &Field::turn);
    connect(this, qOverload<int>(&Field::advanceWheel), this,
            [this](int numSteps) { Q_EMIT advanceWheel(numSteps, AsChosen); });
    connect(this, &Field::modeChanged, this, [this] { d->valueMode = !d->valueMode; });
    connect(&d->keys, &KeyTimers::upRepeats, this, &Field::on_autoRepeatUp);
    connect(&d->keys, &KeyTimers::downRepeats, this, &Field::on_autoRepeatDown);
    connect(&d->keys, &KeyTimers::releasePolled, this, &Field::on_release);
}

void QLineEditNumber::mousePressEvent(QMouseEvent *event)
{
    d->isPressed = event->button() == Qt::LeftButton;
    QLineEdit::mousePressEvent(event);
}

/// The second of two quick taps, which is a tap like the first.
void QLineEditNumber::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

void QLineEditNumber::mouseReleaseEvent(QMouseEvent *event)
{
    d->isPressed = false;
    const bool isTap = !event
        || (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()));
    const bool isNumpadWanted = m_lastShownIsNumpad;
    const QPointer<QLineEditNumber> guard(this);
    if (isTap && isNumpadWanted) {
        runNumpad();
    }
    if (guard && event) {
        QLineEdit::mouseReleaseEvent(event);
    }
    if (guard && isTap && !isNumpadWanted) {
        openWheelEditor();
    }
}

/// A wheel belongs to the page behind, unless the number is being edited by it.
void QLineEditNumber::wheelEvent(QWheelEvent *event)
{
    event->setAccepted(d->selectionEnabled);
    if (d->selectionEnabled) {
        d->wheelAngle += event->angleDelta().y();
        const int numSteps = d->wheelAngle / AnglePerStep;
        d->wheelAngle %= AnglePerStep;
        if (numSteps != 0) {
            Q_EMIT advanceWheel(numSteps);
        }
    }
}

void QLineEditNumber::keyPressEvent(QKeyEvent *event)
{
    static const QHash<int, QPair<int, int>> turns {
        {Qt::Key_Up, {1, ChangeValue}},
        {Qt::Key_Down, {-1, ChangeValue}},
        {Qt::Key_Left, {-1, MoveCursor}},
        {Qt::Key_Right, {1, MoveCursor}},
    };
    const int key = event->key();
    if (d->selectionEnabled && turns.contains(key)) {
        Q_EMIT advanceWheel(turns[key].first, turns[key].second);
    } else if (d->selectionEnabled
               && (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter)) {
        closeWheelEditor();
    } else if (key == Qt::Key_Space || key == Qt::Key_Select) {
        mouseReleaseEvent(nullptr);
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void QLineEditNumber::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    Q_EMIT focusEvent(true);
}

void QLineEditNumber::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    Q_EMIT focusEvent(false);
}

void QLineEditNumber::hideEvent(QHideEvent *event)
{
    QLineEdit::hideEvent(event);
    if (!event->spontaneous()) {
        closeWheelEditor();
    }
}

void QLineEditNumber::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        closeWheelEditor();
    }
}

void QLineEditNumber::runNumpad()
{
    const QPointer<QLineEditNumber> guard(this);
    d->numpad->setText(removeThousandSeparator(text()));
    if (d->numpad->exec() == QDialog::Accepted && guard) {
        _setText(true);
    }
}

/// Opens it at the text cursor; where it is open already it only selects the digit there.
void QLineEditNumber::openWheelEditor()
{
    if (QvexDialog::isRemoteLocked()) {
        return; // as for the numpad
    }
    d->lastDirection = 0;
    d->cursor.place(text(), cursorPosition());
    if (!d->selectionEnabled) {
        takeKeys();
        connectKeys();
    }
    showNumber();
    d->lrud->show();
}

/// From the field that has them.
void QLineEditNumber::takeKeys()
{
    if (Private::edited && Private::edited->window() != window()) {
        Private::edited->closeWheelEditor();
    } else if (Private::edited) {
        Private::edited->on_hidden();
    }
    Private::edited = this;
    d->lrud = QLrudDialog::Instance();
    // The keys come up in the window that has the focus.
    if (!hasFocus()) {
        setFocus(Qt::OtherFocusReason);
    }
}

void QLineEditNumber::closeWheelEditor()
{
    const QPointer<QLineEditNumber> guard(this);
    if (d->selectionEnabled && d->lrud) {
        d->lrud->hide();
    }
    if (guard) {
        on_hidden();
    }
}

void QLineEditNumber::connectKeys()
{
    using Field = QLineEditNumber;
    using Lrud = QLrudDialog;
    d->selectionEnabled = true;
    d->wheelAngle = 0;
    const auto advance = qOverload<int, int>(&Field::advanceWheel);
    connect(d->lrud, &Lrud::advanceWheel, this, advance);
    connect(d->lrud, &Lrud::modeChanged, this, &Field::modeChanged);
    connect(d->lrud, &Lrud::pressedUp, this, &Field::on_up);
    connect(d->lrud, &Lrud::releasedUp, this, &Field::on_upReleased);
    connect(d->lrud, &Lrud::pressedDown, this, &Field::on_down);
    connect(d->lrud, &Lrud::releasedDown, this, &Field::on_downReleased);
    connect(d->lrud, &Lrud::pressedLeft, this, &Field::on_left);
    connect(d->lrud, &Lrud::pressedRight, this, &Field::on_right);
    connect(d->lrud, &Lrud::clickedShowNumpad, this, &Field::on_showNumpad);
    connect(d->lrud, &Lrud::hidden, this, &Field::on_hidden);
    connect(d->lrud, &QObject::destroyed, this, &Field::on_hidden);
    // What is on its way from the keypad's thread arrives even after the connection was cut. A
    // wheel of hardware reaches what is behind a dialog no more than a finger does.
    d->keypad = connect(VexHID::Instance(), &VexHID::AdvanceWheel, this,
                        [this](int numSteps, int modeOverride) {
                            if (d->selectionEnabled && DialogGuard::instance().isOpenTo(this)) {
                                Q_EMIT advanceWheel(numSteps, modeOverride);
                            }
                        });
}

void QLineEditNumber::disconnectKeys()
{
    if (d->lrud) {
        d->lrud->disconnect(this);
    }
    disconnect(d->keypad);
    d->keys.releaseAll();
    d->selectionEnabled = false;
    Private::edited = nullptr;
}

void QLineEditNumber::on_hidden()
{
    if (d->selectionEnabled) {
        disconnectKeys();
        showNumber();
    }
}

void QLineEditNumber::on_showNumpad()
{
    const QPointer<QLineEditNumber> guard(this);
    rememberEditor(true);
    closeWheelEditor();
    if (guard) {
        runNumpad();
    }
    if (guard) {
        selectDigit();
    }
}

void QLineEditNumber::on_showEditController()
{
    d->numpad->setText(removeThousandSeparator(text()));
    rememberEditor(false);
    d->numpad->reject();
    openWheelEditor();
}

void QLineEditNumber::on_selection()
{
    // A finger may be on its way to another digit.
    if (d->selectionEnabled && !d->isSelecting && !d->isPressed) {
        selectDigit();
    }
}

void QLineEditNumber::on_up()
{
    d->keys.press(KeyTimers::Up);
    d->keys.pollRelease();
    Q_EMIT advanceWheel(1, ChangeValue);
}

void QLineEditNumber::on_down()
{
    d->keys.press(KeyTimers::Down);
    d->keys.pollRelease();
    Q_EMIT advanceWheel(-1, ChangeValue);
}

void QLineEditNumber::on_upReleased()
{
    d->keys.release(KeyTimers::Up);
}

void QLineEditNumber::on_downReleased()
{
    d->keys.release(KeyTimers::Down);
}

void QLineEditNumber::on_left()
{
    d->keys.pollRelease();
    Q_EMIT advanceWheel(-1, MoveCursor);
}

void QLineEditNumber::on_right()
{
    d->keys.pollRelease();
    Q_EMIT advanceWheel(1, MoveCursor);
}

void QLineEditNumber::on_autoRepeatUp()
{
    if (isLeftButtonHeld() && DialogGuard::instance().isOpenTo(this)) {
        d->keys.repeat(KeyTimers::Up);
        Q_EMIT advanceWheel(1, ChangeValue);
    }
}

void QLineEditNumber::on_autoRepeatDown()
{
    if (isLeftButtonHeld() && DialogGuard::instance().isOpenTo(this)) {
        d->keys.repeat(KeyTimers::Down);
        Q_EMIT advanceWheel(-1, ChangeValue);
    }
}

void QLineEditNumber::on_release()
{
    if (isLeftButtonHeld()) {
        d->keys.pollRelease();
        return;
    }
    d->keys.releaseAll();
    if (d->lrud) {
        d->lrud->releaseAllButton();
    }
}

void QLineEditNumber::turn(int numSteps, int modeOverride)
{
    const int direction = numSteps > 0 ? 1 : -1;
    if (numSteps == 0) {
        return;
    }
    if (modeOverride == MoveCursor) {
        moveCursor(direction);
    } else if (modeOverride == ChangeValue || d->valueMode) {
        changeValue(numSteps);
    } else {
        moveCursor(-direction);
    }
}

void QLineEditNumber::moveCursor(int direction)
{
    if (!text().isEmpty()) {
        d->lastDirection = 0;
        d->cursor.move(text(), direction);
        selectDigit();
    }
}

void QLineEditNumber::changeValue(int numSteps)
{
    NumericField &field = d->numpad->field();
    const int direction = numSteps > 0 ? 1 : -1;
    const bool isAtLimit =
        d->lastDirection == direction && addThousandSeparator(field.text()) == d->text;
    if (isAtLimit || d->numpad->isVisible()) {
        return;
    }
    DecimalNumber increment = field.step();
    if (d->cursor.isOnDigit()) {
        increment = std::max(increment, DecimalNumber::powerOfTen(d->cursor.exponent()));
    }
    DecimalNumber value = field.value() + increment.times(numSteps);
    if (!field.isSigned()) {
        value = std::max(value, DecimalNumber());
    }
    d->lastDirection = direction;
    field.setValue(value);
    _setText(true);
}

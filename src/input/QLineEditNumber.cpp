#include "QLineEditNumber.h"

#include <QScopedValueRollback>

#include <algorithm>

#include "dialogs/DialogTheme.h"

#include "DecimalNumber.h"
#include "NumericField.h"
#include "QLineEditNumber_p.h"
#include "ThousandSeparators.h"

using namespace Qt::StringLiterals;

namespace {

DecimalNumber numberIn(const QString &shown)
{
    return DecimalNumber::fromText(ThousandSeparators::removed(shown)).value_or(DecimalNumber());
}

} // namespace

QLineEditNumber::QLineEditNumber(QWidget *parent)
    : QLineEdit(parent)
    , d(std::make_unique<Private>(this))
{
    readLastEditor();
    setReadOnly(true);
    setAlignment(Qt::AlignRight);
    setFocusPolicy(Qt::WheelFocus);
    setMinimumHeight(DialogTheme::touchTarget);
    connectOwnSignals();
}

QLineEditNumber::~QLineEditNumber()
{
    const QSignalBlocker silence(this);
    // When a running numpad ends, the focus goes back to the field, which must still be whole.
    d->numpad.reset();
    if (d->selectionEnabled) {
        disconnectKeys();
        if (d->lrud) {
            d->lrud->hide();
        }
    }
}

void QLineEditNumber::setMinimum(double minimum)
{
    d->numpad->setMinimum(minimum);
    limitsChanged();
}

void QLineEditNumber::setMinimum(long minimum)
{
    d->numpad->setMinimum(minimum);
    limitsChanged();
}

void QLineEditNumber::setMinimum(unsigned long minimum)
{
    d->numpad->setMinimum(minimum);
    limitsChanged();
}

void QLineEditNumber::setMinimum(qint64 minimum)
{
    d->numpad->setMinimum(minimum);
    limitsChanged();
}

void QLineEditNumber::setMinimum(quint64 minimum)
{
    d->numpad->setMinimum(minimum);
    limitsChanged();
}

void QLineEditNumber::setMaximum(double maximum)
{
    d->numpad->setMaximum(maximum);
    limitsChanged();
}

void QLineEditNumber::setMaximum(long maximum)
{
    d->numpad->setMaximum(maximum);
    limitsChanged();
}

void QLineEditNumber::setMaximum(unsigned long maximum)
{
    d->numpad->setMaximum(maximum);
    limitsChanged();
}

void QLineEditNumber::setMaximum(qint64 maximum)
{
    d->numpad->setMaximum(maximum);
    limitsChanged();
}

void QLineEditNumber::setMaximum(quint64 maximum)
{
    d->numpad->setMaximum(maximum);
    limitsChanged();
}

void QLineEditNumber::setDefault_(double value)
{
    d->numpad->setDefault_(value);
}

void QLineEditNumber::setDefault_(long value)
{
    d->numpad->setDefault_(value);
}

void QLineEditNumber::setDefault_(unsigned long value)
{
    d->numpad->setDefault_(value);
}

void QLineEditNumber::setDefault_(qint64 value)
{
    d->numpad->setDefault_(value);
}

void QLineEditNumber::setDefault_(quint64 value)
{
    d->numpad->setDefault_(value);
}

double QLineEditNumber::minimum() const
{
    return d->numpad->minimum();
}

double QLineEditNumber::maximum() const
{
    return d->numpad->maximum();
}

double QLineEditNumber::default_() const
{
    return d->numpad->default_();
}

long QLineEditNumber::lminimum() const
{
    return d->numpad->lminimum();
}

long QLineEditNumber::lmaximum() const
{
    return d->numpad->lmaximum();
}

long QLineEditNumber::ldefault_() const
{
    return d->numpad->ldefault_();
}

qint64 QLineEditNumber::lldefault_() const
{
    return d->numpad->lldefault_();
}

void QLineEditNumber::setDecimals(int decimals)
{
    d->numpad->setDecimals(decimals);
    limitsChanged();
}

int QLineEditNumber::decimals() const
{
    return d->numpad->decimals();
}

int QLineEditNumber::digits() const
{
    return d->numpad->digits();
}

bool QLineEditNumber::getSigned() const
{
    return d->numpad->getSigned();
}

void QLineEditNumber::setStep(double step)
{
    d->numpad->setStep(step);
    d->lastDirection = 0;
}

double QLineEditNumber::step() const
{
    return d->numpad->step();
}

void QLineEditNumber::setUnitKeys(const QString &unit, const QStringList &prefixes)
{
    d->numpad->setUnitKeys(unit, prefixes);
}

void QLineEditNumber::setTitle(const QString &title)
{
    if (accessibleName() == d->title) {
        setAccessibleName(title);
    }
    d->title = title;
    d->numpad->setWindowTitle(title);
}

QString QLineEditNumber::title() const
{
    return d->title;
}

bool QLineEditNumber::focused() const
{
    return hasFocus();
}

void QLineEditNumber::setValue(double value)
{
    d->numpad->setValue(value);
    _setText(d->updateTextFromClient);
}

void QLineEditNumber::setValue(long value)
{
    d->numpad->setValue(value);
    _setText(d->updateTextFromClient);
}

void QLineEditNumber::setValue(unsigned long value)
{
    d->numpad->setValue(value);
    _setText(d->updateTextFromClient);
}

void QLineEditNumber::setValue(qint64 value)
{
    d->numpad->setValue(value);
    _setText(d->updateTextFromClient);
}

void QLineEditNumber::setValue(quint64 value)
{
    d->numpad->setValue(value);
    _setText(d->updateTextFromClient);
}

double QLineEditNumber::value() const
{
    return removeThousandSeparator(text()).toDouble();
}

long QLineEditNumber::lvalue() const
{
    return long(numberIn(text()).toInt());
}

unsigned long QLineEditNumber::ulvalue() const
{
    return numberIn(text()).toUnsigned();
}

qint64 QLineEditNumber::llvalue() const
{
    return numberIn(text()).toInt();
}

quint64 QLineEditNumber::ullvalue() const
{
    return numberIn(text()).toUnsigned();
}

void QLineEditNumber::setText(const QString &text)
{
    d->numpad->setText(removeThousandSeparator(text));
    _setText(d->updateTextFromClient);
}

void QLineEditNumber::enableUpdateTextFromClient(bool enable)
{
    d->updateTextFromClient = enable;
}

void QLineEditNumber::UpdateText()
{
    _setText(true);
}

QString QLineEditNumber::addThousandSeparator(const QString &text)
{
    return ThousandSeparators::added(text);
}

QString QLineEditNumber::removeThousandSeparator(const QString &text)
{
    return ThousandSeparators::removed(text);
}

/// The range or the decimals changed, and perhaps the value with them.
void QLineEditNumber::limitsChanged()
{
    d->lastDirection = 0;
    if (!d->text.isEmpty()) {
        _setText(d->updateTextFromClient);
    }
}

/// Shows the numpad's number, unless @p show is false.
void QLineEditNumber::_setText(bool show)
{
    if (!show) {
        return;
    }
    const QString number = addThousandSeparator(d->numpad->text());
    const bool isChanged = number != d->text;
    d->text = number;
    showNumber();
    if (isChanged) {
        d->lastDirection = 0;
        setModified(true);
        Q_EMIT valueChanged();
    }
}

/// Shows the number, with the leading zeros that the selected digit needs.
void QLineEditNumber::showNumber()
{
    QString shown = d->text;
    if (d->selectionEnabled && d->cursor.isOnDigit()) {
        const int wholeDigits = std::min(d->cursor.exponent() + 1, digits() - decimals());
        shown = addThousandSeparator(
            ThousandSeparators::padded(removeThousandSeparator(shown), wholeDigits));
    }
    if (shown != text()) {
        const QScopedValueRollback select(d->isSelecting, true);
        const bool wasModified = isModified();
        QLineEdit::setText(shown);
        setModified(wasModified);
    }
    d->cursor.follow(shown);
    selectDigit();
}

void QLineEditNumber::selectDigit()
{
    const QScopedValueRollback select(d->isSelecting, true);
    if (d->selectionEnabled && d->cursor.isOnDigit()) {
        setSelection(d->cursor.position(), 1);
    } else {
        deselect();
    }
}

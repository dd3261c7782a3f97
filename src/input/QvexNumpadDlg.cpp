#include "QvexNumpadDlg.h"

#include <QKeyEvent>

#include "NumpadEntry.h"
#include "NumpadPanel.h"
#include "QvexNumpadDlg_p.h"
#include "TickBox.h"

using namespace Qt::StringLiterals;

namespace {

/// The height in pixels below which a window has no room for keys of the usual size.
constexpr int LowScreen = 640;

} // namespace

QvexNumpadDlg::QvexNumpadDlg(QWidget *field, int inpType, const char *name)
    : QvexDialog(field, true, false)
    , d(std::make_unique<Private>(this, field, inpType))
{
    setObjectName(name ? QString::fromUtf8(name) : u"QvexNumpadDlg"_s);
}

QvexNumpadDlg::~QvexNumpadDlg() = default;

int QvexNumpadDlg::inpType() const
{
    return d->field.notation();
}

void QvexNumpadDlg::setMinimum(double minimum)
{
    d->field.setMinimum(DecimalNumber::fromDouble(minimum));
    d->fieldChanged();
}

void QvexNumpadDlg::setMinimum(long minimum)
{
    setMinimum(qint64(minimum));
}

void QvexNumpadDlg::setMinimum(unsigned long minimum)
{
    setMinimum(quint64(minimum));
}

void QvexNumpadDlg::setMinimum(qint64 minimum)
{
    d->field.setSigned(true);
    d->field.setMinimum(DecimalNumber::fromInt(minimum));
    d->fieldChanged();
}

void QvexNumpadDlg::setMinimum(quint64 minimum)
{
    d->field.setSigned(false);
    d->field.setMinimum(DecimalNumber::fromUnsigned(minimum));
    d->fieldChanged();
}

void QvexNumpadDlg::setMaximum(double maximum)
{
    d->field.setMaximum(DecimalNumber::fromDouble(maximum));
    d->fieldChanged();
}

void QvexNumpadDlg::setMaximum(long maximum)
{
    setMaximum(qint64(maximum));
}

void QvexNumpadDlg::setMaximum(unsigned long maximum)
{
    setMaximum(quint64(maximum));
}

void QvexNumpadDlg::setMaximum(qint64 maximum)
{
    d->field.setSigned(true);
    d->field.setMaximum(DecimalNumber::fromInt(maximum));
    d->fieldChanged();
}

void QvexNumpadDlg::setMaximum(quint64 maximum)
{
    d->field.setSigned(false);
    d->field.setMaximum(DecimalNumber::fromUnsigned(maximum));
    d->fieldChanged();
}

void QvexNumpadDlg::setDefault_(double value)
{
    d->hasDefault = true;
    d->field.setDefault(DecimalNumber::fromDouble(value));
    d->fieldChanged();
}

void QvexNumpadDlg::setDefault_(long value)
{
    setDefault_(qint64(value));
}

void QvexNumpadDlg::setDefault_(unsigned long value)
{
    setDefault_(quint64(value));
}

void QvexNumpadDlg::setDefault_(qint64 value)
{
    d->hasDefault = true;
    d->field.setDefault(DecimalNumber::fromInt(value));
    d->fieldChanged();
}

void QvexNumpadDlg::setDefault_(quint64 value)
{
    d->hasDefault = true;
    d->field.setDefault(DecimalNumber::fromUnsigned(value));
    d->fieldChanged();
}

double QvexNumpadDlg::minimum() const
{
    return d->field.minimum().toDouble();
}

long QvexNumpadDlg::lminimum() const
{
    return long(d->field.minimum().toInt());
}

qint64 QvexNumpadDlg::llminimum() const
{
    return d->field.minimum().toInt();
}

quint64 QvexNumpadDlg::ullminimum() const
{
    return d->field.minimum().toUnsigned();
}

double QvexNumpadDlg::maximum() const
{
    return d->field.maximum().toDouble();
}

long QvexNumpadDlg::lmaximum() const
{
    return long(d->field.maximum().toInt());
}

qint64 QvexNumpadDlg::llmaximum() const
{
    return d->field.maximum().toInt();
}

quint64 QvexNumpadDlg::ullmaximum() const
{
    return d->field.maximum().toUnsigned();
}

double QvexNumpadDlg::default_() const
{
    return d->field.defaultValue().toDouble();
}

long QvexNumpadDlg::ldefault_() const
{
    return long(d->field.defaultValue().toInt());
}

qint64 QvexNumpadDlg::lldefault_() const
{
    return d->field.defaultValue().toInt();
}

quint64 QvexNumpadDlg::ulldefault_() const
{
    return d->field.defaultValue().toUnsigned();
}

void QvexNumpadDlg::setDecimals(int decimals)
{
    d->field.setDecimals(decimals);
    d->fieldChanged();
}

int QvexNumpadDlg::decimals() const
{
    return d->field.decimals();
}

void QvexNumpadDlg::setStep(double step)
{
    d->field.setStep(DecimalNumber::fromDouble(step));
    d->fieldChanged();
}

double QvexNumpadDlg::step() const
{
    return d->field.step().toDouble();
}

int QvexNumpadDlg::digits() const
{
    return d->field.digits();
}

bool QvexNumpadDlg::getSigned() const
{
    return d->field.isSigned();
}

void QvexNumpadDlg::setValue(double value)
{
    d->field.setValue(DecimalNumber::fromDouble(value));
    d->fieldChanged();
}

void QvexNumpadDlg::setValue(long value)
{
    setValue(qint64(value));
}

void QvexNumpadDlg::setValue(unsigned long value)
{
    setValue(quint64(value));
}

void QvexNumpadDlg::setValue(qint64 value)
{
    d->field.setValue(DecimalNumber::fromInt(value));
    d->fieldChanged();
}

void QvexNumpadDlg::setValue(quint64 value)
{
    d->field.setValue(DecimalNumber::fromUnsigned(value));
    d->fieldChanged();
}

double QvexNumpadDlg::value() const
{
    return d->field.value().toDouble();
}

long QvexNumpadDlg::lvalue() const
{
    return long(d->field.value().toInt());
}

unsigned long QvexNumpadDlg::ulvalue() const
{
    return d->field.value().toUnsigned();
}

qint64 QvexNumpadDlg::llvalue() const
{
    return d->field.value().toInt();
}

quint64 QvexNumpadDlg::ullvalue() const
{
    return d->field.value().toUnsigned();
}

QString QvexNumpadDlg::text() const
{
    return d->isSecret() ? lineEditText() : d->field.text();
}

void QvexNumpadDlg::setText(const QString &text)
{
    if (d->isSecret()) {
        d->panel().entry()->replaceAll(text);
    } else if (d->field.setText(text)) {
        d->fieldChanged();
    }
}

bool QvexNumpadDlg::preserveText() const
{
    return d->preserveText;
}

void QvexNumpadDlg::setPreserveText(bool preserve)
{
    d->preserveText = preserve;
}

void QvexNumpadDlg::setUnitKeys(const QString &unit, const QStringList &prefixes)
{
    d->setUnits(unit, prefixes);
}

void QvexNumpadDlg::lineEditClear()
{
    if (d->madePanel) {
        d->madePanel->entry()->eraseAll();
    }
}

QString QvexNumpadDlg::lineEditText() const
{
    return d->madePanel ? d->madePanel->entry()->entry() : QString();
}

void QvexNumpadDlg::disablePasswordProtectionSetChecked(bool checked)
{
    if (TickBox *box = d->panel().removeProtection()) {
        box->setChecked(checked);
    }
}

void QvexNumpadDlg::disablePasswordProtectionSetDisabled(bool disabled)
{
    if (TickBox *box = d->panel().removeProtection()) {
        box->setDisabled(disabled);
    }
}

bool QvexNumpadDlg::disablePasswordProtectionIsChecked() const
{
    const TickBox *box = d->madePanel ? d->madePanel->removeProtection() : nullptr;
    return box && box->isChecked();
}

void QvexNumpadDlg::displayPasswordSetChecked(bool checked)
{
    if (TickBox *box = d->panel().displayPassword()) {
        box->setChecked(checked);
    }
}

NumericField &QvexNumpadDlg::field()
{
    return d->field;
}

const NumericField &QvexNumpadDlg::field() const
{
    return d->field;
}

void QvexNumpadDlg::UpdateText()
{
    if (d->madePanel) {
        d->madePanel->updateTexts();
        d->showField();
    }
}

void QvexNumpadDlg::setVisible(bool visible)
{
    if (visible && isHidden()) {
        const QWidget *application = parentApplication();
        d->panel().setLow(application != nullptr && application->height() < LowScreen);
        d->begin();
    } else if (!visible && d->isSecret()) {
        displayPasswordSetChecked(false);
    }
    QvexDialog::setVisible(visible);
}

void QvexNumpadDlg::accept()
{
    if (d->take()) {
        QvexDialog::accept();
    }
}

void QvexNumpadDlg::reject()
{
    if (d->isSecret()) {
        lineEditClear();
    }
    QvexDialog::reject();
}

void QvexNumpadDlg::showEvent(QShowEvent *event)
{
    QvexDialog::showEvent(event);
    d->placeBesideField();
}

void QvexNumpadDlg::resizeEvent(QResizeEvent *event)
{
    QvexDialog::resizeEvent(event);
    if (isVisible()) {
        d->placeBesideField();
    }
}

void QvexNumpadDlg::keyPressEvent(QKeyEvent *event)
{
    NumpadEntry *entry = d->panel().entry();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        accept();
    } else if (entry->hasFocus() || !entry->take(event)) {
        QvexDialog::keyPressEvent(event);
    }
}

void QvexNumpadDlg::changeEvent(QEvent *event)
{
    QvexDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        UpdateText();
    } else if (event->type() == QEvent::PaletteChange && d->madePanel) {
        d->madePanel->updateStyle();
    }
}

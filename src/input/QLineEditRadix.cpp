#include "QLineEditRadix.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

#include "dialogs/DialogTheme.h"

#include "QvexNumpadDlg.h"

QLineEditRadix::QLineEditRadix(int inpType, QWidget *parent)
    : QLineEdit(parent)
    , m_numpad(std::make_unique<QvexNumpadDlg>(this, inpType, "numpad"))
{
    setReadOnly(true);
    setMinimumHeight(DialogTheme::touchTarget);
}

QLineEditRadix::~QLineEditRadix() = default;

void QLineEditRadix::setMinimum(quint64 minimum)
{
    m_numpad->setMinimum(minimum);
    limitsChanged();
}

void QLineEditRadix::setMaximum(quint64 maximum)
{
    m_numpad->setMaximum(maximum);
    limitsChanged();
}

quint64 QLineEditRadix::minimum() const
{
    return m_numpad->ullminimum();
}

quint64 QLineEditRadix::maximum() const
{
    return m_numpad->ullmaximum();
}

void QLineEditRadix::setValue(quint64 value)
{
    m_numpad->setValue(value);
    showNumber();
}

quint64 QLineEditRadix::value() const
{
    return m_numpad->ullvalue();
}

void QLineEditRadix::setText(const QString &text)
{
    m_numpad->setText(text);
    showNumber();
}

void QLineEditRadix::setWindowTitle(const QString &title)
{
    if (accessibleName() == windowTitle()) {
        setAccessibleName(title);
    }
    m_numpad->setWindowTitle(title);
}

QString QLineEditRadix::windowTitle() const
{
    return m_numpad->windowTitle();
}

void QLineEditRadix::setPreserveText(bool preserve)
{
    m_numpad->setPreserveText(preserve);
}

bool QLineEditRadix::preserveText() const
{
    return m_numpad->preserveText();
}

/// The value may have been carried along, and the width follows the maximum.
void QLineEditRadix::limitsChanged()
{
    if (!text().isEmpty()) {
        showNumber();
    }
}

void QLineEditRadix::showNumber()
{
    const QString number = m_numpad->text();
    if (number != text()) {
        QLineEdit::setText(number);
        setModified(true);
    }
}

void QLineEditRadix::runNumpad()
{
    const QPointer<QLineEditRadix> guard(this);
    m_numpad->setText(text());
    if (m_numpad->exec() == QDialog::Accepted && guard) {
        showNumber();
    }
}

void QLineEditRadix::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        runNumpad();
    } else {
        QLineEdit::mousePressEvent(event);
    }
}

/// The second of two quick taps, which is a tap like the first.
void QLineEditRadix::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

void QLineEditRadix::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Select) {
        runNumpad();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

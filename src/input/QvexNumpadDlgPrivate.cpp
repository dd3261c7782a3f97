#include <QMetaMethod>
#include <QPushButton>
#include <QVBoxLayout>

#include <dialogs/DialogTheme.h>

#include "NumpadEntry.h"
#include "NumpadPanel.h"
#include "NumpadPlace.h"
#include "QvexNumpadDlg_p.h"
#include "TickBox.h"
#include "UnitPrefix.h"

using namespace Qt::StringLiterals;
using Verdict = NumericField::Verdict;

namespace {

NumericField::Notation notationOf(int inpType)
{
    switch (inpType) {
    case QvexNumpadDlg::Hexadecimal:
    case QvexNumpadDlg::Binary:
    case QvexNumpadDlg::Password:
    case QvexNumpadDlg::Base4:
    case QvexNumpadDlg::CodingPAM4:
        return NumericField::Notation(inpType);
    default:
        return NumericField::Decimal;
    }
}

} // namespace

QvexNumpadDlg::Private::Private(QvexNumpadDlg *dialog, QWidget *parentField, int inpType)
    : q(dialog)
    , opener(parentField)
    , field(notationOf(inpType))
{
}

NumpadPanel &QvexNumpadDlg::Private::panel()
{
    if (!madePanel) {
        madePanel = new NumpadPanel(field.notation(), q);
        auto *column = new QVBoxLayout(q);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(madePanel);
        connectPanel();
    }
    return *madePanel;
}

void QvexNumpadDlg::Private::connectPanel()
{
    const NumpadEntry *entry = madePanel->entry();
    const NumpadKeys *keys = madePanel->keys();
    connect(entry, &NumpadEntry::edited, q, [this] { judge(); });
    connect(entry, &NumpadEntry::unitTyped, q, [this](const QString &prefix) { multiply(prefix); });
    connect(keys, &NumpadKeys::typed, entry, &NumpadEntry::type);
    connect(keys, &NumpadKeys::commanded, q, [this](NumpadKeys::Command key) { command(key); });
    connect(keys, &NumpadKeys::unitChosen, q, [this](const QString &prefix) { multiply(prefix); });
    connect(madePanel->okButton(), &QPushButton::clicked, q, &QDialog::accept);
    connect(madePanel->cancelButton(), &QPushButton::clicked, q, &QDialog::reject);
    connect(madePanel->digitsButton(), &QPushButton::clicked, q, [this] { leaveForDigits(); });
}

/// Makes everything as it is when the dialog opens, so that its size is known.
void QvexNumpadDlg::Private::begin()
{
    panel().updateStyle();
    if (TickBox *display = madePanel->displayPassword()) {
        display->setChecked(false);
    }
    oldText = isSecret() ? QString() : field.text();
    madePanel->entry()->begin(oldText, !preserveText);
    madePanel->entry()->setFocus(Qt::OtherFocusReason);
    updateKeys();
    showField();
}

void QvexNumpadDlg::Private::updateKeys()
{
    NumpadKeys *keys = madePanel->keys();
    keys->setKeyVisible(NumpadKeys::Sign, field.mayBeNegative());
    keys->setKeyVisible(NumpadKeys::Point, field.decimals() > 0 || !prefixes.isEmpty());
    keys->setKeyVisible(NumpadKeys::Default, hasDefault);
    if (unitsChanged) {
        keys->setUnits(unit, prefixes);
        madePanel->entry()->setUnitPrefixes(prefixes);
        unitsChanged = false;
    }
    const auto signal = QMetaMethod::fromSignal(&QvexNumpadDlg::showEditControllerClicked);
    madePanel->digitsButton()->setVisible(q->isSignalConnected(signal));
}

void QvexNumpadDlg::Private::showField()
{
    madePanel->showField(field, unit);
    judge();
}

void QvexNumpadDlg::Private::fieldChanged()
{
    if (!q->isVisible()) {
        return;
    }
    // Where nothing was typed yet, the entry is the value that the program has just set.
    const bool isOld = !isSecret() && madePanel->entry()->text() == oldText;
    oldText = isSecret() ? QString() : field.text();
    if (isOld && madePanel->entry()->text() != oldText) {
        madePanel->entry()->begin(oldText, !preserveText);
    }
    updateKeys();
    showField();
}

void QvexNumpadDlg::Private::setUnits(const QString &newUnit, const QStringList &newPrefixes)
{
    unit = newUnit;
    prefixes = newPrefixes;
    prefixes.removeIf([](const QString &prefix) { return !UnitPrefix::exponentOf(prefix); });
    if (field.notation() != NumericField::Decimal) {
        prefixes.clear();
    }
    unitsChanged = true;
    fieldChanged();
}

bool QvexNumpadDlg::Private::isUntouched() const
{
    const QString text = madePanel->entry()->text();
    return text.isEmpty() || text == oldText;
}

/// What OK is worth now.
Verdict QvexNumpadDlg::Private::verdict() const
{
    const QString text = madePanel->entry()->text();
    if (isSecret() || isUntouched()) {
        const bool saysNothing = isSecret() || !text.isEmpty();
        return {Verdict::Valid, saysNothing ? QString() : tr("The value stays as it is")};
    }
    Verdict plain = field.check(text);
    if (plain.state == Verdict::Valid) {
        return plain;
    }
    for (const QString &prefix : prefixes) {
        if (UnitPrefix::valueOf(field, text, prefix).value) {
            return {Verdict::Unfinished, tr("%1; or choose a unit").arg(plain.reason)};
        }
    }
    return plain;
}

void QvexNumpadDlg::Private::judge()
{
    madePanel->showVerdict(verdict());
}

/// The entry becomes the value, when there is a valid one.
bool QvexNumpadDlg::Private::take()
{
    if (!q->isVisible() || isSecret() || isUntouched()) {
        return true;
    }
    return verdict().state == Verdict::Valid && field.setText(madePanel->entry()->text());
}

void QvexNumpadDlg::Private::command(NumpadKeys::Command command)
{
    NumpadEntry *entry = madePanel->entry();
    switch (command) {
    case NumpadKeys::Backspace:
        return entry->eraseBefore();
    case NumpadKeys::Clear:
        return entry->eraseAll();
    case NumpadKeys::Left:
        return entry->cursorBackward(false);
    case NumpadKeys::Right:
        return entry->cursorForward(false);
    case NumpadKeys::Sign:
        return entry->toggleSign();
    case NumpadKeys::Point:
        return entry->type(u"."_s);
    case NumpadKeys::Minimum:
        return entry->replaceAll(field.textOf(field.minimum()));
    case NumpadKeys::Maximum:
        return entry->replaceAll(field.textOf(field.maximum()));
    case NumpadKeys::Default:
        return entry->replaceAll(field.textOf(field.defaultValue()));
    }
}

void QvexNumpadDlg::Private::multiply(const QString &prefix)
{
    const NumpadEntry *entry = madePanel->entry();
    if (entry->text() == oldText && !entry->isModified()) {
        // The old value a thousand times over is nothing that anybody meant.
        madePanel->showVerdict({Verdict::Unfinished, tr("Enter a number")});
        return;
    }
    const auto [value, reason] = UnitPrefix::valueOf(field, madePanel->entry()->text(), prefix);
    if (!value) {
        madePanel->showVerdict({Verdict::Refused, reason});
        return;
    }
    field.setValue(*value);
    q->QvexDialog::accept();
}

/// The other editor is behind the dialog.
void QvexNumpadDlg::Private::leaveForDigits()
{
    const QPointer<QvexNumpadDlg> guard(q);
    q->reject();
    if (guard) {
        Q_EMIT q->showEditControllerClicked();
    }
}

void QvexNumpadDlg::Private::placeBesideField()
{
    const QWidget *surface = q->parentWidget();
    if (!opener || !surface || opener == surface || !opener->isVisible()) {
        return;
    }
    constexpr int padding = DialogTheme::panelPadding;
    constexpr int header = DialogTheme::headerHeight + 1;
    const QMargins border(padding, header + padding, padding, padding);
    const QRect covered(surface->mapFromGlobal(opener->mapToGlobal(QPoint())), opener->size());
    q->move(placeBeside(covered, q->size().grownBy(border), surface->rect())
            + QPoint(border.left(), border.top()));
}

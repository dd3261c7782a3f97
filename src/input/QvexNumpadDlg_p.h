#pragma once

#include <QPointer>
#include <QStringList>

#include "NumericField.h"
#include "NumpadKeys.h"
#include "QvexNumpadDlg.h"

class NumpadPanel;

/// The keypad, the number that is entered on it, and what becomes of an entry.
struct QvexNumpadDlg::Private
{
    Private(QvexNumpadDlg *dialog, QWidget *parentField, int inpType);

    NumpadPanel &panel();
    void connectPanel();
    bool isSecret() const { return field.notation() == NumericField::Password; }

    void begin();
    void updateKeys();
    void showField();
    void fieldChanged();
    void setUnits(const QString &newUnit, const QStringList &newPrefixes);

    bool isUntouched() const;
    NumericField::Verdict verdict() const;
    void judge();
    [[nodiscard]] bool take();
    void command(NumpadKeys::Command command);
    void multiply(const QString &prefix);
    void leaveForDigits();

    void placeBesideField();

    QvexNumpadDlg *const q;
    const QPointer<QWidget> opener;
    NumericField field;
    NumpadPanel *madePanel = nullptr; ///< made when it is needed: most dialogs are never opened
    QString oldText;
    QString unit;
    QStringList prefixes;
    bool hasDefault = false;
    bool preserveText = false;
    bool unitsChanged = false;
};

#pragma once

#include <QWidget>

#include "NumericField.h"
#include "NumpadKeys.h"

class NumpadEntry;
class QBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;
class TickBox;

/** What there is to see in a numpad dialog: the old value, the entry, what it is worth, the keys.
 */
class NumpadPanel : public QWidget
{
    Q_OBJECT

public:
    explicit NumpadPanel(NumericField::Notation notation, QWidget *parent);

    NumpadEntry *entry() const { return m_entry; }
    NumpadKeys *keys() const { return m_keys; }
    QPushButton *okButton() const { return m_okButton; }
    QPushButton *cancelButton() const { return m_cancelButton; }
    QPushButton *digitsButton() const { return m_digitsButton; }
    /** The check boxes of a password; null for all else. */
    TickBox *removeProtection() const { return m_removeProtection; }
    TickBox *displayPassword() const { return m_displayPassword; }

    /** The old value, the range and the step (which is not shown when it is 0). */
    void showField(const NumericField &field, const QString &unit);
    /** Colours the entry, says why, and enables OK for what is valid. */
    void showVerdict(const NumericField::Verdict &verdict);
    void updateTexts();
    /** Makes keys and gaps as small as fingers allow, for a low screen. */
    void setLow(bool low);
    /** Takes the colours of the palette. */
    void updateStyle();

private:
    void addEntry(QVBoxLayout *column);
    void addVerdict(QVBoxLayout *column);
    void addCheckBoxes(QVBoxLayout *column);
    void addButtons(QVBoxLayout *column);
    QPushButton *makeButton(const QString &name);
    void styleEntry();

    const bool m_isSecret;
    QLabel *m_oldValue = nullptr;
    NumpadEntry *m_entry = nullptr;
    QLabel *m_mark = nullptr;
    QLabel *m_reason = nullptr;
    QLabel *m_range = nullptr;
    NumpadKeys *m_keys = nullptr;
    QBoxLayout *m_tickBoxes = nullptr; ///< of a password
    TickBox *m_removeProtection = nullptr;
    TickBox *m_displayPassword = nullptr;
    QPushButton *m_digitsButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
    QPushButton *m_okButton = nullptr;
    NumericField::Verdict::State m_shownState = NumericField::Verdict::Valid;
};

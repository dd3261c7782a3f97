#pragma once

#include <QStringList>

#include <memory>

#include <VexExport.h>
#include <dialogs/QvexDialog.h>

class DecimalNumber;
class NumericField;

/**
 * The keypad with which a number is entered by touch, and the place where a line edit's number
 * lives: its value, range, default, decimals and signedness.
 *
 * Integers of 64 bits and decimal fractions of 15 digits pass unchanged: nothing goes through a
 * double but where a caller hands over or asks for one. What is shown is what is stored, and
 * nothing is clamped silently: an entry can be accepted only when it is valid. OK on an entry that
 * is empty or was not changed changes nothing; Cancel and Escape leave the value as it was.
 *
 * It opens beside the field that is its parent, over it only where the window leaves no room, and
 * can't be moved.
 *
 * A password is not kept in a property of a widget unless it is shown in clear, and is overwritten
 * in memory when the entry is cleared; lineEditText() and text() return copies of it.
 */
class VEX_EXPORT QvexNumpadDlg : public QvexDialog
{
    Q_OBJECT

public:
    /** What is entered, by the numbers under which applications know it. */
    enum Inp_Type {
        Decimal = 0,
        Hexadecimal = 1,
        Binary = 2,
        Password = 7,
        Base4 = 11,
        /** Symbols of two bits each by Gray code: 00 is 0, 01 is 1, 11 is 2, 10 is 3. */
        CodingPAM4 = 12,
    };
    Q_ENUM(Inp_Type)

    /** @p field is the parent, and what the dialog opens beside. */
    explicit QvexNumpadDlg(QWidget *field, int inpType = Decimal, const char *name = nullptr);
    ~QvexNumpadDlg() override;

    int inpType() const;

    /**
     * The range; the value is carried along when it falls out of it. The default range holds all
     * numbers from 0 to the largest unsigned one. Setting a bound as a signed or an unsigned number
     * says of the field which of them it holds.
     */
    void setMinimum(double minimum);
    void setMinimum(int minimum) { setMinimum(long(minimum)); }
    void setMinimum(long minimum);
    void setMinimum(unsigned long minimum);
    void setMinimum(qint64 minimum);
    void setMinimum(quint64 minimum);
    void setMaximum(double maximum);
    void setMaximum(int maximum) { setMaximum(long(maximum)); }
    void setMaximum(long maximum);
    void setMaximum(unsigned long maximum);
    void setMaximum(qint64 maximum);
    void setMaximum(quint64 maximum);
    /** What the key "Default" fills in; the key is not there until a default was set. */
    void setDefault_(double value);
    void setDefault_(int value) { setDefault_(long(value)); }
    void setDefault_(long value);
    void setDefault_(unsigned long value);
    void setDefault_(qint64 value);
    void setDefault_(quint64 value);
    double minimum() const;
    long lminimum() const;
    qint64 llminimum() const;
    quint64 ullminimum() const;
    double maximum() const;
    long lmaximum() const;
    qint64 llmaximum() const;
    quint64 ullmaximum() const;
    double default_() const;
    long ldefault_() const;
    qint64 lldefault_() const;
    quint64 ulldefault_() const;

    /** Digits after the point, 0 (the default) to 15; with 0 the field is an integer. */
    void setDecimals(int decimals);
    int decimals() const;
    /** Shown beside the range; 0, the default: not shown. */
    void setStep(double step);
    double step() const;
    /** The digits that the largest value needs, those after the point included. */
    int digits() const;
    bool getSigned() const;

    /** Each rounds to the decimals and keeps within the range. */
    void setValue(double value);
    void setValue(int value) { setValue(long(value)); }
    void setValue(long value);
    void setValue(unsigned long value);
    void setValue(qint64 value);
    void setValue(quint64 value);
    double value() const;
    long lvalue() const;
    unsigned long ulvalue() const;
    qint64 llvalue() const;
    quint64 ullvalue() const;

    /** The value as it is written, without separators; of a password, the entry. */
    QString text() const;
    /** Takes a text as the value when it is valid, and changes nothing when it is not. */
    void setText(const QString &text);

    /** Whether the entry line begins with the old value to be edited, instead of replacing it. */
    bool preserveText() const;
    void setPreserveText(bool preserve);

    /**
     * Keys that multiply the entry and accept it at once, named by a prefix and the unit: "m" and
     * "V" make the key "mV". Prefixes are "p", "n", "µ", "m", "", "k", "M" and "G". The value is
     * stored in the bare unit, exactly; a key whose product has too many decimals is refused with
     * the reason, and so is one before anything was typed. An empty list, the default, takes the
     * keys away.
     */
    void setUnitKeys(const QString &unit, const QStringList &prefixes);

    /** The entry line, as a password popup needs it. */
    void lineEditClear();
    QString lineEditText() const;
    /** The check box of a password's keypad with which the protection is removed. */
    void disablePasswordProtectionSetChecked(bool checked);
    void disablePasswordProtectionSetDisabled(bool disabled);
    bool disablePasswordProtectionIsChecked() const;
    /** The check box that shows a password in clear. */
    void displayPasswordSetChecked(bool checked);

    /** The number with all that belongs to it, for the line edits. Not for applications. */
    NumericField &field();
    const NumericField &field() const;

    /** Translates the texts anew; done on every language change. */
    void UpdateText();

    void setVisible(bool visible) override;

public Q_SLOTS:
    void accept() override;
    void reject() override;

Q_SIGNALS:
    /**
     * The user asks for the editor of single digits instead; the dialog was rejected then. Its key
     * is there while this is connected.
     */
    void showEditControllerClicked();

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

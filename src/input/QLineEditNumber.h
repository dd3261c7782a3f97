#pragma once

#include <QLineEdit>

#include <memory>

#include "VexExport.h"

/**
 * Shows a decimal number, in groups of three digits, and lets it be edited by touch: a tap opens
 * the numpad, or the wheel editor, which turns one digit after the other by the direction keys or
 * the keypad's wheel. The user may switch between the two; the choice is that of the whole
 * application and is kept in property 103.
 *
 * The number lives in the field's numpad (QvexNumpadDlg) with its range, decimals and step; it
 * reaches over all 64-bit integers and has up to 15 decimals, exactly. A field that was given no
 * value yet is empty.
 *
 * Under the remote lock of the dialogs neither of the two opens.
 *
 * While the wheel editor is open the field has leading zeros where the selected digit needs them:
 * 100 less the hundred is 000, so that the next step brings the hundred back. An ordinary wheel
 * counts only then; otherwise it scrolls what is behind the field.
 */
class VEX_EXPORT QLineEditNumber : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY valueChanged)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(long lvalue READ lvalue WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(ulong ulvalue READ ulvalue WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(qint64 llvalue READ llvalue WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(quint64 ullvalue READ ullvalue WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(QString title READ title WRITE setTitle)

public:
    explicit QLineEditNumber(QWidget *parent = nullptr);
    ~QLineEditNumber() override;

    /** As those of the numpad; a value that is out of the new range is carried along. */
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
    void setDefault_(double value);
    void setDefault_(int value) { setDefault_(long(value)); }
    void setDefault_(long value);
    void setDefault_(unsigned long value);
    void setDefault_(qint64 value);
    void setDefault_(quint64 value);
    double minimum() const;
    double maximum() const;
    double default_() const;
    long lminimum() const;
    long lmaximum() const;
    long ldefault_() const;
    qint64 lldefault_() const;

    /** Digits after the point, 0 (the default) to 15. */
    void setDecimals(int decimals);
    int decimals() const;
    /** The digits that the largest value needs, those after the point included. */
    int digits() const;
    bool getSigned() const;
    /** The least by which a wheel changes the value; 0, the default: the selected digit's 1. */
    void setStep(double step);
    double step() const;
    /** Keys of the numpad that multiply and accept, see QvexNumpadDlg::setUnitKeys(). */
    void setUnitKeys(const QString &unit, const QStringList &prefixes);
    /** The numpad's title, and the field's accessible name unless that was set otherwise. */
    void setTitle(const QString &title);
    QString title() const;
    /** Whether the field has the keyboard focus. */
    bool focused() const;

    /** Each rounds to the decimals and keeps within the range. */
    void setValue(double value);
    void setValue(int value) { setValue(long(value)); }
    void setValue(long value);
    void setValue(unsigned long value);
    void setValue(qint64 value);
    void setValue(quint64 value);
    /** The number that is shown; 0 when none is. Integers are cut at the point, within their type.
     */
    double value() const;
    long lvalue() const;
    unsigned long ulvalue() const;
    qint64 llvalue() const;
    quint64 ullvalue() const;

    /**
     * Whether what the program sets is shown at once, true by default. Otherwise it waits for
     * UpdateText(), or for what the user does.
     */
    void enableUpdateTextFromClient(bool enable);
    /** Shows the numpad's value. */
    void UpdateText();

    /** "-1234.5678" is "-1 234.567 8" and back. Before the point there is at least a 0. */
    static QString addThousandSeparator(const QString &text);
    static QString removeThousandSeparator(const QString &text);

public Q_SLOTS:
    /** Takes a text as the value when it is valid, and changes nothing when it is not. */
    void setText(const QString &text);

Q_SIGNALS:
    /** The field got the keyboard focus, or lost it. */
    void focusEvent(bool focusIn);
    /** The shown value changed, whoever did it. */
    void valueChanged();
    /** What a wheel does by itself was changed, from the value to the selected digit or back. */
    void modeChanged();
    /**
     * The wheel editor's wheel turns by @p numSteps. It changes the value with a @p modeOverride of
     * 0, selects another digit with 1, and with -1 does what modeChanged() chose. May be connected
     * to another wheel's signal, or emitted, to turn the field.
     */
    void advanceWheel(int numSteps, int modeOverride);
    /** The same with a modeOverride of -1. */
    void advanceWheel(int numSteps);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    /** A tap. Without an event it is one at the text cursor. */
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void on_up();
    void on_upReleased();
    void on_down();
    void on_downReleased();
    void on_left();
    void on_right();
    void on_showNumpad();
    void on_showEditController();
    void on_autoRepeatUp();
    void on_autoRepeatDown();
    void on_release();
    void on_hidden();
    void on_selection();

private:
    struct Private;

    void connectOwnSignals();
    void runNumpad();
    void openWheelEditor();
    void closeWheelEditor();
    void takeKeys();
    void connectKeys();
    void disconnectKeys();
    static void readLastEditor();
    static void rememberEditor(bool isNumpad);

    void turn(int numSteps, int modeOverride);
    void moveCursor(int direction);
    void changeValue(int numSteps);

    void limitsChanged();
    void _setText(bool show);
    void showNumber();
    void selectDigit();

    static bool m_lastShownIsNumpad;

    const std::unique_ptr<Private> d;
};

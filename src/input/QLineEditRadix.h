#pragma once

#include <QLineEdit>

#include <memory>

#include "VexExport.h"

class QvexNumpadDlg;

/**
 * What the fields of numbers in other radices than ten have in common: each shows an unsigned
 * 64-bit number with leading zeros, as many digits as its maximum needs, and is edited by its
 * numpad (QvexNumpadDlg), which holds the number. A field that was given no value yet is empty.
 */
class VEX_EXPORT QLineEditRadix : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(quint64 value READ value WRITE setValue)
    Q_PROPERTY(quint64 minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(quint64 maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(QString windowTitle READ windowTitle WRITE setWindowTitle)
    Q_PROPERTY(bool preserveText READ preserveText WRITE setPreserveText)

public:
    ~QLineEditRadix() override;

    /** All unsigned numbers by default; a value that is out of the new range is carried along. */
    void setMinimum(quint64 minimum);
    void setMaximum(quint64 maximum);
    quint64 minimum() const;
    quint64 maximum() const;

    /** Kept within the range. */
    void setValue(quint64 value);
    quint64 value() const;

    /** The numpad's title, and the field's accessible name unless that was set otherwise. */
    void setWindowTitle(const QString &title);
    QString windowTitle() const;

    /** Whether the numpad begins with the old value to be edited, instead of replacing it. */
    void setPreserveText(bool preserve);
    bool preserveText() const;

public Q_SLOTS:
    /** Takes a text as the value when it is valid, and changes nothing when it is not. */
    void setText(const QString &text);

protected:
    QLineEditRadix(int inpType, QWidget *parent);

    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void limitsChanged();
    void showNumber();
    void runNumpad();

    // Ends before the field does, to which the focus goes back when a running numpad ends.
    const std::unique_ptr<QvexNumpadDlg> m_numpad;
};

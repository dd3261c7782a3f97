#pragma once

#include <QRegularExpression>
#include <QValidator>

#include <memory>

#include <VexExport.h>

class QRegularExpressionValidator;

/**
 * Accepts numbers within a range that also match a regular expression, in one of three flavours:
 * floating point with a number of decimals, signed and unsigned 64-bit integers.
 *
 * The flavour is that of the last call that has set the range. What is typed is read in a radix,
 * base(); the regular expression sees it as it was typed. A special text stands for a value of its
 * own, such as a word shown instead of a number.
 *
 * Integers are compared as integers: none passes through a double. An over-range number is
 * QValidator::Intermediate, since deleting a digit may mend it; a sign that the range can't have,
 * a lower-case "e", and a point in an integer are QValidator::Invalid. Conversions that fail
 * yield 0: it is the expression that refuses what is no number.
 *
 * fixup() is the default one: it changes nothing. GUI thread only, as all of QValidator.
 */
class VEX_EXPORT QvexValidator : public QValidator
{
    Q_OBJECT

public:
    /** Base 10, no special text, an expression that matches everything; set the range before use.
     */
    explicit QvexValidator(QObject *parent = nullptr);
    /** Floating point, with at most @p decimals digits after the point. */
    QvexValidator(const QRegularExpression &rx, double bottom, double top, int decimals, int base,
                  QObject *parent = nullptr);
    /** Signed integers. */
    QvexValidator(const QRegularExpression &rx, qint64 bottom, qint64 top, int base,
                  QObject *parent = nullptr);
    /** Unsigned integers. */
    QvexValidator(const QRegularExpression &rx, quint64 bottom, quint64 top, int base,
                  QObject *parent = nullptr);
    ~QvexValidator() override;

    /**
     * Makes this the floating-point flavour if @p decimals is greater than 0, else the signed one,
     * whose range is then this one truncated toward zero, and to what 64 bits hold.
     */
    void setRange(double bottom, double top, int decimals);
    void setRange(qint64 bottom, qint64 top);
    void setRange(quint64 bottom, quint64 top);

    /** Each sets the range with the other bound, and the decimals, as they are. */
    void setBottom(double bottom);
    void setBottom(qint64 bottom);
    void setBottom(quint64 bottom);
    void setTop(double top);
    void setTop(qint64 top);
    void setTop(quint64 top);

    void setDecimals(int decimals);
    /** The radix in which the user types, 2 to 36. */
    void setBase(int base);
    /** A text that is acceptable as it is; empty, the default: there is none. */
    void setSpecialText(const QString &text);

    double bottom() const { return m_bottom; }
    double top() const { return m_top; }
    /** Of the unsigned flavour: the same 64 bits. */
    qint64 llbottom() const { return m_llbottom; }
    qint64 lltop() const { return m_lltop; }
    int decimals() const { return m_decimals; }
    QString specialText() const { return m_specialText; }
    QRegularExpression regExp() const;

    /**
     * Never changes @p input, but when a digit was typed onto the special text: then the digit
     * replaces it.
     */
    State validate(QString &input, int &pos) const override;

protected:
    /** The range alone, of a text in base 10. */
    State minmaxvalidate(QString &input, int &pos) const;

private:
    State validateFloat(const QString &text) const;
    State validateSigned(const QString &text) const;
    State validateUnsigned(const QString &text) const;
    bool isTop(const QString &text) const;
    bool isBottom(const QString &text) const;

    const std::unique_ptr<QRegularExpressionValidator> m_regExpValidator;
    double m_bottom = 0;
    double m_top = 0;
    qint64 m_llbottom = 0;
    qint64 m_lltop = 0;
    bool m_isSigned = true;
    int m_base = 10;
    int m_decimals = 0;
    QString m_specialText;
};

#pragma once

#include <QLineEdit>
#include <QStringList>

#include "SecretText.h"

/**
 * The line in which the numpad's keys write. Keyboard, clipboard and keypad all go through type().
 *
 * A secret is kept outside of the line edit: its text is dots, but while the secret is shown in
 * clear, and nothing of it can be copied. While shown, it is in the line edit's strings, which
 * nobody overwrites.
 */
class NumpadEntry : public QLineEdit
{
    Q_OBJECT

public:
    explicit NumpadEntry(bool isSecret, QWidget *parent = nullptr);

    /** Shows the value that is edited. What is typed first replaces it when @p replace is set. */
    void begin(const QString &value, bool replace);
    /**
     * Writes at the cursor, or over the selection. In a number spaces vanish, a comma becomes the
     * point and letters large; a lone "-" changes the sign, wherever the cursor is, and a lone "+"
     * takes it away.
     */
    void type(const QString &text);
    void toggleSign();
    void eraseBefore();
    void eraseAll();
    /** Like type() in place of everything; the cursor goes behind it. */
    void replaceAll(const QString &text);

    /** The text, or the secret. */
    QString entry() const;
    void setSecretShown(bool shown);

    /** Letters that mean a unit key instead of being written. */
    void setUnitPrefixes(const QStringList &prefixes) { m_unitPrefixes = prefixes; }

    /** What a key does here; false when it means nothing to the entry. */
    bool take(QKeyEvent *event);

Q_SIGNALS:
    void edited();
    void unitTyped(const QString &prefix);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    bool takeInSecret(QKeyEvent *event);
    bool takeText(const QString &text);
    void typeSecret(const QString &text);
    void eraseSecret(int at);
    void showSecret(int cursor);

    const bool m_isSecret;
    bool m_isSecretShown = false;
    SecretText m_secret;
    QStringList m_unitPrefixes;
};

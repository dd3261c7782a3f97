#pragma once

#include <QFrame>

class QLabel;
class QToolButton;

/** One line that says what has happened or went wrong, and offers to stop what is under way. */
class StatusStrip : public QFrame
{
    Q_OBJECT

public:
    explicit StatusStrip(QWidget *parent);

    QString text() const { return m_text; }
    void showMessage(const QString &text);
    void showError(const QString &text);
    /** Something is under way; the next message ends that. */
    void showBusy(const QString &text);

Q_SIGNALS:
    void cancelRequested();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void updateText();
    void show(const QString &text, bool isError, bool isBusy);
    void elide();

    QLabel *m_label;
    QToolButton *m_cancel;
    QString m_text;
};

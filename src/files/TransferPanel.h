#pragma once

#include <QFrame>

#include "FileTransfer.h"

class QLabel;
class QProgressBar;
class QToolButton;

/** How far a transfer is: the file, which one of how many, bytes, rate and time left. */
class TransferPanel : public QFrame
{
    Q_OBJECT

public:
    explicit TransferPanel(QWidget *parent);

    /** Begins anew; @p title says what is done. */
    void begin(const QString &title);
    void showProgress(const TransferProgress &progress);
    /** Says that the cancelling has been noted. */
    void showCancelling();

Q_SIGNALS:
    void cancelRequested();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void updateText();
    void elide();

    QLabel *m_file;
    QLabel *m_numbers;
    QProgressBar *m_bar;
    QToolButton *m_cancel;
    QString m_title;
    QString m_fileText;
};

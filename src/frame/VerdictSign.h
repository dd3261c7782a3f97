#pragma once

#include <QWidget>

#include "AppPassFail.h"

/** A verdict as a plate: told by its colour, its sign and its word. */
class VerdictSign : public QWidget
{
    Q_OBJECT

public:
    explicit VerdictSign(QWidget *parent);

    AppPassFail verdict() const { return m_verdict; }
    /** A value that is none of the enumeration's is no verdict. */
    void setVerdict(int verdict);
    /** What the verdict is on; part of the accessible name and, if given, of the text. */
    void setSubject(const QString &subject);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString text() const;
    void updateText();

    AppPassFail m_verdict = AppPassFail::None;
    QString m_subject;
};

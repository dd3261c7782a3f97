#pragma once

#include <QWidget>

/** A lamp with the word for its state beside it: filled and bright when on, a ring when off. */
class LampSign : public QWidget
{
    Q_OBJECT

public:
    explicit LampSign(QWidget *parent);

    bool isOn() const { return m_on; }
    void setOn(bool on);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString word() const;
    void updateText();

    bool m_on = false;
};

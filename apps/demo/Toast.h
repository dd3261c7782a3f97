#pragma once

#include <QLabel>
#include <QTimer>

/// A short message over the lower part of its parent, that goes by itself. What is
/// below it can be touched.
class Toast : public QLabel
{
    Q_OBJECT

public:
    explicit Toast(QWidget *parent);

    /// With a width or height of 0 it is as large as its text needs.
    void showText(const QString &text, int milliseconds, int width, int height);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QTimer m_timer;
};

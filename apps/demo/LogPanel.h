#pragma once

#include <QWidget>

class QLabel;

/// The application's log as it comes, and where its file is; for the frame's custom panel.
class LogPanel : public QWidget
{
    Q_OBJECT

public:
    explicit LogPanel(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QLabel *m_heading;
    QLabel *m_path;
};

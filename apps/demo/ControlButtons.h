#pragma once

#include <QWidget>

class QPushButton;

/// What the level meter adds to the mission control.
class ControlButtons : public QWidget
{
    Q_OBJECT

public:
    explicit ControlButtons(QWidget *parent = nullptr);

Q_SIGNALS:
    void logWanted();
    /// Whether each run that is over is to be saved without a question.
    void autoSaveWanted(bool on);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QPushButton *m_autoSave;
    QPushButton *m_log;
};

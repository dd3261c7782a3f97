#pragma once

#include <QVector>
#include <QWidget>

class QToolButton;

/** The buttons for what is done with files. One that finds no room is left out, Refresh first. */
class FileActionBar : public QWidget
{
    Q_OBJECT

public:
    enum Action { Refresh, NewFolder, Rename, Copy, Move, Paste, Delete, ActionCount };

    explicit FileActionBar(QWidget *parent);

    void setActionEnabled(Action action, bool enabled);
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void triggered(FileActionBar::Action action);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void updateText();

    QVector<QToolButton *> m_buttons;
};

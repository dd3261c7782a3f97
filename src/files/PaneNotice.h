#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

/** Stands in a pane's place where there is no list to show, and says why. */
class PaneNotice : public QFrame
{
    Q_OBJECT

public:
    explicit PaneNotice(QWidget *parent);

    /** @p buttonText may be empty: no button. */
    void setNotice(const QString &text, const QString &buttonText);

    /** Or else the whole dialog would get the height that the text wants for its width. */
    bool hasHeightForWidth() const override { return false; }

Q_SIGNALS:
    void buttonTapped();

private:
    QLabel *m_label;
    QPushButton *m_button;
};

#pragma once

#include <QWidget>

#include "ControllerLink.h"

class QLabel;
class QPushButton;

/// What there is to say about the link, and a button that does not wait for the next attempt.
class LinkPanel : public QWidget
{
    Q_OBJECT

public:
    static constexpr QSize panelSize {360, 200};

    /// @p link is not owned and must outlive the panel.
    explicit LinkPanel(ControllerLink &link, QWidget *parent = nullptr);

    /// One word or two for a state, and the theme's colour for it.
    static QString stateText(ControllerLink::State state);
    static QByteArray stateColour(ControllerLink::State state);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showState();

    ControllerLink &m_link;
    QLabel *m_state;
    QLabel *m_reason;
    QPushButton *m_retry;
};

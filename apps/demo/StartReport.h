#pragma once

#include <QObject>

class ControllerLink;
class QWidget;

/**
 * Tells whoever measures the start when it is over: writes "level-meter: shown" to standard output
 * when the window was painted for the first time after the link has come up and the controller's
 * tests are listed. Does nothing unless the environment has LEVEL_METER_REPORT.
 */
class StartReport : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this.
    StartReport(QWidget &window, const ControllerLink &link);

    bool eventFilter(QObject *watched, QEvent *event) override;
};

#pragma once

#include <QObject>

class ControllerLink;
class Meter;
class MeterWindow;

/**
 * Stands in for the framework around an application: does what the frame asks it for, as far as one
 * application alone can, and says so where it can't.
 */
class Framework : public QObject
{
    Q_OBJECT

public:
    /// None of them is owned; all must outlive this.
    Framework(MeterWindow &window, Meter &meter, ControllerLink &link);

    /// The window of the operating system is closed by its own means.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectRequests();
    /// Asks first when something would be lost, unless it is closed in any case.
    void shutDown(bool canCancel);
    void close();

    MeterWindow &m_window;
    Meter &m_meter;
    ControllerLink &m_link;
    bool m_isClosing = false;
};

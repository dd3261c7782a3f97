#include "Framework.h"

#include "ControllerLink.h"
#include "Meter.h"
#include "MeterWindow.h"
#include "ResultFiles.h"

#include <QCoreApplication>
#include <QEvent>

#include <dialogs/QvexMessageBox.h>

Framework::Framework(MeterWindow &window, Meter &meter, ControllerLink &link)
    : m_window(window)
    , m_meter(meter)
    , m_link(link)
{
    m_window.installEventFilter(this);
    connectRequests();
}

void Framework::connectRequests()
{
    connect(&m_window, &ClientGUIBase::requestFwShutdown, this, [this] { shutDown(true); });
    connect(&m_link, &ControllerLink::shutdownRequested, this, &Framework::shutDown);
    connect(&m_window, &ClientGUIBase::requestResultWindow, &m_window.files(),
            &ResultFiles::browse);
    connect(&m_window, &ClientGUIBase::requestFwRemoteLock, this, [](bool locked) {
        if (locked) {
            QvexDialog::cancellAllDialogBoxes();
        }
        QvexDialog::setRemoteLock(locked);
    });

    const auto standsAlone = [this] {
        Q_EMIT m_window.showToast(tr("The level meter runs alone: there is no other application."),
                                  2500, 0, 0);
    };
    connect(&m_window, &ClientGUIBase::requestLaunchWindow, this, standsAlone);
    connect(&m_window, &ClientGUIBase::requestAppSwitcher, this, standsAlone);
    connect(&m_window, &ClientGUIBase::requestFwMissionControl, this, standsAlone);
}

bool Framework::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Close && !m_isClosing) {
        event->ignore();
        // Not from within the event: the question runs a loop of its own.
        QMetaObject::invokeMethod(
            this, [this] { shutDown(true); }, Qt::QueuedConnection);
        return true;
    }
    return false;
}

void Framework::shutDown(bool canCancel)
{
    if (m_isClosing) {
        return;
    }
    const QString question = m_meter.isBusy()
        ? tr("A run is under way. Stop it and close?")
        : tr("The last result was not saved. Close all the same?");
    if (canCancel && m_window.hasUnsavedRun()
        && QvexMessageBox::question(&m_window, tr("Close the level meter"), question,
                                    QDialogButtonBox::Yes | QDialogButtonBox::No,
                                    QDialogButtonBox::No)
            != QDialogButtonBox::Yes) {
        m_window.ApplicationCloseCanceled();
        return;
    }
    m_isClosing = true;
    QvexDialog::cancellAllDialogBoxes();
    // The instrument's test is ended before the application is.
    if (m_meter.isBusy() && m_link.isUp()) {
        connect(&m_meter, &Meter::finished, this, &Framework::close);
        m_meter.stop();
    } else {
        close();
    }
}

void Framework::close()
{
    m_window.ApplicationClosed();
    m_window.close();
    QCoreApplication::quit();
}

#include <dialogs/QvexDialog.h>
#include <input/QvexPasswordPopup.h>

#include <QBoxLayout>

#include <utility>

#include "ClientGUIBase.h"
#include "ClientGUIBase_p.h"
#include "ColorTheme.h"
#include "FrameLogging.h"

bool ClientGUIBase::registerSplashPanelWidget(QWidget *widget)
{
    d->splash->layout()->addWidget(widget);
    d->splash->raise();
    return true;
}

bool ClientGUIBase::registerCustomPanelWidget(QWidget *widget)
{
    return d->custom->registerWidget(widget);
}

void ClientGUIBase::showCustomPanel()
{
    d->custom->showPanel();
}

void ClientGUIBase::hideCustomPanel()
{
    d->custom->hidePanel();
}

void ClientGUIBase::showHelpWindow(const QString &url)
{
    d->help->showHelpWindow(url);
}

void ClientGUIBase::hideHelpWindow()
{
    d->help->hideHelpWindow();
}

void ClientGUIBase::registerMiniMcWidget(QWidget *widget, int width, int height, int position)
{
    d->mini->registerWidget(widget, width, height, position);
    d->splash->raise();
}

void ClientGUIBase::showMiniMcPanels()
{
    d->mini->show();
}

void ClientGUIBase::hideMiniMcPanels()
{
    d->mini->hide();
}

void ClientGUIBase::showMiniMcPanel(QWidget *w, bool bExclusive)
{
    d->mini->showPanel(w, bExclusive);
}

void ClientGUIBase::hideMiniMcPanel(QWidget *w)
{
    d->mini->hidePanel(w);
}

void ClientGUIBase::setMiniMcExpandButtonText(QWidget *w, const QString &text)
{
    d->mini->setExpandButtonText(w, text);
}

void ClientGUIBase::setMiniMcExpandButtonIcon(QWidget *w, const QString &name)
{
    d->mini->setExpandButtonIcon(w, name);
}

void ClientGUIBase::setMiniMcExpandButtonSize(QWidget *w, QSize size)
{
    d->mini->setExpandButtonSize(w, size);
}

bool ClientGUIBase::registerMissionControlWidget(QWidget *widget)
{
    return d->missionControl->registerWidget(widget);
}

bool ClientGUIBase::registerMissionControlWidget(QWidget *widget, int row, int column)
{
    return d->missionControl->registerWidget(widget, row, column);
}

bool ClientGUIBase::registerMissionControlWidget(QWidget *widget, int row, int column, int rowSpan,
                                                 int columnSpan)
{
    return d->missionControl->registerWidget(widget, row, column, rowSpan, columnSpan);
}

void ClientGUIBase::setMissionControlWidth(AppMissionControlWidth width)
{
    d->missionControl->setPanelWidth(width);
}

bool ClientGUIBase::closeButtonEnabled() const
{
    return d->missionControl->closeButtonEnabled();
}

void ClientGUIBase::enableCloseButton(bool enabled)
{
    d->missionControl->enableCloseButton(enabled);
}

void ClientGUIBase::contractMisionControl()
{
    d->missionControl->contract();
}

void ClientGUIBase::setApplicationIcon(const QString &path, bool visible)
{
    d->missionControl->setApplicationIcon(path, visible);
}

void ClientGUIBase::setApplicationIconVisible(bool visible)
{
    d->missionControl->setApplicationIconVisible(visible);
}

void ClientGUIBase::fwMissionControlOpening(int height)
{
    d->missionControl->fwMissionControlOpening(height);
}

void ClientGUIBase::fwMissionControlClosing(int height)
{
    d->missionControl->fwMissionControlClosing(height);
}

/// The stack is locked as well: otherwise the end of a slide would enable it.
void ClientGUIBase::on_McExpanded()
{
    d->missionControl->raise();
    d->stack->setRemoteLocked(true);
    d->stack->setEnabled(false);
    d->back->setEnabled(false);
    d->next->setEnabled(false);
}

void ClientGUIBase::on_McContracted()
{
    d->stack->setRemoteLocked(false);
    d->stack->setEnabled(true);
    d->back->setEnabled(true);
    d->next->setEnabled(true);
}

void ClientGUIBase::on_RequestedFwMissionControl()
{
    Q_EMIT requestFwMissionControl();
}

void ClientGUIBase::on_RequestedCloseApplication()
{
    Q_EMIT requestFwShutdown(false);
}

void ClientGUIBase::on_ShowFwMissionControl() { }

void ClientGUIBase::on_HideFwMissionControl() { }

void ClientGUIBase::showDialog(QvexDialog *dialog)
{
    dialog->setParentApplication(this);
    dialog->show();
    dialog->raise();
}

QvexPasswordPopup *ClientGUIBase::QvexPasswordPopupInstance() const
{
    return d->popup;
}

void ClientGUIBase::on_ModProtectionChanged(bool isProtected)
{
    d->popup->setLocalPasswordLevel(isProtected ? 1 : 0);
}

void ClientGUIBase::on_ModPasswordChanged(const QString &password)
{
    d->popup->setLocalNormalPassword(password);
}

void ClientGUIBase::setColorTheme(const QStringList &colors)
{
    ColorTheme::fromColors(colors, ColorTheme::current()).apply();
}

void ClientGUIBase::setReportHandler(ReportHandler handler)
{
    d->reportHandler = std::move(handler);
}

void ClientGUIBase::createReport(QVector<QString> &resultTypes, QVector<int> &serverIds,
                                 bool basedOnResultTypes)
{
    if (!d->reportHandler) {
        qCWarning(lcFrame, "No report was made: this application has no report handler");
        return;
    }
    // A copy, so that the handler may replace itself.
    const ReportHandler handler = d->reportHandler;
    handler(resultTypes, serverIds, basedOnResultTypes);
}

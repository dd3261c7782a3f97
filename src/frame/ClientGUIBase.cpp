#include "ClientGUIBase.h"

#include <QEvent>
#include <QMouseEvent>

#include <input/QvexPasswordPopup.h>

#include <array>
#include <utility>

#include "ClientGUIBase_p.h"
#include "FrameLayout.h"
#include "FrameLogging.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int ResultWindow = 2;

/// What a window is called that was registered without a name of its own.
QString defaultName(qsizetype index)
{
    const std::array names {ClientGUIBase::tr("SETUP"), ClientGUIBase::tr("TEST"),
                            ClientGUIBase::tr("RESULT")};
    return size_t(index) < names.size() ? names[size_t(index)] : QString();
}

} // namespace

ClientGUIBase::ClientGUIBase(QVector<QString> &args)
    : d(std::make_unique<Private>(this))
{
    setObjectName(u"FwMainWindow"_s);
    d->readArguments(args);
    qCInfo(lcFrame).noquote().nospace() << "Client Base (" << d->id << ") Started";
    d->makeStack();
    d->slideUp = new SlideUpButton(this);
    d->slideUp->setObjectName(u"FwSlideUpButton"_s);
    connect(d->slideUp, &QAbstractButton::clicked, this, &ClientGUIBase::on_slideUp);
    d->makeLabelRow();
    d->makeNavigation();
    d->custom = new AppCustomWidget(this);
    connect(d->custom, &AppCustomWidget::customPanelShown, this, &ClientGUIBase::customPanelShown);
    d->mini = new AppMiniMissionControlWidget(this);
    d->help = new AppHelpWidget(this);
    d->help->hide();
    connect(d->help, &AppHelpWidget::helpPanelShown, this, &ClientGUIBase::helpPanelShown);
    d->makeApplicationLabels();
    d->missionControl = new AppMissionControlWidget(this);
    connectMissionControl();
    d->makeSplash();
    d->popup = QvexPasswordPopup::instance();
    d->popup->setParentApplication(this);
    connect(d->popup, &QvexPasswordPopup::disableModProtection, this,
            &ClientGUIBase::disableModProtection);
    UpdateText();
    resize(FrameLayout::screenSize);
    d->layOut();
    d->styleLabels();
}

ClientGUIBase::~ClientGUIBase()
{
    for (QObject *part :
         {static_cast<QObject *>(d->stack), static_cast<QObject *>(d->custom),
          static_cast<QObject *>(d->help), static_cast<QObject *>(d->missionControl),
          static_cast<QObject *>(d->popup.data())}) {
        if (part) {
            part->disconnect(this);
        }
    }
    disconnect(d->missionControl);
    qCInfo(lcFrame).noquote().nospace() << "Client Base (" << d->id << ") Finished";
}

/// What comes from the mission control, and what it shows of the application's reports.
void ClientGUIBase::connectMissionControl()
{
    using Panel = AppMissionControlWidget;
    const Panel *panel = d->missionControl;
    connect(panel, &Panel::requestCloseApplication, this,
            &ClientGUIBase::on_RequestedCloseApplication);
    connect(panel, &Panel::expanded, this, &ClientGUIBase::on_McExpanded);
    connect(panel, &Panel::contracted, this, &ClientGUIBase::on_McContracted);
    connect(panel, &Panel::requestFwMissionControl, this,
            &ClientGUIBase::on_RequestedFwMissionControl);

    connect(this, &ClientGUIBase::applicationPortSet, panel, &Panel::setApplicationPort);
    connect(this, &ClientGUIBase::applicationInfoSet, panel, &Panel::setApplicationInfo);
    connect(this, &ClientGUIBase::applicationProgressSet, panel, &Panel::setApplicationProgress);
    connect(this, &ClientGUIBase::applicationPassFailSet, panel, &Panel::setApplicationPassFail);
    connect(this, &ClientGUIBase::applicationSummarySet, panel, &Panel::setApplicationSummary);
    connect(this, &ClientGUIBase::applicationStatusSet, panel, &Panel::setApplicationStatus);
    connect(this, &ClientGUIBase::applicationIndicatorSet, panel, &Panel::setIndicator);
}

const QString &ClientGUIBase::applicationId() const
{
    return d->id;
}

QColor ClientGUIBase::applicationColor() const
{
    return d->color;
}

const ClientGUIBase::ScpiFileProperties &ClientGUIBase::scpiFileProperties() const
{
    return d->scpi;
}

void ClientGUIBase::setApplicationName(const QString &name)
{
    d->name = name;
    d->missionControl->setApplicationName(name);
    d->nameLabel->setText(name);
    d->nameLabel->setAccessibleName(name);
    d->nameLabel->setVisible(!name.isEmpty());
    d->placeLabels();
}

void ClientGUIBase::setRemoteLock(bool locked)
{
    if (d->remoteLocked == locked) {
        return;
    }
    d->remoteLocked = locked;
    if (locked) {
        d->missionControl->contract();
    }
    Q_EMIT requestFwRemoteLock(locked);
}

void ClientGUIBase::registerApplicationWindow(QWidget *window, const QString &name)
{
    if (!window || d->indexOf(window) >= 0) {
        qCWarning(lcFrame, "Only a new widget can be registered as an application window");
        return;
    }
    const int index = int(d->windows.size());
    d->addWindow(window, name.isEmpty() ? defaultName(index) : name, !name.isEmpty());
    if (index == 1) {
        d->back->setEnabled(true);
        d->next->setEnabled(true);
    }
    d->markLabel(d->markedWindow);
    d->placeLabels();
}

void ClientGUIBase::registerApplicationWindow(QWidget *window)
{
    registerApplicationWindow(window, QString());
}

void ClientGUIBase::registerApplicationWindows(const QList<QPair<QWidget *, QString>> &windows)
{
    for (const auto &[window, name] : windows) {
        registerApplicationWindow(window, name);
    }
}

void ClientGUIBase::setActiveApplicationWindow(QWidget *window)
{
    on_changeWindow(d->indexOf(window));
}

void ClientGUIBase::on_changeWindow(int index)
{
    if (index >= 0 && index < d->stack->count() && index != d->stack->currentIndex()) {
        d->stack->slideInIdx(index, SlidingStackedWidget::Automatic);
    }
}

void ClientGUIBase::on_windowChanged(int index)
{
    if (index < 0 || index >= Private::RoleCount) {
        return;
    }
    d->slideUp->setText(index == ResultWindow ? tr("Result File Browser")
                                              : tr("Application Selector"));
    d->markLabel(index);
}

void ClientGUIBase::on_labelClicked(int index)
{
    on_changeWindow(index);
}

void ClientGUIBase::on_appLabelClicked(int)
{
    Q_EMIT requestAppSwitcher();
}

void ClientGUIBase::on_slideBack()
{
    d->stack->slideInPrev();
}

void ClientGUIBase::on_slideNext()
{
    d->stack->slideInNext();
}

void ClientGUIBase::on_slideUp()
{
    if (d->stack->currentIndex() == ResultWindow) {
        Q_EMIT requestResultWindow();
    } else {
        Q_EMIT requestLaunchWindow();
    }
}

void ClientGUIBase::updateWinLabelText(int ind, const QString &text)
{
    if (ind < 0 || ind >= d->windows.size()) {
        return;
    }
    d->setLabelText(d->windows[ind], text);
    d->markLabel(d->markedWindow);
    d->placeLabels();
}

void ClientGUIBase::UpdateText()
{
    d->missionControl->updateText();
    d->help->updateText();
    d->launchLabel->setAccessibleName(tr("Applications"));
    const qsizetype count = qMin(d->windows.size(), qsizetype(Private::RoleCount));
    for (qsizetype i = 0; i < count; ++i) {
        if (!d->windows[i].hasOwnName) {
            d->setLabelText(d->windows[i], defaultName(i));
        }
    }
    on_windowChanged(d->markedWindow);
    d->placeLabels();
}

bool ClientGUIBase::event(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        updateText();
        UpdateText();
    } else if (event->type() == QEvent::LayoutDirectionChange) {
        d->layOut();
    }
    return QWidget::event(event);
}

void ClientGUIBase::changeEvent(QEvent *) { }

void ClientGUIBase::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
}

void ClientGUIBase::resizeEvent(QResizeEvent *)
{
    d->layOut();
    d->styleLabels();
}

/// The slide-up button is a thin one: the gap between it and the windows taps it, too.
void ClientGUIBase::mousePressEvent(QMouseEvent *event)
{
    d->isSlideUpPressed =
        event->button() == Qt::LeftButton && d->isGroundOfSlideUp(event->position().toPoint());
    event->setAccepted(d->isSlideUpPressed);
}

void ClientGUIBase::mouseReleaseEvent(QMouseEvent *event)
{
    if (std::exchange(d->isSlideUpPressed, false)
        && d->isGroundOfSlideUp(event->position().toPoint())) {
        d->slideUp->click();
    }
}

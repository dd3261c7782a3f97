#pragma once

#include <QColor>
#include <QList>
#include <QPair>
#include <QSize>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>

#include "AppMissionControlWidth.h"
#include "AppPassFail.h"
#include "VexExport.h"

class QvexDialog;
class QvexPasswordPopup;
struct MeasurementInfo;

/**
 * The main window of an instrument application, which derives its own from this class.
 *
 * Up to three windows of the application (setup, test, result) slide in it; around them are the
 * navigation buttons, the labels of the windows, the mission control and other panels. All of them
 * are child widgets, laid out by hand at any size from 800 x 480. The object name is
 * "FwMainWindow", by which dialogs find the window that they are drawn in.
 *
 * The frame talks to no controller. What the application reports and asks for leaves it as a
 * signal, for whoever owns the controller's link; what the framework has to say comes in through
 * the setters and slots. A setter that emits a signal does so on every call, unless said otherwise.
 *
 * @code
 * class Analyser : public ClientGUIBase
 * {
 * public:
 *     explicit Analyser(QVector<QString> &args)
 *         : ClientGUIBase(args)
 *     {
 *         registerApplicationWindow(new SetupWindow);
 *         registerApplicationWindow(new TestWindow);
 *     }
 * };
 * @endcode
 *
 * For the GUI thread only. Widgets that are registered belong to the frame from then on. Logging
 * category: "vex.frame", with the frame's beginning and end as information, which FwLog takes
 * unless it is told otherwise, and nobody else.
 */
class VEX_EXPORT ClientGUIBase : public QWidget
{
    Q_OBJECT

public:
    using ReportHandler = std::function<void(QVector<QString> &resultTypes, QVector<int> &serverIds,
                                             bool basedOnResultTypes)>;

    /**
     * Of @p args, the application's command line, "--appId=ID" and "--appColor=R,G,B" are read, the
     * last of each. The colour is the ground of the application's windows, (200, 200, 200) without
     * three numbers. The others are left to updateArgs(), which is not called from here.
     */
    explicit ClientGUIBase(QVector<QString> &args);
    ~ClientGUIBase() override;

    // What the application reports
    void setApplicationStatus(const QString &status);
    void setApplicationIndicator(bool on);
    void setApplicationProgress(long complete, long total);
    void setApplicationPassFail(AppPassFail state);
    void setApplicationSummary(AppPassFail state);
    /** @p state is the framework's. */
    void setGUIAccessState(int state);
    void Alert();
    void ApplicationClosed();
    void ApplicationCloseCanceled();

    // Who the application is; all are empty at first
    QString getApplicationName() const;
    /** Also the text of the label that leads to the application switcher, shown unless empty. */
    void setApplicationName(const QString &name);
    QString getApplicationPort() const;
    void setApplicationPort(const QString &port);
    QString getApplicationInfo() const;
    void setApplicationInfo(const QString &info);
    QString getApplicationSetupExt() const;
    void setApplicationSetupExt(const QString &extension);
    QString getApplicationResultExt() const;
    void setApplicationResultExt(const QString &extension);
    QString getApplicationDescriptorId() const;
    void setApplicationDescriptorId(const QString &id);
    /** The picture in the mission control; @p path is that of a file or resource. */
    void setApplicationIcon(const QString &path, bool visible);
    void setApplicationIconVisible(bool visible);

    // What the framework sets; 0 or false before it has
    int isAutoSave() const;
    void setAutoSave(int value);
    int getCsvDelimiter() const;
    void setCsvDelimiter(int value);
    int getPvtPeriod() const;
    void setPvtPeriod(int value);
    /** Kept by whoever hears of it, as is the unit id. */
    void setBuzzerVolume(int value);
    void updateMainframeUnitId(int value);
    QString getLanguage() const;
    void setLanguage(const QString &language);
    /** For the start, when nobody listens yet: emits nothing. */
    void initLanguage(const QString &language);
    QString getResultsHomeDir() const;
    void setResultsHomeDir(const QString &path);
    bool isShowConfirmations() const;
    void setShowConfirmations(bool show);
    /** -1 at first, as the server's. */
    int getClientId() const;
    void setClientId(int id);
    int getServerId() const;
    void setServerId(int id);
    bool isRemoteLocked() const;
    /** Locking shuts the mission control. Does nothing when the lock is as it should be. */
    void setRemoteLock(bool locked);
    /** Reads the properties 140 to 142 (PropertiesManager); scpiFileProperties() are theirs then.
     */
    void setScpiFileProperties();

    // The application's windows
    /**
     * Adds a window: the first is the setup, the second the test, the third the result window, and
     * each fills the frame but for its margins. With an empty @p name its label says so in the
     * user's language. A fourth one keeps its own size in the upper left corner; its label has
     * @p name, and is not shown without one. A null or known window is refused with a warning.
     */
    void registerApplicationWindow(QWidget *window, const QString &name);
    void registerApplicationWindow(QWidget *window);
    void registerApplicationWindows(const QList<QPair<QWidget *, QString>> &windows);
    /** Slides to a registered window. */
    void setActiveApplicationWindow(QWidget *window);

    // Panels
    /**
     * @return true; so do the next two. The splash panel covers the frame and is hidden until the
     * application shows it: it is the widget's parent.
     */
    bool registerSplashPanelWidget(QWidget *widget);
    bool registerCustomPanelWidget(QWidget *widget);
    /** See AppMiniMissionControlWidget::registerWidget(). */
    void registerMiniMcWidget(QWidget *widget, int width, int height, int position);
    /** See AppMissionControlWidget::registerWidget(). */
    bool registerMissionControlWidget(QWidget *widget);
    bool registerMissionControlWidget(QWidget *widget, int row, int column);
    bool registerMissionControlWidget(QWidget *widget, int row, int column, int rowSpan,
                                      int columnSpan);
    void setMissionControlWidth(AppMissionControlWidth width);
    bool closeButtonEnabled() const;
    void enableCloseButton(bool enabled);
    void contractMisionControl();
    /** Shows @p dialog in this frame, in front of the panels. It is not owned. */
    void showDialog(QvexDialog *dialog);
    QvexPasswordPopup *QvexPasswordPopupInstance() const;
    /** Who makes the reports that createReport() is asked for; null for nobody. */
    void setReportHandler(ReportHandler handler);

    // For the application to override; these do nothing
    virtual void updateArgs(QVector<QString> &args);
    virtual void executeAppCommand(const QString &command);
    /** @return Whether the file may be run; true. */
    virtual bool preprocessPythonFile();
    virtual void enableRemoteLogging(const QString &target);
    virtual void disableRemoteLogging();
    virtual void setOperationLogging(bool enabled);
    /** @p info is left as it is. */
    virtual void getMeasurementInfo(MeasurementInfo &info);
    /** The language has changed; called before the frame's own texts do. */
    virtual void updateText();

Q_SIGNALS:
    // Requests to the framework
    void requestLaunchWindow();
    void requestResultWindow();
    void requestAppSwitcher();
    void requestFwMissionControl();
    void showFwMissionControl();
    void hideFwMissionControl();
    void requestFwSetupScreen();
    void requestFwStatusMonitor();
    void requestFwShutdown(bool default_shutdown);
    void showStartUpScreen();
    void hideStartUpScreen();
    void updateStartUpScreen(QStringList list);
    void updateStartUpScreen(QString text, bool bError = false);

    void applicationPortSet(QString port);
    void applicationInfoSet(QString info);
    void applicationProgressSet(long complete, long total);
    /** These two carry an AppPassFail. */
    void applicationPassFailSet(int);
    void applicationSummarySet(int);
    void applicationStatusSet(QString);
    void applicationGUIAccessSet(int);
    void applicationIndicatorSet(bool);
    void alert();
    void applicationClosed();
    void applicationCloseCanceled();
    void disconnectCatched(int clientId);
    void customPanelShown(bool);
    void helpPanelShown(bool);
    /** The user has removed the password protection. */
    void disableModProtection();
    void autoSaveChanged(int value);
    void csvDelimiterChanged(int value);
    void pvtPeriodChanged(int value);
    void buzzerVolumeChanged(int value);
    void mainframeUnitIdChanged(int value);
    void languageChanged(QString language);
    void requestFwRemoteLock(bool locked);
    void requestFwEnableModuleSetup(bool enabled);
    void moduleInformationChanged();
    void loadFileToViewRequested(QString filename);
    void showToast(QString toast, int msec, int width, int height);

public Q_SLOTS:
    void showHelpWindow(const QString &url);
    void hideHelpWindow();
    void showCustomPanel();
    void hideCustomPanel();
    /** All of the small panels with their buttons, visible or not. */
    void showMiniMcPanels();
    void hideMiniMcPanels();
    /** With @p bExclusive the others slide out. */
    void showMiniMcPanel(QWidget *w, bool bExclusive = false);
    void hideMiniMcPanel(QWidget *w);
    void setMiniMcExpandButtonText(QWidget *w, const QString &text);
    void setMiniMcExpandButtonIcon(QWidget *w, const QString &name);
    void setMiniMcExpandButtonSize(QWidget *w, QSize size);
    /** Slides to the window @p index, unless it is there or there is none. */
    void on_changeWindow(int index);
    /** ColorTheme::fromColors(), over the colours of the moment, for the whole application. */
    void setColorTheme(const QStringList &colors);
    /** The framework's own panel covers the lowest @p height pixels, or does no longer. */
    void fwMissionControlOpening(int height);
    void fwMissionControlClosing(int height);
    /** Switches the protection by the password popup. */
    void on_ModProtectionChanged(bool isProtected);
    void on_ModPasswordChanged(const QString &password);
    /** Passes the request to the report handler; without one, a warning is all that comes of it. */
    void createReport(QVector<QString> &resultTypes, QVector<int> &serverIds,
                      bool basedOnResultTypes = true);
    void loadFileToView(const QString &filename);
    /** The label of the window @p ind, until the language changes if it was registered nameless. */
    void updateWinLabelText(int ind, const QString &text);
    /** For the application to override; does nothing. */
    virtual void requestRemoteUnlock();

private Q_SLOTS:
    void on_labelClicked(int index);
    void on_appLabelClicked(int index);
    void on_slideBack();
    void on_slideNext();
    void on_slideUp();
    void on_RequestedCloseApplication();
    void on_McExpanded();
    void on_McContracted();
    void on_RequestedFwMissionControl();
    void on_ShowFwMissionControl();
    void on_HideFwMissionControl();

protected Q_SLOTS:
    /** The window @p index has come up: marks its label, names what the slide-up button opens. */
    void on_windowChanged(int index);

protected:
    struct ScpiFileProperties
    {
        int first = 0; ///< property 140
        int second = 0; ///< property 142
        QString text; ///< property 141
    };

    const QString &applicationId() const;
    QColor applicationColor() const;
    const ScpiFileProperties &scpiFileProperties() const;

    /** Redoes the frame's own texts. */
    void UpdateText();

    bool event(QEvent *event) override;
    /** Does nothing, on purpose; the language is event()'s. */
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    struct Private;

    void connectMissionControl();

    const std::unique_ptr<Private> d;
};

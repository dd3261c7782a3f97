#pragma once

#include <QFrame>
#include <QHBoxLayout>
#include <QPointer>

#include "AppCustomWidget.h"
#include "AppHelpWidget.h"
#include "AppLabel.h"
#include "AppMiniMissionControlWidget.h"
#include "AppMissionControlWidget.h"
#include "ClientGUIBase.h"
#include "FwNavigationButton.h"
#include "SlideUpButton.h"
#include "SlidingStackedWidget.h"

/// The parts of the frame, and where they are.
struct ClientGUIBase::Private
{
    /// Windows with a place and a default name; more are merely kept.
    static constexpr int RoleCount = 3;

    /// One of the application's windows.
    struct Window
    {
        QFrame *wrapper; ///< the page
        QFrame *ground;
        QPointer<QWidget> content;
        AppLabel *label;
        AppLabel *currentLabel;
        bool hasOwnName;
    };

    explicit Private(ClientGUIBase *frame)
        : q(frame)
    {
    }

    void readArguments(const QVector<QString> &args);

    void makeStack();
    void makeLabelRow();
    void makeNavigation();
    void makeApplicationLabels();
    void makeSplash();

    void addWindow(QWidget *content, const QString &text, bool hasOwnName);
    AppLabel *makeWindowLabel(int index, const QString &objectName,
                              const QString &decoration) const;
    AppLabel *makeLabel(int index, const QString &objectName, QWidget *parent) const;
    void setLabelText(const Window &window, const QString &text) const;
    int indexOf(const QWidget *content) const;
    void markLabel(int current);

    void layOut();
    void place(QWidget *widget, const QRect &leftToRight) const;
    bool isGroundOfSlideUp(QPoint position) const;
    void placeWindows();
    void placeLabels();
    void styleLabels() const;

    ClientGUIBase *const q;
    SlidingStackedWidget *stack = nullptr;
    FwNavigationButton *back = nullptr;
    FwNavigationButton *next = nullptr;
    QColor color;
    QString id;
    ScpiFileProperties scpi;
    QFrame *bar = nullptr; ///< the ground of all labels, whatever the application's colour is
    QWidget *labelRow = nullptr;
    QHBoxLayout *rowLayout = nullptr;
    QVector<Window> windows;
    int markedWindow = 0; ///< whose label is underlined: the current one of the first three
    AppLabel *launchLabel = nullptr;
    AppLabel *nameLabel = nullptr;
    SlideUpButton *slideUp = nullptr;
    QFrame *splash = nullptr;
    AppCustomWidget *custom = nullptr;
    AppMiniMissionControlWidget *mini = nullptr;
    AppHelpWidget *help = nullptr;
    AppMissionControlWidget *missionControl = nullptr;
    QPointer<QvexPasswordPopup> popup;
    ReportHandler reportHandler;
    bool isSlideUpPressed = false; ///< a touch on the ground below the button

    int clientId = -1;
    int serverId = -1;
    int autoSave = 0;
    int csvDelimiter = 0;
    int pvtPeriod = 0;
    bool showConfirmations = false;
    bool remoteLocked = false;
    QString name;
    QString port;
    QString info;
    QString setupExt;
    QString resultExt;
    QString descriptorId;
    QString language;
    QString resultsHomeDir;
};

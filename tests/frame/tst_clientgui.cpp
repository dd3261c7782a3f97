#include <QAbstractButton>
#include <QLabel>
#include <QLoggingCategory>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTranslator>

#include <dialogs/QvexDialog.h>
#include <frame/AppLabel.h>
#include <frame/AppMissionControlWidget.h>
#include <frame/ClientGUIBase.h>
#include <frame/SlidePanel.h>
#include <frame/SlidingStackedWidget.h>
#include <input/QvexPasswordPopup.h>
#include <properties/PropertiesManager.h>

#include "Finger.h"
#include "GuardedTest.h"

using namespace Qt::StringLiterals;

namespace {

/// A frame with up to four windows, the first two without names; slides are over at once.
struct Frame : ClientGUIBase
{
    explicit Frame(int windowCount = 0, QVector<QString> args = {})
        : ClientGUIBase(args)
    {
        for (SlidePanel *panel : findChildren<SlidePanel *>()) {
            panel->setDuration(0);
        }
        stack->setSpeed(0);
        addWindows(windowCount);
    }

    void addWindows(int count)
    {
        const QStringList names {QString(), QString(), u"Outcome"_s, u"Extra"_s};
        while (windows.size() < count) {
            windows.append(new QWidget);
            registerApplicationWindow(windows.last(), names[windows.size() - 1]);
        }
    }
    void showAt(QSize size)
    {
        resize(size);
        show();
        QCoreApplication::processEvents();
    }
    template<typename Widget = QWidget>
    Widget *part(const char *name) const
    {
        return findChild<Widget *>(QLatin1StringView(name));
    }
    /// The texts of the visible window labels, with a star at the current one.
    QStringList labels() const
    {
        QStringList texts;
        for (const AppLabel *label : part("FwLabelRow")->findChildren<AppLabel *>()) {
            if (!label->isHidden()) {
                texts += label->text() + (label->objectName() == u"curWindLabel" ? u"*"_s : u""_s);
            }
        }
        return texts;
    }
    QString slideUpText() const { return part<QAbstractButton>("FwSlideUpButton")->text(); }
    QPoint middle(const QWidget *widget) const
    {
        return widget->mapTo(this, widget->rect().center());
    }
    AppMissionControlWidget *missionControl() const
    {
        return findChild<AppMissionControlWidget *>();
    }

    using ClientGUIBase::applicationColor;
    using ClientGUIBase::applicationId;
    using ClientGUIBase::scpiFileProperties;

    void updateText() override { textsBefore = labels(); }

    SlidingStackedWidget *stack = findChild<SlidingStackedWidget *>();
    QList<QPointer<QWidget>> windows;
    QStringList textsBefore; ///< what the hook of a new language has seen
};

/// A language in which everything is said in brackets.
class Brackets : public QTranslator
{
public:
    Brackets() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        const bool isOurs = qstrcmp(context, "ClientGUIBase") == 0;
        return isOurs ? u'[' + QString::fromUtf8(text) + u']' : QString();
    }
};

/// Signature and access, one a line, as in the class.
const char *const methods = R"(
signal requestLaunchWindow()
signal requestResultWindow()
signal requestAppSwitcher()
signal requestFwMissionControl()
signal showFwMissionControl()
signal hideFwMissionControl()
signal requestFwSetupScreen()
signal requestFwStatusMonitor()
signal requestFwShutdown(bool)
signal showStartUpScreen()
signal hideStartUpScreen()
signal updateStartUpScreen(QStringList)
signal updateStartUpScreen(QString,bool)
signal updateStartUpScreen(QString)
signal applicationPortSet(QString)
signal applicationInfoSet(QString)
signal applicationProgressSet(long,long)
signal applicationPassFailSet(int)
signal applicationSummarySet(int)
signal applicationStatusSet(QString)
signal applicationGUIAccessSet(int)
signal applicationIndicatorSet(bool)
signal alert()
signal applicationClosed()
signal applicationCloseCanceled()
signal disconnectCatched(int)
signal customPanelShown(bool)
signal helpPanelShown(bool)
signal disableModProtection()
signal autoSaveChanged(int)
signal csvDelimiterChanged(int)
signal pvtPeriodChanged(int)
signal buzzerVolumeChanged(int)
signal mainframeUnitIdChanged(int)
signal languageChanged(QString)
signal requestFwRemoteLock(bool)
signal requestFwEnableModuleSetup(bool)
signal moduleInformationChanged()
signal loadFileToViewRequested(QString)
signal showToast(QString,int,int,int)
public showHelpWindow(QString)
public hideHelpWindow()
public showCustomPanel()
public hideCustomPanel()
public showMiniMcPanels()
public hideMiniMcPanels()
public showMiniMcPanel(QWidget*,bool)
public showMiniMcPanel(QWidget*)
public hideMiniMcPanel(QWidget*)
public setMiniMcExpandButtonText(QWidget*,QString)
public setMiniMcExpandButtonIcon(QWidget*,QString)
public setMiniMcExpandButtonSize(QWidget*,QSize)
public on_changeWindow(int)
public setColorTheme(QStringList)
public fwMissionControlOpening(int)
public fwMissionControlClosing(int)
public on_ModProtectionChanged(bool)
public on_ModPasswordChanged(QString)
public createReport(QList<QString>&,QList<int>&,bool)
public createReport(QList<QString>&,QList<int>&)
public loadFileToView(QString)
public updateWinLabelText(int,QString)
public requestRemoteUnlock()
private on_labelClicked(int)
private on_appLabelClicked(int)
private on_slideBack()
private on_slideNext()
private on_slideUp()
private on_RequestedCloseApplication()
private on_McExpanded()
private on_McContracted()
private on_RequestedFwMissionControl()
private on_ShowFwMissionControl()
private on_HideFwMissionControl()
protected on_windowChanged(int)
)";

} // namespace

/** The application's main window. */
class TestClientGui : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void methodsStandInTheirOrder()
    {
        QByteArray found = "\n";
        const QMetaObject &meta = ClientGUIBase::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            const QMetaMethod method = meta.method(i);
            const bool isSignal = method.methodType() == QMetaMethod::Signal;
            const char *const access[] = {"private ", "protected ", "public "};
            found +=
                (isSignal ? "signal " : access[method.access()]) + method.methodSignature() + '\n';
        }
        QCOMPARE(QString::fromLatin1(found), QString::fromLatin1(methods));
    }

    void readsItsArguments_data()
    {
        QTest::addColumn<QVector<QString>>("args");
        QTest::addColumn<QString>("id");
        QTest::addColumn<QColor>("color");
        const auto row = [](const char *name, const QVector<QString> &args, const QString &id,
                            QColor color) { QTest::newRow(name) << args << id << color; };
        const QColor grey(200, 200, 200);
        row("none", {}, QString(), grey);
        row("both", {u"--appId=7"_s, u"--appColor=1,2,3"_s}, u"7"_s, QColor(1, 2, 3));
        row("the last holds", {u"--appId=7"_s, u"--appId=8"_s, u"--appId="_s}, QString(), grey);
        row("anywhere in a word", {u"x--appId=a b--appColor=9,9,9"_s}, u"a b--appColor=9,9,9"_s,
            QColor(9, 9, 9));
        row("two numbers", {u"--appColor=10,20"_s}, QString(), grey);
        row("four numbers", {u"--appColor=1,2,3,4"_s}, QString(), grey);
        row("empty part", {u"--appColor=10,,20,30"_s}, QString(), QColor(10, 20, 30));
        row("no number", {u"--appColor=10,x,30"_s}, QString(), QColor(10, 0, 30));
        row("too much", {u"--appColor=300,-5,30"_s}, QString(), QColor(255, 0, 30));
        row("another case", {u"--appid=7"_s, u"--APPCOLOR=1,2,3"_s}, QString(), grey);
    }

    void readsItsArguments()
    {
        QFETCH(const QVector<QString>, args);
        QFETCH(const QString, id);
        QFETCH(const QColor, color);
        QLoggingCategory::setFilterRules(u"vex.frame.info=true"_s);
        const QByteArray line = "Client Base (" + id.toUtf8() + ") ";
        QTest::ignoreMessage(QtInfoMsg, line + "Started");
        QTest::ignoreMessage(QtInfoMsg, line + "Finished");
        {
            const Frame frame(1, args);
            QCOMPARE(frame.applicationId(), id);
            QCOMPARE(frame.applicationColor(), color);
            QCOMPARE(frame.windows[0]->parentWidget()->grab().toImage().pixelColor(5, 5), color);
        }
        QLoggingCategory::setFilterRules(QString());
    }

    void layout_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("before"); // windows registered before the first show
        QTest::addColumn<int>("after");
        QTest::addColumn<bool>("mirrored");
        for (const QSize size : {QSize(800, 480), {1280, 800}, {3840, 2160}}) {
            for (const auto &[before, after] : {std::pair(0, 0), {1, 1}, {0, 2}, {3, 3}, {1, 4}}) {
                for (const bool mirrored : {false, true}) {
                    QTest::addRow("%d, %d then %d%s", size.width(), before, after,
                                  mirrored ? ", mirrored" : "")
                        << size << before << after << mirrored;
                }
            }
        }
    }

    void layout()
    {
        QFETCH(const QSize, size);
        QFETCH(const int, before);
        QFETCH(const int, after);
        QFETCH(const bool, mirrored);
        Frame frame(before);
        frame.setApplicationName(u"Optical Time Domain Reflectometer"_s);
        frame.showAt({1000, 700});
        frame.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        frame.addWindows(after);
        frame.showAt(size);

        const int w = size.width(), h = size.height();
        const auto flipped = [&](QRect rect) {
            return mirrored ? QRect(QPoint(w - 1 - rect.right(), rect.top()), rect.size()) : rect;
        };
        QCOMPARE(frame.stack->geometry(), QRect(0, 0, w, h));
        QCOMPARE(frame.part("FwSlideUpButton")->geometry(), QRect(w / 2 - 100, -7, 200, 40));
        QCOMPARE(frame.part("FwBackButton")->geometry(), flipped({0, h - 60, 50, 60}));
        QCOMPARE(frame.part("FwNextButton")->geometry(), flipped({w - 50, h - 60, 50, 60}));
        for (int i = 0; i < qMin(after, 3); ++i) {
            const int left = i == 0 ? 20 : 0;
            frame.setActiveApplicationWindow(frame.windows[i]);
            QCOMPARE(frame.windows[i]->geometry(), flipped({left, 50, w - 20 - left, h - 50 - 36}));
            QCOMPARE(frame.windows[i]->parentWidget()->geometry(), frame.rect());
            QCOMPARE(frame.windows[i]->parentWidget()->minimumSize(), size);
            checkSurroundings(frame, *frame.windows[i]);
        }
        QCOMPARE(frame.labels().size(), after);
    }

    void labelsFollowWindowAndLanguage()
    {
        Frame frame;
        frame.showAt({1280, 800});
        QVERIFY(!frame.part("FwNextButton")->isEnabled());
        QCOMPARE(frame.slideUpText(), u"Application Selector"_s);
        frame.addWindows(4);
        QVERIFY(frame.part("FwNextButton")->isEnabled());
        QCOMPARE(frame.labels(), (QStringList {u"SETUP*"_s, u"TEST"_s, u"Outcome"_s, u"Extra"_s}));
        frame.on_changeWindow(2);
        QCOMPARE(frame.slideUpText(), u"Result File Browser"_s);
        frame.updateWinLabelText(1, u"Run"_s);
        frame.updateWinLabelText(4, u"nobody's"_s);
        frame.updateWinLabelText(-1, u"nobody's"_s);
        const QStringList marked {u"SETUP"_s, u"Run"_s, u"Outcome*"_s, u"Extra"_s};
        QCOMPARE(frame.labels(), marked);
        frame.on_changeWindow(3);
        QCOMPARE(frame.stack->currentIndex(), 3);
        QCOMPARE(frame.labels(), marked);
        for (const int nowhere : {4, -1}) {
            frame.on_changeWindow(nowhere);
            QCOMPARE(frame.stack->currentIndex(), 3);
        }
        const Brackets brackets;
        QTRY_COMPARE(frame.labels(),
                     (QStringList {u"[SETUP]"_s, u"[TEST]"_s, u"Outcome*"_s, u"Extra"_s}));
        QCOMPARE(frame.textsBefore, marked);
        QCOMPARE(frame.slideUpText(), u"[Result File Browser]"_s);
    }

    void tapsLeadOn()
    {
        Frame frame(3);
        frame.setApplicationName(u"Analyser"_s);
        frame.showAt({800, 480});
        QSignalSpy launch(&frame, &ClientGUIBase::requestLaunchWindow);
        QSignalSpy result(&frame, &ClientGUIBase::requestResultWindow);
        QSignalSpy switcher(&frame, &ClientGUIBase::requestAppSwitcher);
        Finger finger(frame);
        const auto tapLabel = [&](const QString &text) {
            for (const AppLabel *label : frame.findChildren<AppLabel *>()) {
                if (label->isVisible() && label->text() == text) {
                    finger.tap(frame.middle(label));
                    return;
                }
            }
        };
        for (const auto &[text, index] : {std::pair("TEST", 1), {"Outcome", 2}, {"SETUP", 0}}) {
            tapLabel(QLatin1StringView(text));
            QCOMPARE(frame.stack->currentIndex(), index);
        }
        tapLabel(u"Analyser"_s);
        QCOMPARE(switcher.count(), 1);
        for (const char *button : {"FwBackButton", "FwSlideUpButton", "FwNextButton"}) {
            finger.tap(frame.middle(frame.part(button)));
        }
        QCOMPARE(frame.stack->currentIndex(), 0);
        finger.tap({400, 45}); // just below the slide-up button
        QCOMPARE(result.count(), 1);
        QCOMPARE(launch.count(), 1);
        finger.press({400, 45});
        finger.moveTo({400, 200});
        finger.lift();
        frame.addWindows(4);
        frame.on_changeWindow(3); // which reaches up there
        finger.tap({400, 45});
        QCOMPARE(launch.count(), 1);
    }

    void missionControlLocksWhatIsBehind()
    {
        Frame frame(2);
        frame.showAt({1280, 800});
        QSignalSpy lock(&frame, &ClientGUIBase::requestFwRemoteLock);
        const auto enabled = [&frame] {
            return QList {frame.stack->isEnabled(), frame.part("FwBackButton")->isEnabled(),
                          frame.part("FwNextButton")->isEnabled()};
        };
        frame.stack->setSpeed(100);
        frame.on_changeWindow(1);
        frame.missionControl()->expand();
        QCOMPARE(enabled(), QList({false, false, false}));
        QTRY_COMPARE(frame.stack->currentIndex(), 1); // the slide is over
        QCOMPARE(enabled(), QList({false, false, false}));
        frame.setRemoteLock(true);
        QVERIFY(!frame.missionControl()->isExpanded());
        QCOMPARE(enabled(), QList({true, true, true}));
        frame.setRemoteLock(true);
        frame.setRemoteLock(false);
        QCOMPARE(lock, (QList<QList<QVariant>> {{true}, {false}}));
        QVERIFY(!frame.isRemoteLocked());
    }

    void dialogsComeInFront()
    {
        Frame frame(1);
        frame.showAt({1280, 800});
        QvexDialog dialog;
        dialog.resize(300, 200);
        frame.showDialog(&dialog);
        frame.missionControl()->expand();
        frame.showCustomPanel();
        QVERIFY(!isInFront(frame, dialog));
        frame.showDialog(&dialog);
        QVERIFY(isInFront(frame, dialog));
    }

    void passwordAndReportsGoOn()
    {
        Frame frame;
        QSignalSpy removed(&frame, &ClientGUIBase::disableModProtection);
        QvexPasswordPopup *popup = frame.QvexPasswordPopupInstance();
        frame.on_ModProtectionChanged(true);
        popup->hysteresisRetrig();
        QVERIFY(popup->isInHysteresis());
        frame.on_ModProtectionChanged(false);
        QVERIFY(popup->testAndRemoveProtectionPopup(false, false));
        Q_EMIT popup->disableModProtection();
        QCOMPARE(removed.count(), 1);

        QVector<QString> types {u"csv"_s};
        QVector<int> servers {3};
        messages().allow(u"no report handler"_s);
        frame.createReport(types, servers);
        bool isByTypes = false;
        frame.setReportHandler([&](QVector<QString> &, QVector<int> &ids, bool basedOnTypes) {
            ids.append(4);
            isByTypes = basedOnTypes;
        });
        frame.createReport(types, servers);
        QVERIFY(isByTypes && servers.size() == 2);
    }

    void readsItsProperties()
    {
        PropertiesManager *properties = PropertiesManager::instance();
        properties->registerStatusProperty(140, u"a"_s, u"14"_s, 1);
        properties->registerStatusProperty(141, u"b"_s, u"name"_s, 1);
        properties->registerStatusProperty(142, u"c"_s, u"15"_s, 1);
        Frame frame;
        QCOMPARE(frame.scpiFileProperties().first, 0);
        frame.setScpiFileProperties();
        QCOMPARE(frame.scpiFileProperties().first, 14);
        QCOMPARE(frame.scpiFileProperties().second, 15);
        QCOMPARE(frame.scpiFileProperties().text, u"name"_s);
    }

private:
    static bool isInFront(const Frame &frame, const QWidget &widget)
    {
        const QWidget *front = frame.childAt(frame.middle(&widget));
        return front == &widget || widget.isAncestorOf(front);
    }

    /// Nothing lies over anything else or is cut, and what can be touched is large enough.
    void checkSurroundings(const Frame &frame, const QWidget &content)
    {
        QList<QWidget *> parts = frame.findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
        parts += frame.part("FwLabelRow")->findChildren<QWidget *>();
        QList<QRect> places;
        for (QWidget *part : parts) {
            const QRect place(part->mapTo(&frame, QPoint()), part->size());
            const auto *label = qobject_cast<AppLabel *>(part);
            if (!part->isVisible() || !(label || qobject_cast<QAbstractButton *>(part))) {
                continue;
            }
            QVERIFY2(!part->accessibleName().isEmpty()
                         || !part->property("text").toString().isEmpty(),
                     qPrintable(part->objectName()));
            QVERIFY(frame.rect().adjusted(0, -7, 0, 0).contains(place));
            QVERIFY(place.width() >= 48 && place.height() >= 40);
            for (const QRect &other : std::as_const(places)) {
                QVERIFY2(!other.intersects(place), qPrintable(part->objectName()));
            }
            places += place;
            if (label) {
                const QRect seen = label->contentsRect().translated(place.topLeft());
                QVERIFY(seen.top() > content.mapTo(&frame, content.rect().bottomLeft()).y());
                QCOMPARE_LE(label->fontMetrics().horizontalAdvance(label->text()), seen.width());
            }
        }
        QVERIFY(places.size() >= 3);
    }
};

QTEST_MAIN(TestClientGui)
#include "tst_clientgui.moc"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>

#include <climits>
#include <cmath>

#include <frame/AppCustomWidget.h>
#include <frame/AppHelpWidget.h>
#include <frame/AppMiniMissionControlWidget.h>
#include <frame/AppMissionControlWidget.h>
#include <frame/SplashLines.h>

#include "Finger.h"
#include "GuardedTest.h"

using namespace Qt::StringLiterals;

namespace {

/// A frame with its panels, over an application that is a button all over.
struct Frame : public QWidget
{
    Frame()
    {
        resize(1280, 800);
        show();
    }

    void resizeEvent(QResizeEvent *) override
    {
        application.setGeometry(rect());
        mission.layoutIn(rect().adjusted(0, 0, 0, -36));
        custom.layoutIn(rect());
        help.layoutIn(rect());
        mini.layoutIn(rect());
    }

    void setDuration(int milliseconds)
    {
        for (SlidePanel *panel : findChildren<SlidePanel *>()) {
            panel->setDuration(milliseconds);
        }
    }

    QWidget *named(const QString &name) const { return findChild<QWidget *>(name); }
    QRect grip() const { return named(u"McGrip"_s)->geometry(); }
    QVector<QWidget *> miniButtons() const
    {
        QVector<QWidget *> buttons = findChildren<QWidget *>(u"MiniMcButton"_s);
        std::sort(buttons.begin(), buttons.end(),
                  [](QWidget *one, QWidget *other) { return one->y() < other->y(); });
        return buttons;
    }

    QPushButton application {this};
    AppCustomWidget custom {this};
    AppMiniMissionControlWidget mini {this};
    AppHelpWidget help {this};
    AppMissionControlWidget mission {this};
    Finger finger {*this};
};

/// Longer than what makes a flick.
void rest()
{
    QTest::qWait(150);
}

double contrast(const QColor &one, const QColor &other)
{
    const auto luminance = [](const QColor &color) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
            + 0.0722 * linear(color.blueF()) + 0.05;
    };
    const double ratio = luminance(one) / luminance(other);
    return std::max(ratio, 1 / ratio);
}

} // namespace

class tst_panels : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void missionControlTellsTheEndOfEachSlideOnce();
    void missionControlFollowsTheFinger_data();
    void missionControlFollowsTheFinger();
    void touchBesideShutsMissionControl();
    void shutPanelsLeaveTheRestToTheApplication();
    void missionControlMakesRoomForTheFrameworks();
    void missionControlShowsProgress_data();
    void missionControlShowsProgress();
    void missionControlNamesVerdicts_data();
    void missionControlNamesVerdicts();
    void sidePanelIsPulledShut_data();
    void sidePanelIsPulledShut();
    void resizedDuringSlideEndsInPlace_data();
    void resizedDuringSlideEndsInPlace();
    void deletedDuringSlideLeavesNothing();
    void miniPanelsAreOrderedAndMakeRoom();
    void miniPanelsShutOthersForRoom();
    void miniPanelGoesWithItsContents();
    void hiddenUnderTheFingerGoesBack();
    void everyButtonIsLargeAndNamed();
    void splashMarksErrorsAndShowsTheLast();
};

void tst_panels::missionControlTellsTheEndOfEachSlideOnce()
{
    Frame frame;
    QSignalSpy expanded(&frame.mission, &AppMissionControlWidget::expanded);
    QSignalSpy contracted(&frame.mission, &AppMissionControlWidget::contracted);
    frame.setDuration(60);
    frame.mission.expand();
    frame.mission.expand();
    QVERIFY(frame.mission.isExpanded());
    QCOMPARE(expanded.count(), 0);
    QTRY_COMPARE(expanded.count(), 1);
    QCOMPARE(frame.mission.geometry().bottom(), 799);

    frame.mission.contract();
    QCOMPARE(contracted.count(), 0);
    QTRY_COMPARE(contracted.count(), 1);
    frame.setDuration(0);
    frame.mission.expand();
    frame.mission.contract();
    QCOMPARE(contracted.count(), 2);
    QVERIFY(!frame.mission.isVisible());
    QCOMPARE(frame.grip().bottom(), 799 - 36);
    QCOMPARE(expanded.count(), 2);
}

void tst_panels::missionControlFollowsTheFinger_data()
{
    QTest::addColumn<bool>("wasOpen");
    QTest::addColumn<double>("way"); // of the panel's height, upwards
    QTest::addColumn<bool>("rests");
    QTest::addColumn<bool>("isOpen");
    QTest::newRow("tap opens") << false << 0.0 << false << true;
    QTest::newRow("tap shuts") << true << 0.0 << false << false;
    QTest::newRow("past a third opens") << false << 0.4 << true << true;
    QTest::newRow("less goes back") << false << 0.25 << true << false;
    QTest::newRow("flick opens") << false << 0.25 << false << true;
    QTest::newRow("down past a third shuts") << true << -0.4 << true << false;
    QTest::newRow("down less stays") << true << -0.25 << true << true;
    QTest::newRow("flick down shuts") << true << -0.25 << false << false;
}

void tst_panels::missionControlFollowsTheFinger()
{
    QFETCH(const bool, wasOpen);
    QFETCH(const double, way);
    QFETCH(const bool, rests);
    Frame frame;
    frame.setDuration(0);
    if (wasOpen) {
        frame.mission.expand();
    }
    const QPoint from = frame.grip().center();
    const QPoint to = from - QPoint(0, qRound(way * frame.mission.height()));
    frame.finger.press(from);
    for (int step = 1; step <= 4 && way != 0; ++step) {
        frame.finger.moveTo(from + (to - from) * step / 4);
    }
    if (way != 0) {
        QVERIFY(frame.mission.isVisible());
        const double share = wasOpen ? 1 + way : way;
        QVERIFY(std::abs(800 - frame.mission.y() - share * frame.mission.height()) <= 2);
    }
    if (rests) {
        rest();
    }
    frame.finger.lift();
    QTEST(frame.mission.isExpanded(), "isOpen");
    QTEST(frame.mission.isVisible(), "isOpen");
}

void tst_panels::touchBesideShutsMissionControl()
{
    Frame frame;
    frame.setDuration(0);
    frame.mission.expand();
    frame.application.setEnabled(false);
    frame.finger.tap(frame.mission.geometry().center());
    QVERIFY(frame.mission.isExpanded());
    frame.finger.tap({640, 100});
    QVERIFY(!frame.mission.isExpanded());
}

void tst_panels::shutPanelsLeaveTheRestToTheApplication()
{
    Frame frame;
    frame.setDuration(0);
    QLabel contents;
    frame.mini.registerWidget(&contents, 200, 100, 0);
    frame.mission.expand();
    frame.mission.contract();
    frame.custom.showPanel();
    frame.custom.hidePanel();
    QSignalSpy clicked(&frame.application, &QPushButton::clicked);
    const QRect grip = frame.grip();
    const QRect button = frame.miniButtons().first()->geometry();
    const QVector<QPoint> places {{grip.left() - 2, grip.center().y()},
                                  {grip.right() + 2, grip.center().y()},
                                  {grip.center().x(), grip.top() - 2},
                                  {grip.center().x(), grip.bottom() + 2},
                                  {button.left() - 2, button.center().y()},
                                  {button.center().x(), button.bottom() + 2},
                                  {1270, 790}};
    for (const QPoint &place : places) {
        frame.finger.tap(place);
    }
    QCOMPARE(clicked.count(), places.size());
}

void tst_panels::missionControlMakesRoomForTheFrameworks()
{
    Frame frame;
    frame.setDuration(0);
    const QRect shut = frame.grip();
    frame.mission.expand();
    const QRect open = frame.mission.geometry();
    frame.mission.fwMissionControlOpening(120);
    QCOMPARE(frame.mission.geometry(), open.translated(0, -120));
    frame.mission.contract();
    QCOMPARE(frame.grip(), shut.translated(0, -120));
    frame.mission.fwMissionControlClosing(120);
    QCOMPARE(frame.grip(), shut);
    frame.mission.expand();
    QCOMPARE(frame.mission.geometry(), open);
}

void tst_panels::missionControlShowsProgress_data()
{
    QTest::addColumn<long>("complete");
    QTest::addColumn<long>("total");
    QTest::addColumn<int>("percent"); // -1 for no bar
    QTest::newRow("none") << 0L << 0L << -1;
    QTest::newRow("negative total") << 5L << -1L << -1;
    QTest::newRow("third") << 1L << 3L << 33;
    QTest::newRow("nearly done is not done") << 999L << 1000L << 99;
    QTest::newRow("more than all") << 7L << 5L << 100;
    QTest::newRow("less than nothing") << -7L << 5L << 0;
    QTest::newRow("large") << LONG_MAX / 2 << LONG_MAX << 50;
}

void tst_panels::missionControlShowsProgress()
{
    QFETCH(const int, percent);
    QFETCH(const long, complete);
    QFETCH(const long, total);
    Frame frame;
    frame.mission.setApplicationProgress(1, 2);
    frame.mission.setApplicationProgress(complete, total);
    const auto *bar = frame.findChild<QProgressBar *>();
    QCOMPARE(bar->isVisibleTo(&frame.mission), percent >= 0);
    QCOMPARE(percent < 0 ? -1 : bar->value(), percent);
}

void tst_panels::missionControlNamesVerdicts_data()
{
    QTest::addColumn<int>("verdict");
    QTest::addColumn<QString>("name");
    QTest::newRow("none") << 0 << u"No result"_s;
    QTest::newRow("pass") << 1 << u"Pass"_s;
    QTest::newRow("fail") << 2 << u"Fail"_s;
    QTest::newRow("summary") << 3 << u"See results"_s;
    QTest::newRow("unknown") << 4 << u"No result"_s;
}

void tst_panels::missionControlNamesVerdicts()
{
    QFETCH(const int, verdict);
    Frame frame;
    frame.mission.setApplicationPassFail(1);
    frame.mission.setApplicationPassFail(verdict);
    QTEST(frame.named(u"McPassFail"_s)->accessibleName(), "name");
    frame.mission.setApplicationSummary(verdict);
    const QWidget *summary = frame.named(u"McSummary"_s);
    QCOMPARE(summary->isVisibleTo(&frame.mission), verdict > 0 && verdict < 4);
}

void tst_panels::sidePanelIsPulledShut_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("way"); // towards the trailing edge
    QTest::addColumn<bool>("isShown");
    QTest::newRow("pulled") << Qt::LeftToRight << 500 << false;
    QTest::newRow("not far enough") << Qt::LeftToRight << 300 << true;
    QTest::newRow("mirrored") << Qt::RightToLeft << 500 << false;
    QTest::newRow("tapped") << Qt::LeftToRight << 0 << false;
}

void tst_panels::sidePanelIsPulledShut()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const int, way);
    QFETCH(const bool, isShown);
    Frame frame;
    frame.setLayoutDirection(direction);
    frame.setDuration(0);
    QSignalSpy shown(&frame.custom, &AppCustomWidget::customPanelShown);
    frame.custom.showPanel();
    QCOMPARE(frame.custom.geometry(), frame.rect());
    const auto *handle = frame.custom.findChild<QWidget *>(u"PanelHandle"_s);
    const QPoint from = handle->mapTo(&frame, handle->rect().center());
    frame.finger.press(from);
    if (way > 0) {
        const int along = direction == Qt::RightToLeft ? -way : way;
        frame.finger.moveTo(from + QPoint(along / 2, 0));
        frame.finger.moveTo(from + QPoint(along, 0));
        QCOMPARE(frame.custom.x(), along);
        rest();
    }
    frame.finger.lift();
    QCOMPARE(frame.custom.isVisible(), isShown);
    QCOMPARE(shown.count(), isShown ? 1 : 2);
    QCOMPARE(shown.last().first().toBool(), isShown);
}

void tst_panels::resizedDuringSlideEndsInPlace_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_panels::resizedDuringSlideEndsInPlace()
{
    QFETCH(const Qt::LayoutDirection, direction);
    Frame frame;
    frame.setLayoutDirection(direction);
    QLabel contents;
    frame.mini.registerWidget(&contents, 200, 100, 0);
    frame.setDuration(100);
    frame.mission.expand();
    frame.help.showHelpWindow(u":/images"_s);
    frame.mini.showPanel(&contents);
    QTRY_VERIFY(frame.mission.isMoving() && frame.mission.y() < 800);
    frame.resize(1000, 600);
    QTRY_VERIFY(!frame.mission.isMoving() && !frame.help.isMoving());
    QCOMPARE(frame.mission.geometry().bottom(), 599);
    QVERIFY(std::abs(frame.mission.geometry().center().x() - 500) <= 1);
    QCOMPARE(frame.help.geometry(), frame.rect());
    const QWidget *panel = contents.parentWidget();
    const int left = direction == Qt::LeftToRight ? 800 : 0;
    QTRY_COMPARE(panel->geometry().adjusted(0, 0, 0, -panel->height()),
                 QRect(left, panel->y(), 200, 0));
}

void tst_panels::deletedDuringSlideLeavesNothing()
{
    QWidget parent;
    parent.show();
    auto mission = std::make_unique<AppMissionControlWidget>(&parent);
    auto mini = std::make_unique<AppMiniMissionControlWidget>(&parent);
    auto *contents = new QLabel(&parent);
    mini->registerWidget(contents, 100, 100, 0);
    mission->expand();
    mini->showPanel(contents);
    QTRY_VERIFY(mission->isMoving() && contents->isVisible());
    mission.reset();
    mini.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(parent.children().size(), 0);

    // With the parent, while a panel is above its siblings.
    auto frame = std::make_unique<Frame>();
    frame->mini.registerWidget(new QLabel, 100, 100, 0);
    frame->custom.showPanel();
    frame.reset();
}

void tst_panels::miniPanelsAreOrderedAndMakeRoom()
{
    Frame frame;
    frame.mini.setDuration(0);
    QLabel lower;
    QLabel upper;
    frame.mini.registerWidget(&lower, 300, 200, 2);
    frame.mini.registerWidget(&upper, 300, 200, 1);
    frame.mini.setExpandButtonText(&upper, u"Upper"_s);
    frame.mini.setExpandButtonText(&lower, u"Lower"_s);
    const int before = frame.miniButtons().last()->y();
    frame.mini.showPanel(&upper);
    QCOMPARE(upper.parentWidget()->geometry().right(), 1279);
    QCOMPARE(frame.miniButtons().first()->geometry().right() + 1, 1280 - 300);
    QCOMPARE(frame.miniButtons().last()->y(), before + 200 - 48);

    frame.finger.tap(frame.miniButtons().last()->geometry().center());
    QVERIFY(frame.mini.isPanelShown(&upper) && frame.mini.isPanelShown(&lower));
    QVERIFY(lower.parentWidget()->y() >= upper.parentWidget()->geometry().bottom());
    frame.mini.hidePanel(&lower);
    frame.mini.showPanel(&lower, true);
    QVERIFY(!frame.mini.isPanelShown(&upper) && frame.mini.isPanelShown(&lower));

    frame.setDuration(0);
    frame.custom.showPanel();
    frame.mini.hidePanel(&lower);
    frame.mini.showPanel(&lower);
    QVERIFY(frame.custom.isAncestorOf(frame.childAt(lower.mapTo(&frame, QPoint(50, 100)))));
    frame.custom.hidePanel();

    frame.mini.hide();
    QVERIFY(!lower.isVisible() && !frame.miniButtons().first()->isVisible());
    frame.mini.showPanel(&upper);
    QVERIFY(!upper.isVisible());
    frame.mini.show();
    QVERIFY(lower.isVisible() && upper.isVisible() && frame.miniButtons().last()->isVisible());
}

void tst_panels::miniPanelsShutOthersForRoom()
{
    Frame frame;
    frame.mini.setDuration(0);
    QLabel contents[3];
    for (QLabel &label : contents) {
        frame.mini.registerWidget(&label, 300, 320, 0);
        frame.mini.showPanel(&label);
    }
    QVERIFY(!frame.mini.isPanelShown(&contents[0]));
    QVERIFY(frame.mini.isPanelShown(&contents[1]) && frame.mini.isPanelShown(&contents[2]));
}

void tst_panels::miniPanelGoesWithItsContents()
{
    Frame frame;
    auto contents = std::make_unique<QLabel>();
    frame.mini.registerWidget(contents.get(), 300, 200, 0);
    contents.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(frame.miniButtons().size(), 0);
}

void tst_panels::hiddenUnderTheFingerGoesBack()
{
    Frame frame;
    QLabel contents;
    frame.mini.registerWidget(&contents, 200, 100, 0);
    frame.setDuration(0);
    const QPoint from = frame.miniButtons().first()->geometry().center();
    frame.finger.press(from);
    frame.finger.moveTo(from - QPoint(50, 0));
    frame.finger.moveTo(from - QPoint(150, 0));
    QVERIFY(contents.isVisible());
    frame.mini.hide();
    frame.finger.lift();
    frame.mini.show();
    QVERIFY(!contents.isVisible());
    QCOMPARE(frame.miniButtons().first()->geometry().center(), from);
}

void tst_panels::everyButtonIsLargeAndNamed()
{
    Frame frame;
    frame.setDuration(0);
    QLabel contents;
    frame.mini.registerWidget(&contents, 300, 200, 0);
    frame.mini.setExpandButtonSize(&contents, {10, 10});
    frame.application.setAccessibleName(u"application"_s);
    frame.custom.showPanel();
    frame.help.showHelpWindow(u":/images"_s);
    frame.mission.expand();
    const auto buttons = frame.findChildren<QAbstractButton *>();
    QVERIFY(buttons.size() >= 9);
    for (QAbstractButton *button : buttons) {
        const QByteArray name = button->objectName().toUtf8();
        QVERIFY2(button->width() >= 48 && button->height() >= 48, name);
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(button);
        QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), name);
        QCOMPARE(accessible->role(), QAccessible::PushButton);
    }
}

void tst_panels::splashMarksErrorsAndShowsTheLast()
{
    SplashLines lines;
    lines.resize(300, 100);
    lines.show();
    lines.addLine(u"It is broken"_s, true);
    const auto ink = [&lines](int number) {
        const QTextBlock block = lines.document()->findBlockByNumber(number);
        return block.begin().fragment().charFormat().foreground().color();
    };
    for (const QColor &ground : {QColor(Qt::white), QColor(0x20, 0x24, 0x28)}) {
        lines.setPalette(QPalette(Qt::gray, ground));
        QVERIFY(contrast(ink(0), lines.palette().color(QPalette::Base)) >= 4.5);
    }
    for (int i = 0; i < 30; ++i) {
        lines.addLines({QString::number(i)});
    }
    QVERIFY(ink(0) != ink(1));
    QVERIFY(lines.toPlainText().startsWith(u"\u2716 It is broken\n0\n"_s));
    QCOMPARE(lines.verticalScrollBar()->value(), lines.verticalScrollBar()->maximum());
}

QTEST_MAIN(tst_panels)
#include "tst_panels.moc"

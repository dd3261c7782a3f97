#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include <frame/DelayClickButton.h>
#include <frame/DoubleClickButton.h>
#include <frame/ElidedButtonStyle.h>
#include <frame/ElidedLabelStyle.h>
#include <frame/MyMenuStyle.h>
#include <frame/RoundedRect.h>
#include <frame/TripleActionButton.h>

#include "Finger.h"
#include "GuardedTest.h"
#include "Poll.h"

using namespace Qt::StringLiterals;

namespace {

/// A button in a window, what it reports, and a finger on it.
class Bench
{
public:
    explicit Bench(const QString &className)
    {
        m_window.resize(400, 400);
        if (className == "Triple"_L1) {
            watch(new TripleActionButton(&m_window));
        } else if (className == "Delay"_L1) {
            watch(new DelayClickButton(&m_window));
        } else {
            watch(new DoubleClickButton(&m_window));
        }
        m_window.show();
        m_finger.tap({390, 390}); // so that no press makes a double click with what was before
    }

    QString reports() const { return m_reports.join(u' '); }
    QPointer<GestureButton> button() const { return m_button; }
    QPoint reportedPlace() const { return m_reportedPlace; }
    /// Carried out when the button reports this for the first time.
    void onReport(const QString &report, const std::function<void()> &action)
    {
        m_awaited = report;
        m_action = action;
    }

    bool isAtRest() const
    {
        const auto timers = m_button ? m_button->findChildren<QTimer *>() : QList<QTimer *>();
        return std::none_of(timers.begin(), timers.end(), std::mem_fn(&QTimer::isActive));
    }
    /// The finger is lifted while it is open.
    void openDialog()
    {
        QDialog dialog(&m_window);
        QTimer::singleShot(0, &dialog, [&] { m_finger.lift(), dialog.accept(); });
        dialog.exec();
    }
    void sendRightClick()
    {
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, {9, 9}, m_button->mapToGlobal(QPointF(9, 9)), Qt::RightButton,
                              {}, {});
            QApplication::sendEvent(m_button, &event);
        }
    }
    void act(const QString &verbs)
    {
        const QPoint center = m_place.center();
        const QHash<QString, std::function<void()>> actions {
            {u"down"_s, [&] { m_finger.press(center); }},
            {u"down-apart"_s, [&] { m_finger.press(m_place.topLeft() + QPoint(5, 5)); }},
            {u"up"_s, [&] { m_finger.lift(); }},
            {u"move"_s, [&] { m_finger.moveTo(center + QPoint(4, 4)); }},
            {u"leave"_s, [&] { m_finger.moveTo(QPoint(390, 200)); }},
            {u"wait"_s, [&] { QVERIFY(pollUntil([this] { return isAtRest(); })); }},
            {u"hide"_s, [&] { m_button->hide(); }},
            {u"hide-window"_s, [&] { m_window.hide(); }},
            {u"show"_s, [&] { m_window.show(), m_button->show(); }},
            {u"disable"_s, [&] { m_button->setEnabled(false); }},
            {u"enable"_s, [&] { m_button->setEnabled(true); }},
            {u"dialog"_s, [&] { openDialog(); }},
            {u"second-finger"_s, [&] { m_finger.tapWithAnother(center + QPoint(30, 0)); }},
            {u"right-click"_s, [&] { sendRightClick(); }},
        };
        for (const QString &verb : verbs.split(u' ')) {
            actions.value(verb)();
        }
    }

private:
    template<typename Button>
    void watch(Button *button)
    {
        m_button = button;
        button->setGeometry(m_place);
        QObject::connect(button, &Button::mouseSingleClicked, &m_window,
                         [this](QPoint place) { m_reportedPlace = place; });
        note(button, &Button::mouseSingleClicked, u"single"_s);
        note(button, &Button::clicked, u"clicked"_s);
        if constexpr (requires { &Button::mouseDelayClicked; }) {
            note(button, &Button::mouseDelayClicked, u"delay"_s);
        }
        if constexpr (requires { &Button::mouseDoubleClicked; }) {
            note(button, &Button::mouseDoubleClicked, u"double"_s);
        }
    }
    template<typename Button, typename Signal>
    void note(Button *button, Signal signal, const QString &report)
    {
        QObject::connect(button, signal, &m_window, [this, report] {
            m_reports.append(report);
            if (report == m_awaited) {
                m_awaited.clear();
                m_action();
            }
        });
    }

    QWidget m_window;
    const QRect m_place {20, 20, 200, 100};
    QPointer<GestureButton> m_button;
    Finger m_finger {m_window};
    QStringList m_reports;
    QPoint m_reportedPlace;
    QString m_awaited;
    std::function<void()> m_action;
};

/// Notes what reaches the style below another one.
class NotingStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                      bool enabled, const QString &text, QPalette::ColorRole role) const override
    {
        drawn = text;
        room = rect;
        width = painter->fontMetrics().size(Qt::TextShowMnemonic, text).width();
        QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
    }

    mutable QString drawn;
    mutable QRect room;
    mutable int width = 0;
};

} // namespace

/** What the buttons report of fingers, and what the styles draw. */
class TestButtons : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void reportsEachGestureOnce_data();
    void reportsEachGestureOnce();
    void tapWaitsForASecondOne();
    void slotMayDeleteTheButtonOrOpenADialog_data();
    void slotMayDeleteTheButtonOrOpenADialog();
    void textsAreCutToTheirRoom_data();
    void textsAreCutToTheirRoom();
    void wholeTextIsTheToolTip();
    void stylesLeaveTheApplicationsAlone();
    void roundsCorners();
};

void TestButtons::reportsEachGestureOnce_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("verbs");
    QTest::addColumn<QString>("reports");
    const auto rows = [](const char *name, const QString &verbs, const QString &triple,
                         const QString &delay, const QString &twice) {
        QTest::addRow("%s, triple", name) << u"Triple"_s << verbs << triple;
        QTest::addRow("%s, delay", name) << u"Delay"_s << verbs << delay;
        QTest::addRow("%s, double", name) << u"Double"_s << verbs << twice;
    };
    const QString both = u"clicked double clicked"_s;
    const QString late = u"clicked single"_s;
    const QString atOnce = u"single clicked"_s;
    const QString two = u"single clicked single clicked"_s;
    rows("tap", u"down up"_s, late, atOnce, late);
    rows("long press", u"down wait move up"_s, u"delay"_s, u"delay"_s, atOnce);
    rows("double tap", u"down up down up"_s, both, two, both);
    rows("second tap held", u"down up down wait up"_s, both, atOnce + u" delay"_s, both);
    rows("two taps apart", u"down up down-apart up"_s, late + u' ' + late, two, late + u' ' + late);
    rows("tap after long press", u"down wait up down up"_s, u"delay clicked single"_s,
         u"delay single clicked"_s, u"single clicked clicked single"_s);
    rows("tap after sliding off", u"down leave up down up"_s, late, atOnce, late);
    rows("slides off and back", u"down leave move up"_s, {}, {}, {});
    rows("hidden while held", u"down hide show move up"_s, {}, {}, {});
    rows("window hidden while held", u"down hide-window show move up"_s, {}, {}, {});
    rows("disabled while held", u"down disable enable move up"_s, {}, {}, {});
    rows("dialog while held", u"down dialog"_s, {}, {}, {});
    rows("second finger", u"down second-finger up"_s, late, atOnce, late);
    rows("other button of a mouse", u"right-click"_s, {}, {}, {});
}

void TestButtons::reportsEachGestureOnce()
{
    QFETCH(const QString, className);
    QFETCH(const QString, verbs);
    Bench bench(className);
    bench.act(verbs + u" wait"_s);
    QTEST(bench.reports(), "reports");
    QVERIFY(!bench.button()->isDown());
}

void TestButtons::tapWaitsForASecondOne()
{
    for (const QString &className : {u"Triple"_s, u"Double"_s}) {
        Bench bench(className);
        QElapsedTimer clock;
        clock.start();
        bench.act(u"down up wait"_s);
        QCOMPARE_GE(clock.elapsed(),
                    QApplication::doubleClickInterval() + (className == "Triple"_L1 ? 10 : 50));
        QCOMPARE(bench.reportedPlace(), bench.button()->rect().center());
    }
}

void TestButtons::slotMayDeleteTheButtonOrOpenADialog_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("verbs");
    QTest::addColumn<QString>("report");
    QTest::newRow("single, triple") << u"Triple"_s << u"down up down-apart"_s << u"single"_s;
    QTest::newRow("double, triple") << u"Triple"_s << u"down up down"_s << u"double"_s;
    QTest::newRow("delay, triple") << u"Triple"_s << u"down wait"_s << u"delay"_s;
    QTest::newRow("single, delay") << u"Delay"_s << u"down up"_s << u"single"_s;
    QTest::newRow("double, double") << u"Double"_s << u"down up down"_s << u"double"_s;
}

void TestButtons::slotMayDeleteTheButtonOrOpenADialog()
{
    QFETCH(const QString, className);
    QFETCH(const QString, verbs);
    QFETCH(const QString, report);
    for (const bool deletes : {true, false}) {
        Bench bench(className);
        bench.onReport(report, [&] { deletes ? delete bench.button() : bench.openDialog(); });
        bench.act(verbs);
        QVERIFY(bench.reports().contains(report));
        QCOMPARE(bench.button().isNull(), deletes);
        QVERIFY(deletes || (!bench.button()->isDown() && bench.isAtRest()));
        if (deletes && !verbs.endsWith("up"_L1)) {
            bench.act(u"up"_s);
        }
    }
}

void TestButtons::textsAreCutToTheirRoom_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<bool>("isButton");
    QTest::addColumn<bool>("hasIcon");
    for (const QString &base : {u"Fusion"_s, u"Windows"_s}) {
        QTest::addRow("button, %s", qPrintable(base)) << base << true << false;
        QTest::addRow("button with icon, %s", qPrintable(base)) << base << true << true;
        QTest::addRow("label, %s", qPrintable(base)) << base << false << false;
    }
}

void TestButtons::textsAreCutToTheirRoom()
{
    QFETCH(const QString, base);
    QFETCH(const bool, isButton);
    QFETCH(const bool, hasIcon);
    const QString text = u"&Fish && &chips && peas && &beer"_s;
    auto *below = new NotingStyle(base);
    ElidedButtonStyle buttonStyle(isButton ? below : nullptr);
    ElidedLabelStyle labelStyle(isButton ? nullptr : below);
    QPushButton button(QIcon(hasIcon ? QPixmap(16, 16) : QPixmap()), text);
    QLabel label(text);
    label.setBuddy(&button); // without one an "&" is plain text
    button.setStyle(&buttonStyle);
    label.setStyle(&labelStyle);
    QWidget &widget = isButton ? static_cast<QWidget &>(button) : label;
    int cut = 0;
    for (int width = 60; width < 400; width += 3) {
        widget.resize(width, 40);
        widget.grab();
        QVERIFY(widget.rect().contains(below->room));
        QCOMPARE_LE(below->width, below->room.width());
        const QString unpaired = QString(below->drawn).remove(QRegularExpression(u"&[^…]"_s));
        QVERIFY2(!unpaired.contains(u'&'), qPrintable(below->drawn));
        QVERIFY(below->drawn == text || below->drawn.endsWith(isButton ? u'…' : u'r'));
        cut += below->drawn != text ? 1 : 0;
    }
    QVERIFY(cut > 20);
    QCOMPARE(below->drawn, text);
}

void TestButtons::wholeTextIsTheToolTip()
{
    messages().allow(u"does not support raise"_s);
    ElidedButtonStyle style;
    QPushButton button(u"Save && continue with the &next measurement"_s);
    button.setStyle(&style);
    button.ensurePolished();
    const auto tipAt = [&button](int width) {
        button.resize(width, 40);
        QHelpEvent event(QEvent::ToolTip, {}, button.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&button, &event);
        return event.isAccepted() ? QToolTip::text() : QString();
    };
    QCOMPARE(tipAt(100), u"Save &amp; continue with the next measurement"_s);
    QCOMPARE(tipAt(600), QString());
    button.setToolTip(u"own"_s);
    QCOMPARE(tipAt(100), u"own"_s);
}

void TestButtons::stylesLeaveTheApplicationsAlone()
{
    const QPointer<QStyle> before = QApplication::style();
    {
        const MyMenuStyle style(QApplication::style());
        QCOMPARE(style.baseStyle()->name(), before->name());
        QCOMPARE(style.pixelMetric(QStyle::PM_SmallIconSize), 24);
        QCOMPARE(style.pixelMetric(QStyle::PM_LargeIconSize),
                 before->pixelMetric(QStyle::PM_LargeIconSize));
    }
    QCOMPARE(QApplication::style(), before.data());
}

void TestButtons::roundsCorners()
{
    const QRect rect(-5, 6, 81, 20);
    for (const auto &[radius, cut] : {std::pair(0, 0), {10, 7}, {1000, 7}}) {
        const QRegion region = roundedRect(rect, radius);
        QCOMPARE(region.boundingRect(), rect);
        for (const int y : {rect.top(), rect.bottom()}) {
            QCOMPARE(region & QRect(rect.x(), y, rect.width(), 1),
                     QRegion(rect.x() + cut, y, rect.width() - 2 * cut, 1));
        }
    }
    QVERIFY(roundedRect(QRect(), 10).isEmpty());
}

QTEST_MAIN(TestButtons)
#include "tst_buttons.moc"

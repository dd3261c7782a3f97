#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include <array>

#include <frame/DelayClickButton.h>
#include <frame/DoubleClickButton.h>
#include <frame/ElidedButtonStyle.h>
#include <frame/ElidedLabelStyle.h>
#include <frame/MyMenuStyle.h>
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
        if (className == "triple"_L1) {
            watch(new TripleActionButton(&m_window));
        } else if (className == "delay"_L1) {
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
        m_actions[report] = action;
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
            {u"hide"_s, [&] { m_button->hide(), m_button->show(); }},
            {u"disable"_s, [&] { m_button->setEnabled(false), m_button->setEnabled(true); }},
            {u"dialog"_s, [&] { openDialog(); }},
            {u"second-finger"_s, [&] { m_finger.tapWithAnother(center + QPoint(30, 0)); }},
            {u"right-button"_s, [&] { QApplication::sendEvent(m_button, &m_rightPress); }},
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
            if (m_actions.contains(report)) {
                m_actions.take(report)();
            }
        });
    }

    QWidget m_window;
    const QRect m_place {20, 20, 200, 100};
    QPointer<GestureButton> m_button;
    Finger m_finger {m_window};
    QStringList m_reports;
    QPoint m_reportedPlace;
    QHash<QString, std::function<void()>> m_actions;
    QMouseEvent m_rightPress {QEvent::MouseButtonPress, {9, 9},          {9, 9},
                              Qt::RightButton,          Qt::RightButton, {}};
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
        QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
    }

    mutable QString drawn;
    mutable QRect room;
};

} // namespace

/** What the buttons report of fingers, and what the styles draw. */
class TestButtons : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void reportsEachGestureOnce_data()
    {
        for (const char *column : {"verbs", "triple", "delay", "double"}) {
            QTest::addColumn<QString>(column);
        }
        const auto row = [](const char *name, const QString &verbs, const QString &triple = {},
                            const QString &delay = {}, const QString &twice = {}) {
            QTest::newRow(name) << verbs << triple << delay << twice;
        };
        const QString both = u"clicked double clicked"_s;
        const QString late = u"clicked single"_s;
        const QString atOnce = u"single clicked"_s;
        const QString two = u"single clicked single clicked"_s;
        row("tap", u"down up"_s, late, atOnce, late);
        row("long press", u"down wait move up"_s, u"delay"_s, u"delay"_s, atOnce);
        row("double tap", u"down up down up"_s, both, two, both);
        row("second tap held", u"down up down wait up"_s, both, atOnce + u" delay"_s, both);
        row("two taps apart", u"down up down-apart up"_s, late + u' ' + late, two,
            late + u' ' + late);
        row("tap after long press", u"down wait up down up"_s, u"delay clicked single"_s,
            u"delay single clicked"_s, u"single clicked clicked single"_s);
        row("tap after sliding off", u"down leave up down up"_s, late, atOnce, late);
        row("slides off and back", u"down leave move up"_s);
        row("hidden while held", u"down hide move up"_s);
        row("disabled while held", u"down disable move up"_s);
        row("dialog while held", u"down dialog"_s);
        row("second finger", u"down second-finger up"_s, late, atOnce, late);
        row("other button of a mouse", u"right-button"_s);
    }

    void reportsEachGestureOnce()
    {
        QFETCH(const QString, verbs);
        for (const char *className : {"triple", "delay", "double"}) {
            Bench bench(QString::fromLatin1(className));
            bench.act(verbs + u" wait"_s);
            QTEST(bench.reports(), className);
            QVERIFY(!bench.button()->isDown());
        }
    }

    void tapWaitsForASecondOne()
    {
        for (const auto &[className, margin] : {std::pair(u"triple"_s, 10), {u"double"_s, 50}}) {
            Bench bench(className);
            const QDeadlineTimer window(QApplication::doubleClickInterval() + margin);
            bench.act(u"down up wait"_s);
            QVERIFY2(window.hasExpired(), qPrintable(className + bench.reports()));
            QCOMPARE(bench.reportedPlace(), bench.button()->rect().center());
        }
    }

    void slotMayDeleteTheButtonOrOpenADialog()
    {
        for (const auto &[className, verbs, report] :
             {std::array {u"triple"_s, u"down up down-apart"_s, u"single"_s},
              {u"triple"_s, u"down up down"_s, u"double"_s},
              {u"delay"_s, u"down wait"_s, u"delay"_s},
              {u"delay"_s, u"down up"_s, u"single"_s}}) {
            Bench asking(className);
            asking.onReport(report, [&asking] { asking.openDialog(); });
            asking.act(verbs);
            QVERIFY(asking.reports().endsWith(report) && asking.isAtRest());
            QVERIFY(!asking.button()->isDown());
            Bench deleting(className);
            deleting.onReport(report, [&deleting] { delete deleting.button(); });
            deleting.act(verbs.endsWith("up"_L1) ? verbs : verbs + u" up"_s);
            QVERIFY(deleting.button().isNull());
        }
    }

    void textsAreCutToTheirRoom_data()
    {
        QTest::addColumn<bool>("isButton");
        QTest::addColumn<QIcon>("icon");
        QTest::newRow("button") << true << QIcon();
        QTest::newRow("button with icon") << true << QIcon(QPixmap(16, 16));
        QTest::newRow("label") << false << QIcon();
    }

    void textsAreCutToTheirRoom()
    {
        QFETCH(const bool, isButton);
        QFETCH(const QIcon, icon);
        const QString text = u"&Fish && &chips && peas && &beer"_s;
        auto *below = new NotingStyle(u"Windows"_s);
        const std::unique_ptr<QStyle> style(
            isButton ? new ElidedButtonStyle(below)
                     : static_cast<QStyle *>(new ElidedLabelStyle(below)));
        QPushButton button(icon, text);
        QLabel label(text);
        label.setBuddy(&button); // without one an "&" is plain text
        QWidget &widget = isButton ? static_cast<QWidget &>(button) : label;
        widget.setStyle(style.get());
        for (int width = 60; width < 400; width += 3) {
            widget.resize(width, 40);
            widget.grab();
            const bool isWhole = below->drawn == text;
            QVERIFY(isWhole ? width > 60 : width < widget.sizeHint().width());
            QVERIFY(below->drawn.endsWith(isWhole || !isButton ? u'r' : u'…'));
            QVERIFY(widget.rect().contains(below->room));
            const QSize size = widget.fontMetrics().size(Qt::TextShowMnemonic, below->drawn);
            QCOMPARE_LE(size.width(), below->room.width());
            const QString unpaired = QString(below->drawn).remove(QRegularExpression(u"&[^…]"_s));
            QVERIFY2(!unpaired.contains(u'&'), qPrintable(below->drawn));
        }
    }

    void wholeTextIsTheToolTip()
    {
        messages().allow(u"does not support raise"_s);
        ElidedButtonStyle style(QApplication::style());
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

    void menuStyleLeavesTheApplicationsAlone()
    {
        const QPointer<QStyle> before = QApplication::style();
        QCOMPARE(MyMenuStyle(before).pixelMetric(QStyle::PM_SmallIconSize), 24);
        QCOMPARE_NE(MyMenuStyle(before).pixelMetric(QStyle::PM_ButtonIconSize), 24);
        QCOMPARE(QApplication::style(), before.data());
    }
};

QTEST_MAIN(TestButtons)
#include "tst_buttons.moc"

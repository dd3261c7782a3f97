#include "WindowRows.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QPropertyAnimation>

#include <stdexcept>

#include "frame/AppMissionControlWidget.h"
#include "frame/SlidingStackedWidget.h"
#include "harness/Stopwatch.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int SlideMs = 500;
constexpr int LeastFrames = 27; // in SlideMs
constexpr int Rounds = 7;
constexpr double Milli = 1e-3;

/// Counts the frames of a window in which a part of it is somewhere else than in the one before.
class FrameCounter : public QObject
{
public:
    FrameCounter(QWidget &window, const QWidget &moving)
        : m_moving(moving)
        , m_place(moving.pos())
    {
        window.installEventFilter(this);
    }

    int count() const { return m_count; }

private:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::UpdateRequest && m_moving.pos() != m_place) {
            m_place = m_moving.pos();
            ++m_count;
        }
        return false;
    }

    const QWidget &m_moving;
    QPoint m_place;
    int m_count = 0;
};

/// The time of a frame while @p moving slides in @p window: @p start begins it, @p ended is the
/// signal of @p slider that ends it.
template<typename Slider, typename Signal, typename Start>
double secondsOfFrame(QWidget &window, const QWidget &moving, Slider &slider, Signal ended,
                      Start start)
{
    QEventLoop loop;
    QObject::connect(&slider, ended, &loop, &QEventLoop::quit, Qt::QueuedConnection);
    const FrameCounter frames(window, moving);
    const double seconds = secondsOf([&] {
        start();
        loop.exec();
    });
    if (frames.count() == 0) {
        throw std::runtime_error("nothing slides");
    }
    return seconds / frames.count();
}

template<typename Part>
Part &partOf(QWidget &window)
{
    auto *part = window.findChild<Part *>();
    if (!part) {
        throw std::runtime_error("the window lacks a part");
    }
    return *part;
}

double slideWindows(MeterWindow &window)
{
    auto &stack = partOf<SlidingStackedWidget>(window);
    const int next = 1 - stack.currentIndex();
    return secondsOfFrame(window, *stack.widget(next), stack,
                          &SlidingStackedWidget::animationFinished,
                          [&] { window.on_changeWindow(next); });
}

double slideMissionControl(MeterWindow &window)
{
    auto &panel = partOf<AppMissionControlWidget>(window);
    return secondsOfFrame(window, panel, panel, &SlidePanel::slideEnded, [&panel] {
        if (panel.isExpanded()) {
            panel.contract();
        } else {
            panel.expand();
        }
    });
}

/// A child that fills the window and has nothing in it, moved across by the toolkit alone.
double slideEmptyWidget()
{
    QWidget window;
    window.resize(DemoWindow::Screen);
    QWidget page(&window);
    page.resize(window.size());
    window.show();
    QPropertyAnimation animation(&page, "pos");
    animation.setDuration(SlideMs);
    animation.setEasingCurve(QEasingCurve::OutQuad);
    animation.setStartValue(QPoint(window.width(), 0));
    animation.setEndValue(QPoint(0, 0));
    return secondsOfFrame(window, page, animation, &QAbstractAnimation::finished,
                          [&animation] { animation.start(); });
}

void addSlide(Suite &suite, const QString &name, const std::function<double()> &slide)
{
    Comparison frames;
    frames.name = name;
    frames.work = {SlideMs * Milli, u"frames in %1 ms"_s.arg(SlideMs), 0};
    frames.subject = {u"level-meter"_s, slide, {}, {}};
    frames.rivals = {{u"empty widget"_s, slideEmptyWidget, Demand::speedAtLeast(0.85), {}}};
    frames.rounds = Rounds;
    suite.add(frames);
    suite.add({u"a frame of that %1"_s.arg(name), u"ms"_s, SlideMs / double(LeastFrames),
               [slide] { return slide() / Milli; }, Rounds});
}

/// Serves events until the window was painted as a whole, with what follows from that.
void awaitPaint(QWidget &window)
{
    struct Watch : QObject
    {
        bool eventFilter(QObject *, QEvent *event) override
        {
            isPainted = isPainted || event->type() == QEvent::Paint;
            return false;
        }
        bool isPainted = false;
    } watch;
    window.installEventFilter(&watch);
    while (!watch.isPainted) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QCoreApplication::sendPostedEvents();
}

double changeTheme(DemoWindow &demo)
{
    const bool isLight = demo.settings().text(Settings::Theme) == u"light"_s;
    return secondsOf([&] {
        demo.settings().setText(Settings::Theme, isLight ? u"dark"_s : u"light"_s);
        awaitPaint(demo.window());
    });
}

/// Of every widget: what covers another one does not follow it.
double paint(MeterWindow &window)
{
    return secondsOf([&window] {
        window.update();
        for (QWidget *part : window.findChildren<QWidget *>()) {
            part->update();
        }
        awaitPaint(window);
    });
}

} // namespace

void addWindowRows(Suite &suite, DemoWindow &demo)
{
    addSlide(suite, u"slide of the windows"_s, [&demo] { return slideWindows(demo.window()); });
    addSlide(suite, u"slide of the mission control"_s,
             [&demo] { return slideMissionControl(demo.window()); });

    Comparison theme;
    theme.name = u"change of the theme until painted"_s;
    theme.work = {1, u"ms"_s, Milli};
    theme.subject = {u"level-meter"_s, [&demo] { return changeTheme(demo); }, {}, {}};
    theme.rivals = {
        {u"painting of the same window"_s, [&demo] { return paint(demo.window()); }, {}, {}}};
    theme.rounds = Rounds;
    suite.add(theme);
    suite.add(
        {u"that change"_s, u"ms"_s, 100, [&demo] { return changeTheme(demo) / Milli; }, Rounds});
}

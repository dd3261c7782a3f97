#include "SlideRows.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <stdexcept>

#include "frame/SlidingStackedWidget.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize Screen {1280, 800};
constexpr int Columns = 10;
constexpr int WidgetsOnPage = 200;
constexpr int SlideMs = 500;
constexpr int LeastFrames = 27; // in SlideMs

QWidget *control(int number)
{
    const QString text = QString::number(number);
    switch (number % 4) {
    case 0:
        return new QPushButton(u"Button "_s + text);
    case 1:
        return new QLabel(u"Label "_s + text);
    case 2:
        return new QLineEdit(u"Edit "_s + text);
    default:
        return new QCheckBox(u"Check "_s + text);
    }
}

struct Counts
{
    int frames = 0;
    int layouts = 0;
    double seconds = 0;

    double secondsOfFrame() const { return seconds / frames; }
};

/// A window with two pages; counts what happens in it while they slide.
class SlideBench : public QObject
{
public:
    explicit SlideBench(int widgetsOnPage)
    {
        m_stack.resize(Screen);
        m_stack.setWrap(true);
        for (int page = 0; page < 2; ++page) {
            m_stack.addWidget(new QWidget);
            auto *content = new QGridLayout(m_stack.widget(page));
            for (int i = 0; i < widgetsOnPage; ++i) {
                content->addWidget(control(i), i / Columns, i % Columns);
            }
        }
        m_stack.show();
    }

    Counts slide(int milliseconds)
    {
        m_counts = {};
        m_stack.setSpeed(milliseconds);
        m_incoming = m_stack.widget(1 - m_stack.currentIndex());
        QEventLoop loop;
        connect(&m_stack, &SlidingStackedWidget::animationFinished, &loop, &QEventLoop::quit,
                Qt::QueuedConnection);
        qApp->installEventFilter(this);
        QElapsedTimer clock;
        clock.start();
        if (!m_stack.slideInNext()) {
            throw std::runtime_error("nothing slides");
        }
        loop.exec();
        m_counts.seconds = static_cast<double>(clock.nsecsElapsed()) / 1e9;
        qApp->removeEventFilter(this);
        return m_counts;
    }

private:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isWindow = watched == &m_stack;
        if (event->type() == QEvent::UpdateRequest && isWindow && m_incoming->pos() != m_place) {
            m_place = m_incoming->pos();
            ++m_counts.frames;
        } else if (!isWindow
                   && (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize)) {
            ++m_counts.layouts;
        }
        return false;
    }

    SlidingStackedWidget m_stack;
    QWidget *m_incoming = nullptr;
    QPoint m_place;
    Counts m_counts;
};

Counts slide(int widgetsOnPage)
{
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) {
        throw std::runtime_error("there is no QApplication");
    }
    SlideBench bench(widgetsOnPage);
    bench.slide(SlideMs / 5); // everything has been laid out and painted once
    return bench.slide(SlideMs);
}

} // namespace

void addSlideRows(Suite &suite)
{
    Comparison frames;
    frames.name = u"slide between pages of %1 widgets"_s.arg(WidgetsOnPage);
    frames.work = {SlideMs / 1000.0, u"frames in %1 ms"_s.arg(SlideMs), 0};
    frames.subject = {
        u"full pages"_s, [] { return slide(WidgetsOnPage).secondsOfFrame(); }, {}, {}};
    frames.rivals = {{u"empty pages"_s,
                      [] { return slide(0).secondsOfFrame(); },
                      Demand::speedAtLeast(0.85),
                      {}}};
    suite.add(frames);
    suite.add({u"a frame of that slide"_s, u"ms"_s, SlideMs / double(LeastFrames),
               [] { return slide(WidgetsOnPage).secondsOfFrame() * 1000; }, 5});
    suite.add({u"layouts during that slide"_s,
               {},
               0,
               [] { return double(slide(WidgetsOnPage).layouts); },
               1});
}

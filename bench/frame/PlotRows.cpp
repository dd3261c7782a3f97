#include "PlotRows.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QPainter>
#include <QTimer>

#include <Run.h>
#include <SimulatedSource.h>
#include <TracePlot.h>

#include <sys/resource.h>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int Points = 10000;
constexpr int UpdatesPerSecond = 20;
constexpr int Updates = 100;
constexpr double Percent = 0.01;

double seconds(const timeval &time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Of all threads of this process.
double processorSeconds()
{
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// A run that has its points and goes on getting more.
class LiveRun
{
public:
    LiveRun()
    {
        run.settings.sampleRate = 1000;
        run.settings.duration = Points / run.settings.sampleRate;
        m_source.begin(run.settings);
        grow(run.settings.duration);
    }

    void grow(double by)
    {
        m_time += by;
        for (const Sample &sample : m_source.take(m_time)) {
            run.add(sample);
        }
    }

    Run run;

private:
    SimulatedSource m_source;
    double m_time = 0;
};

/// All points of the run as one line, thinned by nobody.
class PlainPlot : public QWidget
{
public:
    void setRun(const Run *run) { m_run = run; }
    void refresh() { update(); }

private:
    void paintEvent(QPaintEvent *) override
    {
        const QVector<Sample> &samples = m_run->samples();
        QPolygonF line;
        line.reserve(samples.size());
        const double perSecond = width() / samples.constLast().time;
        for (const Sample &sample : samples) {
            line.append({sample.time * perSecond, -sample.level * height() / 30});
        }
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawPolyline(line);
    }

    const Run *m_run = nullptr;
};

/// The part of one core that the plot takes while its run grows.
template<typename Plot>
double shareOfCore(int updates)
{
    LiveRun live;
    Plot plot;
    plot.setRun(&live.run);
    plot.resize(1280, 800);
    plot.show();
    plot.repaint();
    QEventLoop loop;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        if (updates-- == 0) {
            loop.quit();
            return;
        }
        live.grow(1.0 / UpdatesPerSecond);
        plot.refresh();
    });
    timer.start(1000ms / UpdatesPerSecond);
    QElapsedTimer clock;
    clock.start();
    const double before = processorSeconds();
    loop.exec();
    return (processorSeconds() - before) * 1000 / static_cast<double>(clock.elapsed());
}

} // namespace

void addPlotRows(Suite &suite, double scale)
{
    const int updates = std::max(1, qRound(Updates * scale));
    const auto plot = [updates] { return shareOfCore<TracePlot>(updates); };
    Comparison live;
    live.name = u"live plot of %L1 points, %2 updates a second"_s.arg(Points).arg(UpdatesPerSecond);
    live.work = {1, u"% of a core"_s, Percent};
    live.subject = {u"TracePlot"_s, plot, {}, {}};
    live.rivals = {{u"QPainter, a line of all points"_s,
                    [updates] { return shareOfCore<PlainPlot>(updates); },
                    {},
                    {}}};
    live.rounds = 3;
    suite.add(live);
    suite.add({u"that plot"_s, u"% of a core"_s, 25, [plot] { return plot() / Percent; }, 3});
}

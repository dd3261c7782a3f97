#include "TracePlot.h"

#include "Decimation.h"
#include "PlotGestures.h"
#include "Run.h"

#include <QChart>
#include <QEvent>
#include <QLineSeries>
#include <QValueAxis>

#include <frame/ColorTheme.h>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr double zoomStep = 1.6;
constexpr double narrowestTime = 0.02; // seconds
constexpr double narrowestLevel = 0.5; // dB
constexpr int markerCount = 2;

QColor colour(QAnyStringView name)
{
    return ColorTheme::current().color(name);
}

/// The range @p from to @p from + @p length, no longer than @p longest and moved into it.
void keepWithin(double &from, double &length, double least, double longestFrom, double longest)
{
    length = std::clamp(length, least, std::max(least, longest));
    from = std::clamp(from, longestFrom, std::max(longestFrom, longestFrom + longest - length));
}

/// Seconds of a trace that has come to @p last: it grows by steps, so that the trace of a long run
/// is not at the edge for minutes, and stands still most of the time.
double timeRange(double last, double duration)
{
    double range = 10;
    while (range < last) {
        range *= 2;
    }
    return std::max(last, std::min(range, duration));
}

} // namespace

TracePlot::TracePlot(QWidget *parent)
    : QChartView(parent)
    , m_chart(new QChart)
    , m_trace(new QLineSeries(m_chart))
    , m_time(new QValueAxis(m_chart))
    , m_level(new QValueAxis(m_chart))
{
    setObjectName(u"TracePlot"_s);
    setAccessibleName(tr("Trace of the level over time"));
    setFrameShape(QFrame::NoFrame);
    setRenderHint(QPainter::Antialiasing);
    setAxes();
    setColours();
    fit();
    // Last: every change of a chart that is shown lays out its axes, which takes a millisecond.
    const std::unique_ptr<QChart> replaced(chart());
    setChart(m_chart);
    auto *gestures = new PlotGestures(viewport());
    connect(gestures, &PlotGestures::dragged, this, &TracePlot::pan);
    connect(gestures, &PlotGestures::pinched, this, &TracePlot::zoom);
    connect(gestures, &PlotGestures::tapped, this, &TracePlot::setMarker);
}

void TracePlot::setAxes()
{
    m_chart->legend()->hide();
    m_chart->setMargins(QMargins(4, 4, 12, 4));
    m_chart->setBackgroundRoundness(0);
    m_chart->addSeries(m_trace);
    m_chart->addAxis(m_time, Qt::AlignBottom);
    m_chart->addAxis(m_level, Qt::AlignLeft);
    m_trace->attachAxis(m_time);
    m_trace->attachAxis(m_level);
    m_time->setTickCount(11);
    m_level->setTickCount(7);
    m_level->setLabelFormat(u"%.1f"_s);
    m_time->setTitleText(tr("Time in s"));
    m_level->setTitleText(tr("Level in dBm"));
}

void TracePlot::setColours()
{
    m_chart->setBackgroundBrush(colour("base"));
    m_chart->setBackgroundPen(Qt::NoPen);
    QPen trace(colour("plot1"));
    trace.setCosmetic(true);
    m_trace->setPen(trace);
    QFont font = this->font();
    for (QValueAxis *axis : {m_time, m_level}) {
        axis->setGridLineColor(colour("grid"));
        axis->setLinePenColor(colour("border"));
        axis->setLabelsColor(colour("text"));
        axis->setTitleBrush(colour("text"));
        axis->setLabelsFont(font);
        axis->setTitleFont(font);
    }
}

void TracePlot::setRun(const Run *run)
{
    m_run = run;
    m_markers.clear();
    fit();
    Q_EMIT markersChanged();
}

void TracePlot::setCompact(bool isCompact)
{
    m_time->setTitleVisible(!isCompact);
    m_level->setTitleVisible(!isCompact);
    m_level->setTickCount(isCompact ? 3 : 7);
    m_time->setTickCount(isCompact ? 6 : 11);
}

void TracePlot::refresh()
{
    if (m_isFitted) {
        setRange(fullRange());
    } else {
        showSamples();
    }
}

QRectF TracePlot::visibleRange() const
{
    return {m_time->min(), m_level->min(), m_time->max() - m_time->min(),
            m_level->max() - m_level->min()};
}

void TracePlot::zoomIn()
{
    zoom(m_chart->plotArea().center(), zoomStep, 1);
}

void TracePlot::zoomOut()
{
    zoom(m_chart->plotArea().center(), 1 / zoomStep, 1);
}

void TracePlot::fit()
{
    m_isFitted = true;
    setRange(fullRange());
}

void TracePlot::toggleMarkers()
{
    if (hasMarkers() || !m_run || m_run->samples().isEmpty()) {
        m_markers.clear();
    } else {
        const QRectF range = visibleRange();
        for (const double share : {1.0 / 3, 2.0 / 3}) {
            const int index = sampleNear(range.x() + share * range.width());
            m_markers.append(m_run->samples()[index].time);
        }
    }
    viewport()->update();
    Q_EMIT markersChanged();
}

/// All that was measured of the run, and its levels with the threshold, on whole numbers.
QRectF TracePlot::fullRange() const
{
    if (!m_run) {
        return {0, -30, 10, 30};
    }
    double lowest = m_run->settings.threshold;
    double highest = lowest + 6;
    double last = 0;
    if (m_run->figures().count() > 0) {
        lowest = std::min(lowest, m_run->figures().lowest());
        highest = std::max(highest, m_run->figures().highest());
        last = m_run->samples().constLast().time;
    }
    const double bottom = std::floor(lowest - 1);
    // Six divisions of whole numbers, so that no label is cut.
    const double height = 6 * std::ceil((highest + 1 - bottom) / 6);
    return {0, bottom, timeRange(last, m_run->settings.duration), height};
}

void TracePlot::setRange(const QRectF &range)
{
    m_time->setLabelFormat(range.width() >= 10 ? u"%.1f"_s : u"%.3f"_s);
    m_time->setRange(range.left(), range.right());
    m_level->setRange(range.top(), range.bottom());
    showSamples();
}

void TracePlot::showSamples()
{
    const int columns = std::max(1, qRound(m_chart->plotArea().width()));
    m_trace->replace(
        m_run ? Decimation::decimate(m_run->samples(), m_time->min(), m_time->max(), columns)
              : QList<QPointF>());
    viewport()->update();
}

void TracePlot::zoom(QPointF centre, double horizontally, double vertically)
{
    const QRectF range = visibleRange();
    const QPointF fixed = m_chart->mapToValue(centre, m_trace);
    double width = range.width() / horizontally;
    double height = range.height() / vertically;
    double left = fixed.x() - (fixed.x() - range.x()) * width / range.width();
    double bottom = fixed.y() - (fixed.y() - range.y()) * height / range.height();
    const QRectF full = fullRange();
    keepWithin(left, width, narrowestTime, full.x(), full.width());
    keepWithin(bottom, height, narrowestLevel, full.y(), full.height());
    m_isFitted = false;
    setRange({left, bottom, width, height});
}

void TracePlot::pan(QPointF distance)
{
    QRectF range = visibleRange();
    const QRectF area = m_chart->plotArea();
    const QRectF full = fullRange();
    double left = range.x() - distance.x() * range.width() / area.width();
    double bottom = range.y() + distance.y() * range.height() / area.height();
    double width = range.width();
    double height = range.height();
    keepWithin(left, width, narrowestTime, full.x(), full.width());
    keepWithin(bottom, height, narrowestLevel, full.y(), full.height());
    m_isFitted = false;
    setRange({left, bottom, width, height});
}

void TracePlot::setMarker(QPointF position)
{
    if (!m_run || m_run->samples().isEmpty() || !m_chart->plotArea().contains(position)) {
        return;
    }
    // On a sample: what is measured later must not be what a marker is moved to.
    const double time =
        m_run->samples()[sampleNear(m_chart->mapToValue(position, m_trace).x())].time;
    if (m_markers.size() < markerCount) {
        m_markers.append(time);
    } else {
        const auto isNearer = [time](double a, double b) {
            return std::abs(a - time) < std::abs(b - time);
        };
        *std::min_element(m_markers.begin(), m_markers.end(), isNearer) = time;
    }
    viewport()->update();
    Q_EMIT markersChanged();
}

int TracePlot::sampleNear(double time) const
{
    const QVector<Sample> &samples = m_run->samples();
    const auto after =
        std::lower_bound(samples.begin(), samples.end(), time,
                         [](const Sample &sample, double wanted) { return sample.time < wanted; });
    const auto index = static_cast<int>(after - samples.begin());
    return std::min(index, static_cast<int>(samples.size()) - 1);
}

QString TracePlot::markerText() const
{
    if (!m_run || m_run->samples().isEmpty()) {
        return {};
    }
    QStringList parts;
    for (int i = 0; i < m_markers.size(); ++i) {
        const Sample &sample = m_run->samples()[sampleNear(m_markers[i])];
        parts += tr("%1: %2 s, %3 dBm")
                     .arg(QChar(u'A' + i))
                     .arg(sample.time, 0, 'f', 3)
                     .arg(sample.level, 0, 'f', 2);
    }
    if (m_markers.size() == markerCount) {
        const Sample &a = m_run->samples()[sampleNear(m_markers[0])];
        const Sample &b = m_run->samples()[sampleNear(m_markers[1])];
        parts += tr("B - A: %1 s, %2 dB")
                     .arg(b.time - a.time, 0, 'f', 3)
                     .arg(b.level - a.level, 0, 'f', 2);
    }
    return parts.join(u"     "_s);
}

QPointF TracePlot::toView(QPointF value) const
{
    return m_chart->mapToPosition(value, m_trace);
}

void TracePlot::drawForeground(QPainter *painter, const QRectF &)
{
    if (!m_run) {
        return;
    }
    const QRectF area = m_chart->plotArea();
    painter->save();
    painter->setClipRect(area);
    painter->setRenderHint(QPainter::Antialiasing, false);
    drawGaps(*painter, area);
    drawThreshold(*painter, area);
    drawMarkers(*painter, area);
    painter->restore();
}

/// Where samples are missing there is nothing to connect.
void TracePlot::drawGaps(QPainter &painter, const QRectF &area) const
{
    const QVector<Sample> &samples = m_run->samples();
    for (const int index : m_run->gaps()) {
        const double left = toView({samples[index - 1].time, 0}).x();
        const double right = toView({samples[index].time, 0}).x();
        const QRectF gap(left, area.top(), right - left, area.height());
        painter.fillRect(gap, colour("alternateBase"));
        painter.setPen(colour("warning"));
        if (painter.fontMetrics().horizontalAdvance(tr("no link")) < gap.width()) {
            painter.drawText(gap, Qt::AlignCenter, tr("no link"));
        }
    }
}

void TracePlot::drawThreshold(QPainter &painter, const QRectF &area) const
{
    const double y = toView({0, m_run->settings.threshold}).y();
    QPen pen(colour("fail"), 2, Qt::DashLine);
    painter.setPen(pen);
    painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
    painter.drawText(QRectF(area.left() + 8, y - 24, area.width(), 22), Qt::AlignLeft,
                     tr("Threshold %1 dBm").arg(m_run->settings.threshold));
}

void TracePlot::drawMarkers(QPainter &painter, const QRectF &area) const
{
    if (m_run->samples().isEmpty()) {
        return;
    }
    for (int i = 0; i < m_markers.size(); ++i) {
        const Sample &sample = m_run->samples()[sampleNear(m_markers[i])];
        const QPointF point = toView({sample.time, sample.level});
        const QColor ink = colour(i == 0 ? "plot2" : "plot3");
        painter.setPen(QPen(ink, 2));
        painter.drawLine(QPointF(point.x(), area.top()), QPointF(point.x(), area.bottom()));
        painter.setBrush(ink);
        painter.drawEllipse(point, 5, 5);
        const QRectF flag(point.x() + 4, area.top() + 4, 24, 24);
        painter.fillRect(flag, ink);
        painter.setPen(colour("base"));
        painter.drawText(flag, Qt::AlignCenter, QString(QChar(u'A' + i)));
    }
}

void TracePlot::changeEvent(QEvent *event)
{
    QChartView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        setColours();
    } else if (event->type() == QEvent::LanguageChange) {
        m_time->setTitleText(tr("Time in s"));
        m_level->setTitleText(tr("Level in dBm"));
        setAccessibleName(tr("Trace of the level over time"));
        Q_EMIT markersChanged();
    }
}

void TracePlot::resizeEvent(QResizeEvent *event)
{
    QChartView::resizeEvent(event);
    showSamples();
}

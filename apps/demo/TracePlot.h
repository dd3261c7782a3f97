#pragma once

#include <QChartView>
#include <QVector>

class QLineSeries;
class QValueAxis;
class Run;

/**
 * The trace of a run: level over time, live or saved, with two markers.
 *
 * A drag moves the view, two fingers zoom it, a tap sets the markers: first A, then B, then the one
 * that is nearer. As long as nobody has zoomed or moved, the view shows everything.
 *
 * Qt Charts draws it, from no more than two points for each pixel column (Decimation), since the
 * cost of a line is that of its points.
 */
class TracePlot : public QChartView
{
    Q_OBJECT

public:
    explicit TracePlot(QWidget *parent = nullptr);

    /// @p run is not owned; null for none. The view shows all of it, without markers.
    void setRun(const Run *run);
    /// The run has more samples.
    void refresh();
    /// For little room: the axes have no titles and fewer labels.
    void setCompact(bool isCompact);

    /// "A 1.234 s -13.72 dBm" and so on; empty without markers.
    QString markerText() const;
    bool hasMarkers() const { return !m_markers.isEmpty(); }
    /// What is visible, in seconds and dBm.
    QRectF visibleRange() const;

public Q_SLOTS:
    void zoomIn();
    void zoomOut();
    void fit();
    /// Sets two markers at the thirds of the view, or takes those away that are there.
    void toggleMarkers();

Q_SIGNALS:
    void markersChanged();

protected:
    void drawForeground(QPainter *painter, const QRectF &rect) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setAxes();
    void setColours();
    void showSamples();
    QRectF fullRange() const;
    void setRange(const QRectF &range);
    void zoom(QPointF centre, double horizontally, double vertically);
    void pan(QPointF distance);
    void setMarker(QPointF position);
    int sampleNear(double time) const;
    void drawGaps(QPainter &painter, const QRectF &area) const;
    void drawThreshold(QPainter &painter, const QRectF &area) const;
    void drawMarkers(QPainter &painter, const QRectF &area) const;
    QPointF toView(QPointF value) const;

    const Run *m_run = nullptr;
    QChart *m_chart;
    QLineSeries *m_trace;
    QValueAxis *m_time;
    QValueAxis *m_level;
    bool m_isFitted = true;
    QVector<double> m_markers; ///< their times; at most two
};

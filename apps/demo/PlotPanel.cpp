#include "PlotPanel.h"

#include "Look.h"
#include "TracePlot.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

PlotPanel::PlotPanel(QWidget *parent)
    : QWidget(parent)
    , m_plot(new TracePlot(this))
    , m_column(new QWidget(this))
    , m_readout(new QLabel(this))
{
    auto *column = new QVBoxLayout(m_column);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Look::spacing);
    m_zoomIn = addButton(u"ZoomIn"_s);
    m_zoomOut = addButton(u"ZoomOut"_s);
    m_fit = addButton(u"Fit"_s);
    m_markers = addButton(u"Markers"_s);
    column->addStretch();
    m_readout->setObjectName(u"MarkerReadout"_s);
    m_readout->setMinimumHeight(26);

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Look::spacing);
    grid->setVerticalSpacing(0);
    grid->addWidget(m_plot, 0, 0);
    grid->addWidget(m_column, 0, 1);
    grid->addWidget(m_readout, 1, 0);
    grid->setRowStretch(0, 1);
    grid->setColumnStretch(0, 1);

    connect(m_zoomIn, &QPushButton::clicked, m_plot, &TracePlot::zoomIn);
    connect(m_zoomOut, &QPushButton::clicked, m_plot, &TracePlot::zoomOut);
    connect(m_fit, &QPushButton::clicked, m_plot, &TracePlot::fit);
    connect(m_markers, &QPushButton::clicked, m_plot, &TracePlot::toggleMarkers);
    connect(m_plot, &TracePlot::markersChanged, this, &PlotPanel::showMarkers);
    retranslate();
}

QPushButton *PlotPanel::addButton(const QString &objectName)
{
    QPushButton *button = Look::button(objectName, m_column);
    m_column->layout()->addWidget(button);
    return button;
}

void PlotPanel::setRun(const Run *run)
{
    m_plot->setRun(run);
}

void PlotPanel::refresh()
{
    m_plot->refresh();
}

void PlotPanel::setCompact(bool isCompact)
{
    m_zoomIn->setVisible(!isCompact);
    m_zoomOut->setVisible(!isCompact);
    m_plot->setCompact(isCompact);
}

void PlotPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void PlotPanel::retranslate()
{
    m_zoomIn->setText(tr("Zoom in"));
    m_zoomOut->setText(tr("Zoom out"));
    m_fit->setText(tr("Fit"));
    showMarkers();
}

void PlotPanel::showMarkers()
{
    m_markers->setText(m_plot->hasMarkers() ? tr("No markers") : tr("Markers"));
    m_readout->setText(m_plot->hasMarkers() ? m_plot->markerText()
                                            : tr("Tap the trace to set a marker."));
}

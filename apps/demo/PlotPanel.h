#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class Run;
class TracePlot;

/// A trace with buttons for what fingers do on it, and what its markers say.
class PlotPanel : public QWidget
{
    Q_OBJECT

public:
    explicit PlotPanel(QWidget *parent = nullptr);

    /// As TracePlot::setRun().
    void setRun(const Run *run);
    void refresh();
    /// Leaves out the titles of the axes, and the buttons for what two fingers do as well.
    void setCompact(bool isCompact);
    TracePlot *plot() const { return m_plot; }

protected:
    void changeEvent(QEvent *event) override;

private:
    QPushButton *addButton(const QString &objectName);
    void retranslate();
    void showMarkers();

    TracePlot *m_plot;
    QWidget *m_column;
    QPushButton *m_zoomIn;
    QPushButton *m_zoomOut;
    QPushButton *m_fit;
    QPushButton *m_markers;
    QLabel *m_readout;
};

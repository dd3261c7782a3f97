#pragma once

#include <QWidget>

#include "Meter.h"

class EventList;
class FigureTile;
class PlotPanel;
class QLabel;
class QProgressBar;
class QPushButton;
class StatusChip;

/// The test window: a run as it goes on.
class TestPage : public QWidget
{
    Q_OBJECT

public:
    /// @p meter is not owned and must outlive the page.
    explicit TestPage(Meter &meter, QWidget *parent = nullptr);

    /// Whether there is a link over which a test could be launched.
    void setCanStart(bool canStart);
    /// The run that is shown has been saved, or is not worth it.
    void setSaved(bool saved);

Q_SIGNALS:
    void startWanted();
    void saveWanted();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *makeHeader();
    QWidget *makeFigures();
    void connectMeter();
    void beginRun();
    void showState();
    void showFigures();
    void showVerdict();
    QString stateText() const;
    void startOrStop();
    void retranslate();

    Meter &m_meter;
    bool m_canStart = false;
    bool m_isSaved = true;
    QPushButton *m_startStop;
    QPushButton *m_save;
    QLabel *m_state;
    QProgressBar *m_progress;
    StatusChip *m_verdict;
    FigureTile *m_level;
    FigureTile *m_lowest;
    FigureTile *m_mean;
    FigureTile *m_errors;
    FigureTile *m_ratio;
    FigureTile *m_time;
    PlotPanel *m_plot;
    EventList *m_events;
};

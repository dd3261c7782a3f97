#pragma once

#include <QRectF>
#include <QThread>
#include <QVector>

#include "Stage.h"
#include "TourSimulator.h"

class ControllerLink;
class Meter;
class MeterWindow;
class Settings;

/**
 * Shows the whole application by itself, as a person uses it, and checks what is to be seen.
 *
 * It is a list of steps in their order, one function each, which may rely on what those before have
 * done. A step that misses something does not stop those after it.
 */
class Tour : public QThread
{
    Q_OBJECT

public:
    /// The parts are not owned; all must outlive the tour.
    Tour(MeterWindow &window, Settings &settings, Meter &meter, ControllerLink &link,
         const QString &pictureFolder, const QString &resultsFolder);

    /// Whether everything was there, after the thread has ended.
    bool hasPassed() const { return m_misses == 0; }

protected:
    void run() override;

private:
    struct Step
    {
        const char *name;
        void (Tour::*play)();
    };

    void play(const Step &step);
    void startSimulator();
    void type(const QString &keys);
    void waitForMeasurement();
    void enterDuration(const QString &seconds);
    void startLongRun();
    void cutLink();
    void waitForLink();
    QStringList results() const;
    QString onlyResult() const;
    QRectF plotRange() const;

    void seeStart();
    void readHelp();
    void enterByNumpad();
    void enterByWheelAndKeys();
    void enterPattern();
    void findSettingsSaved();
    void changeLanguage();
    void changeTheme();
    void chooseTest();
    void startRun();
    void usePlot();
    void finishRun();
    void saveResult();
    void browseResults();
    void uploadResult();
    void seeInstrumentFiles();
    void loseLink();
    void stopWithoutLink();
    void loseInstrument();
    void openMissionControl();
    void readLog();
    void saveByItself();
    void closeApplication();

    MeterWindow &m_window;
    Settings &m_settings;
    Meter &m_meter;
    ControllerLink &m_link;
    const QString m_resultsFolder;
    Stage m_stage;
    TourSimulator *m_simulator = nullptr; ///< while run() runs, on whose thread it lives
    int m_misses = 0;
};

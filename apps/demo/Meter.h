#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>

#include "MeasurementSource.h"
#include "TestPhase.h"

/**
 * Makes a run: has the instrument's test launched, collects what is measured while that test runs,
 * and has it terminated when the time is over.
 *
 * It knows no controller. What it wants of one it says by signals, what becomes of that it is told
 * by slots; whoever has the link connects the two. So it can be tested without a link, and the link
 * can be replaced.
 *
 * @dot
 * digraph { Idle -> Launching [label="start"]; Launching -> Running [label="test runs"]; Launching
 * -> Idle [label="refused, gone, link lost"]; Running -> Interrupted [label="link lost"];
 * Interrupted -> Running [label="link restored, test runs"]; Interrupted -> Idle [label="test gone,
 * stop"]; Running -> Stopping [label="time over, stop"]; Running -> Idle [label="test gone"];
 * Stopping -> Idle [label="test gone, link lost, not answered"]; }
 * @enddot
 */
class Meter : public QObject
{
    Q_OBJECT

public:
    enum class State { Idle, Launching, Running, Interrupted, Stopping };
    Q_ENUM(State)

    explicit Meter(std::unique_ptr<MeasurementSource> source, QObject *parent = nullptr);
    ~Meter() override;

    State state() const { return m_state; }
    bool isBusy() const { return m_state != State::Idle; }
    /// The run under way, or the last one.
    const Run &run() const { return m_run; }
    /// Seconds since the run's measurement began; at most its duration.
    double elapsed() const;

public Q_SLOTS:
    /// Begins a run; does nothing while there is one.
    void start(const MeterSettings &settings);
    /// Ends the run as soon as the instrument allows.
    void stop();

    /// The answer to launchWanted(): the test's id, 0 or less when it was refused.
    void testLaunched(qint32 id);
    /// The answer to phaseWanted(), or news.
    void testPhaseKnown(qint32 id, TestPhase phase);
    /// Something has changed about some test.
    void testsChanged();
    void linkLost(const QString &reason);
    void linkRestored();

Q_SIGNALS:
    void launchWanted(const QString &testName);
    void terminateWanted(qint32 id);
    void phaseWanted(qint32 id);

    void stateChanged(Meter::State state);
    /// A run has begun; run() is empty.
    void started();
    /// The run has more samples.
    void measured();
    void eventAdded(const RunEvent &event);
    /// The run is over, however it has ended. Once for each started().
    void finished();

private:
    void setState(State state);
    void beginMeasurement();
    void collect();
    void watchLevel(const Sample &sample);
    void terminate(Run::Ending ending);
    void finish(Run::Ending ending, RunEvent::Kind kind, const QString &text);
    void addEvent(RunEvent::Kind kind, const QString &text);
    void resume(TestPhase phase);
    void testEnded();

    const std::unique_ptr<MeasurementSource> m_source;
    Run m_run;
    State m_state = State::Idle;
    Run::Ending m_ending = Run::Ending::Complete;
    QElapsedTimer m_clock; ///< runs from the beginning of the measurement to the end of the run
    double m_endTime = 0; ///< seconds, of a run that is over
    QTimer m_collectTimer;
    QTimer m_endTimer; ///< the instrument does not say that the test has gone
    qint32 m_testId = 0; ///< 0: none, or not known yet
    QVector<qint32> m_leftBehind; ///< tests that are to be terminated when the link is back
    bool m_stopWanted = false;
    bool m_levelIsLow = false;
};

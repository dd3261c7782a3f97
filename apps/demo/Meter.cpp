#include "Meter.h"

#include "Logging.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

constexpr auto updateInterval = 50ms; // twenty updates of the plot a second
constexpr auto patience = 8s; // for the end of a test; the controller kills one after three
constexpr int mostLevelEvents = 200; // more of them say nothing that the plot does not

} // namespace

Meter::Meter(std::unique_ptr<MeasurementSource> source, QObject *parent)
    : QObject(parent)
    , m_source(std::move(source))
{
    m_collectTimer.setInterval(updateInterval);
    connect(&m_collectTimer, &QTimer::timeout, this, &Meter::collect);
    m_endTimer.setSingleShot(true);
    m_endTimer.setInterval(patience);
    connect(&m_endTimer, &QTimer::timeout, this, [this] {
        finish(m_ending, RunEvent::Warning,
               tr("The instrument does not say whether its test has ended."));
    });
}

Meter::~Meter() = default;

double Meter::elapsed() const
{
    if (!m_clock.isValid()) {
        return m_endTime;
    }
    return std::min(static_cast<double>(m_clock.elapsed()) / 1000,
                    static_cast<double>(m_run.settings.duration));
}

void Meter::start(const MeterSettings &settings)
{
    if (isBusy()) {
        return;
    }
    m_run = Run();
    m_run.settings = settings;
    m_run.started = QDateTime::currentDateTime();
    m_clock.invalidate();
    m_endTime = 0;
    m_testId = 0;
    m_stopWanted = false;
    m_levelIsLow = false;
    setState(State::Launching);
    Q_EMIT started();
    Q_EMIT launchWanted(settings.testName);
}

void Meter::stop()
{
    switch (m_state) {
    case State::Idle:
    case State::Stopping:
        return;
    case State::Launching:
        m_stopWanted = true;
        if (m_testId > 0) {
            terminate(Run::Ending::Stopped);
        }
        return;
    case State::Running:
        collect();
        terminate(Run::Ending::Stopped);
        return;
    case State::Interrupted:
        m_leftBehind.append(m_testId);
        finish(Run::Ending::Stopped, RunEvent::Warning,
               tr("Stopped without a link; the instrument's test is ended when the link is back."));
        return;
    }
}

void Meter::testLaunched(qint32 id)
{
    if (m_state != State::Launching) {
        return;
    }
    if (id <= 0) {
        finish(
            Run::Ending::NotStarted, RunEvent::Failure,
            tr("The instrument refused to launch its test \"%1\".").arg(m_run.settings.testName));
        return;
    }
    m_testId = id;
    if (m_stopWanted) {
        terminate(Run::Ending::Stopped);
    } else {
        Q_EMIT phaseWanted(id);
    }
}

void Meter::testPhaseKnown(qint32 id, TestPhase phase)
{
    if (id != m_testId || !isBusy()) {
        return;
    }
    if (phase == TestPhase::Gone) {
        testEnded();
    } else if (m_state == State::Launching && phase == TestPhase::Running) {
        beginMeasurement();
    } else if (m_state == State::Interrupted) {
        resume(phase);
    }
}

void Meter::testsChanged()
{
    if (isBusy() && m_testId > 0) {
        Q_EMIT phaseWanted(m_testId);
    }
}

void Meter::linkLost(const QString &reason)
{
    switch (m_state) {
    case State::Idle:
    case State::Interrupted:
        return;
    case State::Launching:
        finish(Run::Ending::NotStarted, RunEvent::Failure,
               tr("The link was lost before the test ran: %1").arg(reason));
        return;
    case State::Running:
        collect();
        m_collectTimer.stop();
        addEvent(RunEvent::Warning, tr("Link lost: %1").arg(reason));
        setState(State::Interrupted);
        return;
    case State::Stopping:
        m_leftBehind.append(m_testId);
        finish(m_ending, RunEvent::Warning, tr("The link was lost while the test ended."));
        return;
    }
}

void Meter::linkRestored()
{
    for (const qint32 id : std::exchange(m_leftBehind, {})) {
        Q_EMIT terminateWanted(id);
    }
    if (m_state == State::Interrupted) {
        Q_EMIT phaseWanted(m_testId);
    }
}

void Meter::setState(State state)
{
    if (state != m_state) {
        m_state = state;
        Q_EMIT stateChanged(state);
    }
}

void Meter::beginMeasurement()
{
    m_source->begin(m_run.settings);
    m_clock.start();
    m_run.started = QDateTime::currentDateTime();
    m_collectTimer.start();
    addEvent(RunEvent::Note, tr("The instrument's test runs."));
    setState(State::Running);
}

void Meter::resume(TestPhase phase)
{
    // What was measured meanwhile has not reached us and never will.
    m_source->take(elapsed());
    addEvent(RunEvent::Note, tr("The link is back, the run goes on."));
    setState(State::Running);
    if (phase == TestPhase::Running) {
        m_collectTimer.start();
    }
}

void Meter::collect()
{
    const QVector<Sample> samples = m_source->take(elapsed());
    for (const Sample &sample : samples) {
        m_run.add(sample);
        watchLevel(sample);
    }
    if (!samples.isEmpty()) {
        Q_EMIT measured();
    }
    if (m_state == State::Running && elapsed() >= m_run.settings.duration) {
        terminate(Run::Ending::Complete);
    }
}

/// The level passes the threshold downward and comes back; half a dB above keeps noise from
/// making a hundred events of one.
void Meter::watchLevel(const Sample &sample)
{
    constexpr double hysteresis = 0.5;
    const double threshold = m_run.settings.threshold;
    const bool isLow = sample.level < threshold + (m_levelIsLow ? hysteresis : 0);
    if (isLow != m_levelIsLow && m_run.events.size() < mostLevelEvents) {
        m_run.events.append({sample.time, isLow ? RunEvent::Failure : RunEvent::Note,
                             isLow ? tr("Level below the threshold: %1 dBm").arg(sample.level)
                                   : tr("Level back above the threshold")});
        Q_EMIT eventAdded(m_run.events.constLast());
    }
    m_levelIsLow = isLow;
}

void Meter::terminate(Run::Ending ending)
{
    m_collectTimer.stop();
    m_ending = ending;
    m_endTimer.start();
    setState(State::Stopping);
    Q_EMIT terminateWanted(m_testId);
}

void Meter::testEnded()
{
    switch (m_state) {
    case State::Launching:
        finish(Run::Ending::NotStarted, RunEvent::Failure, tr("The test ended before it ran."));
        return;
    case State::Stopping:
        finish(m_ending, RunEvent::Note,
               m_ending == Run::Ending::Stopped ? tr("Stopped") : tr("Complete"));
        return;
    case State::Interrupted:
        finish(Run::Ending::EndedByInstrument, RunEvent::Failure,
               tr("The link is back, but the instrument's test has ended."));
        return;
    default:
        collect();
        if (m_state == State::Running) {
            finish(Run::Ending::EndedByInstrument, RunEvent::Failure,
                   tr("The instrument has ended its test before the time was over."));
        }
    }
}

void Meter::finish(Run::Ending ending, RunEvent::Kind kind, const QString &text)
{
    m_collectTimer.stop();
    m_endTimer.stop();
    m_run.ending = ending;
    m_endTime = elapsed();
    m_clock.invalidate();
    addEvent(kind, text);
    m_testId = 0;
    setState(State::Idle);
    Q_EMIT finished();
}

void Meter::addEvent(RunEvent::Kind kind, const QString &text)
{
    qCInfo(lcMeter).noquote() << "run:" << text;
    m_run.events.append({elapsed(), kind, text});
    Q_EMIT eventAdded(m_run.events.constLast());
}

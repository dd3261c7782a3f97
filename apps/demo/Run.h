#pragma once

#include <QDateTime>
#include <QVector>

#include "MeterSettings.h"

/// What was measured in one interval of the sample rate.
struct Sample
{
    double time = 0; ///< seconds since the run began
    double level = 0; ///< dBm
    quint32 errors = 0; ///< wrong bits

    bool operator==(const Sample &) const = default;
};

/// Something worth a line in the list of events.
struct RunEvent
{
    enum Kind { Note, Warning, Failure };

    double time = 0; ///< seconds since the run began
    Kind kind = Note;
    QString text; ///< in the language of the day it happened

    bool operator==(const RunEvent &) const = default;
};

enum class Verdict { None, Pass, Fail };

/// A run's samples in figures; samples are added one by one as they come.
class RunFigures
{
public:
    void add(const Sample &sample, const MeterSettings &settings);

    int count() const { return m_count; }
    double lowest() const { return m_lowest; }
    double highest() const { return m_highest; }
    /// The mean power in dBm, not the mean of the levels.
    double mean() const;
    quint64 errors() const { return m_errors; }
    double ratio() const { return m_bits > 0 ? static_cast<double>(m_errors) / m_bits : 0; }

    bool levelPasses(const MeterSettings &settings) const;
    bool ratioPasses(const MeterSettings &settings) const;

private:
    int m_count = 0;
    double m_lowest = 0;
    double m_highest = 0;
    double m_milliwatts = 0;
    double m_bits = 0;
    quint64 m_errors = 0;
};

/// A measurement from its start to its end, with all that belongs into its file.
class Run
{
public:
    enum class Ending {
        Complete, ///< the duration was over
        Stopped, ///< by a person
        EndedByInstrument, ///< the test was gone before its time
        NotStarted,
    };

    MeterSettings settings;
    QDateTime started;
    Ending ending = Ending::NotStarted;
    QVector<RunEvent> events;

    void add(const Sample &sample);
    const QVector<Sample> &samples() const { return m_samples; }
    const RunFigures &figures() const { return m_figures; }
    /// The samples before which others are missing, since the link was lost meanwhile.
    const QVector<int> &gaps() const { return m_gaps; }

    /// One broken limit fails a run at any time; only a complete one passes.
    Verdict verdict() const;

private:
    QVector<Sample> m_samples;
    QVector<int> m_gaps;
    RunFigures m_figures;
};

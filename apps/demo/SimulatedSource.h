#pragma once

#include <random>

#include "MeasurementSource.h"

/**
 * Makes values up, since the simulated controller's tests measure nothing: the level of a received
 * signal with drift, noise and now and then a burst in which it drops, and the bit errors that a
 * receiver makes at that level. The same settings give the same values.
 */
class SimulatedSource : public MeasurementSource
{
public:
    void begin(const MeterSettings &settings) override;
    QVector<Sample> take(double until) override;

private:
    struct Burst
    {
        double start = 0;
        double end = 0;
        double depth = 0; ///< dB
    };

    Burst nextBurst(double after);
    double levelAt(double time);
    quint32 errorsAt(double level);

    MeterSettings m_settings;
    std::mt19937 m_random;
    Burst m_burst;
    double m_base = 0;
    double m_phase = 0;
    qint64 m_next = 0; ///< number of the next sample
};

#include "SimulatedSource.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double noise = 0.12; // dB, standard deviation
constexpr double driftDepth = 0.6; // dB
constexpr double driftPeriod = 7.0; // s
constexpr double burstsPerSecond = 0.4;
constexpr double sensitivity = -19.0; // dBm at which one bit in a million is wrong

/// A seed that any change of the settings changes.
std::seed_seq seedOf(const MeterSettings &settings)
{
    return std::seed_seq {static_cast<quint32>(std::llround(settings.frequency * 1e3)),
                          static_cast<quint32>(std::llround(settings.bitRate * 1e4)),
                          static_cast<quint32>(settings.pattern),
                          static_cast<quint32>(settings.sampleRate)};
}

double uniform(std::mt19937 &random, double from, double to)
{
    return std::uniform_real_distribution<double>(from, to)(random);
}

} // namespace

void SimulatedSource::begin(const MeterSettings &settings)
{
    m_settings = settings;
    auto seed = seedOf(settings);
    m_random.seed(seed);
    m_base = uniform(m_random, -14.5, -12.5);
    m_phase = uniform(m_random, 0, 2 * std::numbers::pi);
    m_burst = nextBurst(0);
    m_next = 0;
}

QVector<Sample> SimulatedSource::take(double until)
{
    QVector<Sample> samples;
    for (double time = static_cast<double>(m_next) / m_settings.sampleRate; time <= until;
         time = static_cast<double>(m_next) / m_settings.sampleRate) {
        const double level = levelAt(time);
        samples.append({time, level, errorsAt(level)});
        ++m_next;
    }
    return samples;
}

SimulatedSource::Burst SimulatedSource::nextBurst(double after)
{
    std::exponential_distribution<double> pause(burstsPerSecond);
    const double start = after + pause(m_random);
    return {start, start + uniform(m_random, 0.04, 0.3), uniform(m_random, 1.5, 5.0)};
}

double SimulatedSource::levelAt(double time)
{
    if (time >= m_burst.end) {
        m_burst = nextBurst(time);
    }
    const double drift = driftDepth * std::sin(2 * std::numbers::pi * time / driftPeriod + m_phase);
    const double drop = time >= m_burst.start ? m_burst.depth : 0;
    std::normal_distribution<double> jitter(0, noise);
    // As exact as the file, so that a run that was read back is the one that was measured.
    return std::round((m_base + drift - drop + jitter(m_random)) * 100) / 100;
}

quint32 SimulatedSource::errorsAt(double level)
{
    // Each dB above the sensitivity takes the ratio down by a decade and a half, as a receiver
    // that is limited by its own noise does.
    const double exponent = -6 - 1.5 * (level - sensitivity);
    const double ratio = std::min(0.5, std::pow(10.0, std::max(exponent, -15.0)));
    const double bits = m_settings.bitRate * 1e9 / m_settings.sampleRate;
    return static_cast<quint32>(std::poisson_distribution<qint64>(bits * ratio)(m_random));
}

#include "Run.h"

#include <algorithm>
#include <cmath>

void RunFigures::add(const Sample &sample, const MeterSettings &settings)
{
    m_lowest = m_count == 0 ? sample.level : std::min(m_lowest, sample.level);
    m_highest = m_count == 0 ? sample.level : std::max(m_highest, sample.level);
    m_milliwatts += std::pow(10.0, sample.level / 10);
    m_bits += settings.bitRate * 1e9 / settings.sampleRate;
    m_errors += sample.errors;
    ++m_count;
}

double RunFigures::mean() const
{
    return m_count == 0 ? 0 : 10 * std::log10(m_milliwatts / m_count);
}

bool RunFigures::levelPasses(const MeterSettings &settings) const
{
    return m_count == 0 || m_lowest >= settings.threshold;
}

bool RunFigures::ratioPasses(const MeterSettings &settings) const
{
    return ratio() <= settings.ratioLimit();
}

void Run::add(const Sample &sample)
{
    constexpr double slack = 1.5; // intervals: times are rounded in files
    if (!m_samples.isEmpty()
        && sample.time - m_samples.constLast().time > slack / settings.sampleRate) {
        m_gaps.append(static_cast<int>(m_samples.size()));
    }
    m_samples.append(sample);
    m_figures.add(sample, settings);
}

Verdict Run::verdict() const
{
    if (m_samples.isEmpty()) {
        return Verdict::None;
    }
    if (!m_figures.levelPasses(settings) || !m_figures.ratioPasses(settings)) {
        return Verdict::Fail;
    }
    return ending == Ending::Complete ? Verdict::Pass : Verdict::None;
}

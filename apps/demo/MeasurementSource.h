#pragma once

#include <QVector>

#include "Run.h"

/**
 * Where the measured values come from. An application for a real instrument reads them from the
 * test's own port there (FcpAppCORBA::getTestTcpPort()) and implements this class by that.
 */
class MeasurementSource
{
public:
    virtual ~MeasurementSource() = default;

    /// The instrument begins to measure with these settings.
    virtual void begin(const MeterSettings &settings) = 0;
    /// What was measured since the last call, up to @p until in seconds since begin().
    virtual QVector<Sample> take(double until) = 0;
};

#pragma once

#include <QString>

/// What a run measures, and what it is judged by.
struct MeterSettings
{
    double frequency = 193.1; ///< THz, of the optical carrier
    double bitRate = 10.3125; ///< Gbit/s
    double threshold = -20.0; ///< dBm; a lower level fails
    int duration = 8; ///< s
    int sampleRate = 500; ///< samples a second
    int ratioExponent = -6; ///< a ratio of errors to bits above ten to this power fails
    quint64 pattern = 0x5A3C0FF0; ///< the test word that is sent over and over, 32 bits
    QString testName; ///< the instrument's test that makes the measurement

    double ratioLimit() const;

    bool operator==(const MeterSettings &) const = default;
};

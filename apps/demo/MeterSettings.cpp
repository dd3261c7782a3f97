#include "MeterSettings.h"

#include <cmath>

double MeterSettings::ratioLimit() const
{
    return std::pow(10.0, ratioExponent);
}

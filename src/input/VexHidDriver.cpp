#include "VexHidDriver.h"

#include "EvdevHidDriver.h"
#include "TmkHidDriver.h"

VexHidDriver::~VexHidDriver() = default;

std::unique_ptr<VexHidDriver> VexHidDriver::forThisSystem()
{
    auto closed = std::make_unique<TmkHidDriver>();
    if (closed->isInstalled()) {
        return closed;
    }
    return std::make_unique<EvdevHidDriver>();
}

#pragma once

#include <functional>

/** The seconds that @p work takes. */
double secondsOf(const std::function<void()> &work);

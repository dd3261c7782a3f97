#pragma once

#include <QLoggingCategory>

/// "vex.frame": the frame's beginning and end, as information, and wrong calls.
Q_DECLARE_LOGGING_CATEGORY(lcFrame)

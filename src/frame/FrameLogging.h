#pragma once

#include <QLoggingCategory>

/// "vex.frame": wrong calls, and as information the frame's beginning and end, which only
/// FwLog lets through by itself.
Q_DECLARE_LOGGING_CATEGORY(lcFrame)

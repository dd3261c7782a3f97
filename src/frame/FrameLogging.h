#pragma once

#include <QLoggingCategory>

/// "vex.frame": the frame's beginning and end (as information, off by default), and wrong calls.
Q_DECLARE_LOGGING_CATEGORY(lcFrame)

#pragma once

#include <QLoggingCategory>

/// "levelmeter": what happens to the link and to runs, in full.
Q_DECLARE_LOGGING_CATEGORY(lcMeter)

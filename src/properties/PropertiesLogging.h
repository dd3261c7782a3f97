#pragma once

#include <QLoggingCategory>

/// "vex.properties": the store of properties and its file.
Q_DECLARE_LOGGING_CATEGORY(lcProperties)

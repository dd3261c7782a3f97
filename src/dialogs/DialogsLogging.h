#pragma once

#include <QLoggingCategory>

/// "vex.dialogs": the dialog stack and what goes wrong with it.
Q_DECLARE_LOGGING_CATEGORY(lcDialogs)

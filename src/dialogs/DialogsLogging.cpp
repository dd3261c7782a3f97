#include "DialogsLogging.h"

Q_LOGGING_CATEGORY(lcDialogs, "vex.dialogs", QtInfoMsg)

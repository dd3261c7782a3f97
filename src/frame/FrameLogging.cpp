#include "FrameLogging.h"

Q_LOGGING_CATEGORY(lcFrame, "vex.frame", QtWarningMsg)

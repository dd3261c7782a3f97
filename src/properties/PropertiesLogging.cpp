#include "PropertiesLogging.h"

Q_LOGGING_CATEGORY(lcProperties, "vex.properties", QtInfoMsg)

#include "Logging.h"

Q_LOGGING_CATEGORY(lcMeter, "levelmeter")

#include "CorbaLogging.h"

Q_LOGGING_CATEGORY(lcCorba, "vex.corba", QtInfoMsg)
Q_LOGGING_CATEGORY(lcOrb, "vex.corba.orb", QtInfoMsg)

#pragma once

#include <QLoggingCategory>

/// "vex.corba": the controller link.
Q_DECLARE_LOGGING_CATEGORY(lcCorba)
/// "vex.corba.orb": what the ORB itself has to say.
Q_DECLARE_LOGGING_CATEGORY(lcOrb)

#pragma once

#include "harness/Suite.h"

class BareStub;
class RawClient;
class Simulator;
class VexConnection;
class Workbench;

/** Both ends of everything that is measured. */
struct LinkBench
{
    const Workbench &workbench;
    Simulator &simulator;
    VexConnection &connection;
    RawClient &raw;
    BareStub &stub;
};

/** The small call, the listing of many entries, and events. */
void addCallRows(Suite &suite, const LinkBench &bench);

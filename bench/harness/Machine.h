#pragma once

#include <QString>

/** The machine that the figures come from, in a line: processor, memory, system. */
QString describeMachine();

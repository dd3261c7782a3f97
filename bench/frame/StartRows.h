#pragma once

#include <QDir>

#include "harness/Suite.h"

/** @p port is that of a simulator. */
void addStartRows(Suite &suite, const QDir &directory, quint16 port);

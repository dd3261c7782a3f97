#pragma once

/** @file What this process has open, as the kernel counts it. */

int openDescriptors();
int runningThreads();

#pragma once

#include <QString>

#include <functional>

#include "TransferStep.h"

/** The copy of a local file, with its time of modification and its permissions. */
namespace LocalFileCopy {

/** Told the bytes done after each chunk; false ends the copy. */
using Progress = std::function<bool(qint64 done)>;

/**
 * Copies the regular file @p source to the new file @p target. Nothing but a regular file is
 * opened. Fatal when the target is full.
 */
TransferStep copy(const QString &source, const QString &target, const Progress &progress);

} // namespace LocalFileCopy

#pragma once

#include <QCoreApplication>
#include <QString>

#include "Run.h"

/// Who has written a file: what the instrument's file list looks for in the first lines.
struct RunHead
{
    QString serverId; ///< of the controller that the application was connected to
    QString appType;
    QString appTech;
    QString ports;

    bool operator==(const RunHead &) const = default;
};

/**
 * A run in a file.
 *
 * Files come from anywhere, so reading takes nothing on trust: a file that is too large, that is
 * not one of ours, or that has anything in it that does not make sense is refused as a whole, with
 * the reason.
 */
class RunFile
{
    Q_DECLARE_TR_FUNCTIONS(RunFile)

public:
    static constexpr qint64 largestFile = 16 * 1024 * 1024;
    static constexpr int mostSamples = 1'000'000;
    static constexpr int mostEvents = 10'000;

    /// "xml", without a dot.
    static QString suffix();

    RunHead head;
    Run run;

    /// Replaces the file at once. @return why it could not; empty after a success.
    [[nodiscard]] QString write(const QString &path) const;
    /// Leaves everything as it was when it fails. @return why it did; empty after a success.
    [[nodiscard]] QString read(const QString &path);
};

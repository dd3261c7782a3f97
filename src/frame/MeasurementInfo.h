#pragma once

#include <QDateTime>
#include <QString>

#include "AppPassFail.h"

/** What an application tells of its measurement, when it is asked for it. */
struct MeasurementInfo
{
    QString name; ///< of the measurement, as the user knows it
    QString port; ///< of the instrument that it runs on; empty for none
    QString setupFile; ///< full paths; empty when it was not loaded from one, or not saved yet
    QString resultFile;
    QDateTime started; ///< invalid when none was started
    qint64 elapsedMs = 0; ///< since it was started, up to its end
    bool isRunning = false;
    AppPassFail verdict = AppPassFail::None;
};

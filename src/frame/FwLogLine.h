#pragma once

#include <QMetaType>
#include <QString>

#include <VexExport.h>

/** A message as the framework log keeps it. */
struct VEX_EXPORT FwLogLine
{
    quint64 number = 0; ///< counts from 1 since the process began
    qint64 time = 0; ///< milliseconds since 1970, UTC
    QtMsgType level = QtInfoMsg;
    QString category;
    QString thread; ///< "main", or the name and the number of the thread
    QString text; ///< as it was logged; may have line ends

    /**
     * One line without an end: "2026-11-21T21:29:51.123Z warning vex.frame main: text". Line ends
     * and other control characters are written as escapes ("\n", "\x1b"), so that no text can look
     * like another line or steer a terminal.
     */
    QString toText() const;

    /** "debug", "info", "warning", "critical", "fatal". */
    static QString levelName(QtMsgType level);
    /** 0 for debug to 4 for fatal; the values of QtMsgType have another order. */
    static int severity(QtMsgType level);
};

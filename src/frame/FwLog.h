#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

#include "FwLogLine.h"

/**
 * The log of the application: takes what is logged through Qt (qCInfo(), qWarning(), ...) and
 * writes it to the standard error output, to a file, and to FwLogView, from a thread of its own.
 *
 * Who logs never waits for a file or a terminal. A message is copied into a ring of fixed size,
 * from where the writer takes it. When the writer can't keep up, the oldest messages of the ring
 * are dropped; how many is written as a line of its own.
 *
 * The ring lies in a file beside the log ("NAME.log.journal") that is mapped into memory. What the
 * process has copied there stays when it crashes or is killed: the next start() carries it over to
 * the log file, with a line that says so. This was chosen over a crash handler because SIGKILL and
 * the kernel's out-of-memory killer leave no time for one, and because a handler would have to work
 * with whatever the crash has left of the heap. Nothing is promised for a machine that loses power.
 *
 * Two processes that are given the same file each get one of their own: the first has
 * "NAME.log", the next ones "NAME.2.log" to "NAME.9.log"; filePath() says which.
 *
 * A child of fork() has no log until it executes a program: what it says goes to the message
 * handler that was there before start().
 *
 * All functions are thread-safe, but start() and stop() are for one thread at a time. Logging from
 * a signal handler is not possible.
 */
class VEX_EXPORT FwLog
{
public:
    struct Options
    {
        bool standardError = true;
        /// The log file; its directory is made. Empty: no file, and nothing outlives a crash.
        QString filePath;
        /// Where the journal lies; empty: beside the log. With slow flash memory the kernel may
        /// hold up who logs while it writes the journal back: a directory in memory that only this
        /// user can write to ($XDG_RUNTIME_DIR) avoids that, and outlives a crash as well.
        QString journalDirectory;
        /// Bytes, at which the file is renamed to "NAME.log.1", the one before to "NAME.log.2" and
        /// so on, and a new one begun; 64 KiB or more.
        qint64 maxFileSize = 4LL * 1024 * 1024;
        int fileCount = 5; ///< how many are kept, the one that is written included; 1 or more
        int shownLines = 2000; ///< how many of the newest lines() has
        /// Bytes of the ring, what may wait for the writer; 64 KiB to 64 MiB.
        int ringSize = 1024 * 1024;
        /// Hands each message on to the handler that was there before, too, in the thread that
        /// logs it.
        bool callPreviousHandler = false;
    };

    static FwLog &instance();

    FwLog(const FwLog &) = delete;
    FwLog &operator=(const FwLog &) = delete;

    /**
     * Takes over Qt's message handler and carries over what crashed processes have left behind.
     * False, and nothing happens, while the log runs and in a child of fork(). Rules that were set
     * by QLoggingCategory::setFilterRules() give way to those of setRules() and setLevel().
     *
     * A file that can't be written (a read-only directory, a full disk) is no failure: the log goes
     * on without it, says so once in the other destinations, and tries again every few seconds.
     */
    bool start(const Options &options);
    /** Writes what waits, and restores the message handler. Done at the end of the process, too. */
    void stop();
    bool isRunning() const;

    /** The file that is being written; empty without one. */
    QString filePath() const;

    /**
     * Messages of @p category ("vex.corba", or "vex.*" for all that begin so) are logged from
     * @p lowest on; of "vex.frame" from information on unless this says otherwise. The environment
     * (QT_LOGGING_RULES) has the last word.
     */
    void setLevel(const QString &category, QtMsgType lowest);
    /** Rules of QLoggingCategory::setFilterRules(), which come before those of setLevel(). */
    void setRules(const QString &rules);

    /**
     * Waits until all that was logged before is written. False when this takes more than
     * @p timeoutMs. A fatal message does so by itself, before the process ends.
     */
    bool flush(int timeoutMs = 1000);

    /** The newest lines after the one with the number @p after, oldest first. */
    QVector<FwLogLine> lines(quint64 after = 0) const;
    /** The number of the newest of lines(). Cheap. */
    quint64 newestLine() const;
    /** How many messages were dropped since start(). */
    quint64 droppedLines() const;

    class Private;

private:
    FwLog();
    ~FwLog();

    const std::unique_ptr<Private> d;
};

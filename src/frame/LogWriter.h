#pragma once

#include <QDeadlineTimer>

#include <memory>
#include <thread>

#include "LogConsole.h"
#include "LogFile.h"
#include "LogHistory.h"
#include "LogQueue.h"

/** The thread that takes messages from the queue to their destinations. */
class LogWriter
{
public:
    /** Begins at once. @p file may be null. */
    LogWriter(LogQueue &queue, LogHistory &history, std::unique_ptr<LogFile> file, bool console);
    /** Waits for the end of the queue. */
    ~LogWriter();

private:
    void run();
    void write(const LogRing::Batch &batch);
    quint64 writeFile(const QByteArray &text, qsizetype count);
    void setFileFailed(bool failed);
    void note(QtMsgType level, const QString &text);

    LogQueue &m_queue;
    LogHistory &m_history;
    const std::unique_ptr<LogFile> m_file;
    const bool m_hasConsole;
    LogConsole m_console;
    bool m_fileFailed = false;
    qsizetype m_missing = 0; ///< lines that are not in the file since it failed
    QDeadlineTimer m_nextTry;
    std::thread m_thread;
};

#include "LogWriter.h"

#include <csignal>
#include <pthread.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int retryMs = 2000;

/// Starts a thread that gets none of the application's signals, nor SIGPIPE.
template<typename Function>
std::thread startWithoutSignals(Function &&function)
{
    sigset_t all {};
    sigset_t before {};
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    std::thread thread(std::forward<Function>(function));
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return thread;
}

/// Has the number of the last of the messages that it stands for.
FwLogLine droppedLine(quint64 count, const FwLogLine &next)
{
    return {next.number - 1, next.time,
            QtWarningMsg,    u"vex.frame.log"_s,
            u"log"_s,        u"%1 messages were dropped: the log couldn't keep up"_s.arg(count)};
}

} // namespace

LogWriter::LogWriter(LogQueue &queue, LogHistory &history, std::unique_ptr<LogFile> file,
                     bool console)
    : m_queue(queue)
    , m_history(history)
    , m_file(std::move(file))
    , m_hasConsole(console)
{
    if (m_file) {
        m_file->setAboutToRotate([this] { m_queue.setFileSize(LogRing::Unknown); });
        m_queue.setFileSize(quint64(m_file->size()));
    }
    m_thread = startWithoutSignals([this] { run(); });
}

LogWriter::~LogWriter()
{
    m_thread.join();
}

void LogWriter::run()
{
    pthread_setname_np(pthread_self(), "VexLog");
    while (m_queue.waitForWork()) {
        write(m_queue.take());
    }
}

void LogWriter::write(const LogRing::Batch &batch)
{
    QVector<FwLogLine> lines = LogRing::parse(batch.records);
    if (batch.dropped > 0 && !lines.isEmpty()) {
        lines.prepend(droppedLine(batch.dropped, lines.constFirst()));
    }
    QByteArray text;
    for (const FwLogLine &line : std::as_const(lines)) {
        text += line.toText().toUtf8() + '\n';
    }
    m_queue.commit(batch, writeFile(text, lines.size()));
    if (m_hasConsole) {
        m_console.write(text);
    }
    m_history.append(lines);
    m_queue.setWritten(batch);
}

/// Returns the size of the file with @p text.
quint64 LogWriter::writeFile(const QByteArray &text, qsizetype count)
{
    if (!m_file) {
        return LogRing::Unknown;
    }
    if (m_fileFailed && !m_nextTry.hasExpired()) {
        m_missing += count;
    } else if (m_file->write(text)) {
        setFileFailed(false);
    } else {
        m_missing += count;
        m_nextTry.setRemainingTime(retryMs);
        setFileFailed(true);
    }
    return quint64(m_file->size());
}

void LogWriter::setFileFailed(bool failed)
{
    if (failed == m_fileFailed) {
        return;
    }
    m_fileFailed = failed;
    if (failed) {
        note(QtWarningMsg,
             u"Can't write the log file %1: %2. The log goes on without it, and tries again."_s.arg(
                 m_file->path(), m_file->error()));
    } else {
        note(QtInfoMsg,
             u"The log file %1 is written again; %2 lines are missing in it"_s.arg(m_file->path())
                 .arg(m_missing));
        m_missing = 0;
    }
}

void LogWriter::note(QtMsgType level, const QString &text)
{
    m_queue.append(level, "vex.frame.log", "log", text.toUtf8());
}

#include "FwLog.h"

#include <QLoggingCategory>
#include <QMap>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <pthread.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "LogSlot.h"
#include "LogWriter.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestText = 8192; ///< in characters
constexpr int fatalFlushMs = 1000;

struct ThreadName
{
    ThreadName()
    {
        const long number = syscall(SYS_gettid);
        if (number == getpid()) {
            std::strcpy(text, "main");
        } else {
            pthread_getname_np(pthread_self(), text, sizeof text);
            const size_t length = std::strlen(text);
            std::snprintf(text + length, sizeof text - length, ":%ld", number);
        }
    }

    char text[40] = {};
};
static_assert(std::is_trivially_destructible_v<ThreadName>,
              "what is destroyed after it, at the thread's end, may log, too");

QByteArrayView threadName()
{
    // Asked for once: a name that is set later is not seen.
    static thread_local const ThreadName name;
    return name.text;
}

QByteArray bytesOf(const QString &text)
{
    if (text.size() <= longestText) {
        return text.toUtf8();
    }
    return text.left(longestText).toUtf8() + " ... (" + QByteArray::number(text.size())
        + " characters)";
}

QString rulesFor(const QString &category, QtMsgType lowest)
{
    QString rules;
    for (const QtMsgType level : {QtDebugMsg, QtInfoMsg, QtWarningMsg, QtCriticalMsg}) {
        const bool on = FwLogLine::severity(level) >= FwLogLine::severity(lowest);
        rules +=
            category + u'.' + FwLogLine::levelName(level) + (on ? u"=true\n"_s : u"=false\n"_s);
    }
    return rules;
}

FwLog::Options bounded(const FwLog::Options &options)
{
    FwLog::Options result = options;
    result.maxFileSize = qMax<qint64>(options.maxFileSize, 64 * 1024);
    result.fileCount = qMax(options.fileCount, 1);
    result.shownLines = qMax(options.shownLines, 1);
    result.ringSize = qBound(64 * 1024, options.ringSize, 64 * 1024 * 1024);
    return result;
}

} // namespace

class FwLog::Private
{
public:
    static void handle(QtMsgType level, const QMessageLogContext &context, const QString &text);

    void take(QtMsgType level, const QMessageLogContext &context, const QString &text);
    void applyRules();
    /// A child of fork() has the ring in common with its parent, but no lock for both.
    bool isForked() const { return process != 0 && process != getpid(); }

    LogQueue queue;
    LogHistory history;
    std::unique_ptr<LogSlot> slot;
    std::unique_ptr<LogWriter> writer;
    std::atomic<QtMessageHandler> previous = nullptr;
    std::atomic<bool> callsPrevious = false;
    std::atomic<pid_t> process = 0; ///< that has started the log; 0 for none

    mutable std::mutex mutex; ///< for what follows
    QString filePath;
    bool running = false;
    QString rules;
    QMap<QString, QtMsgType> levels {{u"vex.frame"_s, QtInfoMsg}};
};

void FwLog::Private::handle(QtMsgType level, const QMessageLogContext &context, const QString &text)
{
    static thread_local bool busy = false;
    if (!busy) {
        busy = true;
        instance().d->take(level, context, text);
        busy = false;
    }
}

void FwLog::Private::take(QtMsgType level, const QMessageLogContext &context, const QString &text)
{
    const char *category = context.category ? context.category : "default";
    const bool taken = !isForked() && queue.append(level, category, threadName(), bytesOf(text));
    if (taken && level == QtFatalMsg) {
        queue.flush(fatalFlushMs);
    }
    // Another handler that was installed on top may still hand messages down after stop().
    const QtMessageHandler next = previous;
    if (next && (!taken || callsPrevious)) {
        next(level, context, text);
    }
}

void FwLog::Private::applyRules()
{
    QString all = rules + u'\n';
    for (auto level = levels.cbegin(); level != levels.cend(); ++level) {
        all += rulesFor(level.key(), level.value());
    }
    QLoggingCategory::setFilterRules(all);
}

FwLog &FwLog::instance()
{
    // Never destroyed: threads may log until the process is gone.
    static FwLog *const log = new FwLog;
    return *log;
}

FwLog::FwLog()
    : d(std::make_unique<Private>())
{
    std::atexit([] { instance().stop(); });
}

FwLog::~FwLog() = default;

bool FwLog::start(const Options &wanted)
{
    if (d->isForked() || isRunning()) {
        return false;
    }
    const Options options = bounded(wanted);
    d->slot = std::make_unique<LogSlot>(options);
    d->queue.open(d->slot->map(options.ringSize), options.ringSize);
    d->history.begin(options.shownLines);
    d->writer = std::make_unique<LogWriter>(
        d->queue, d->history, d->slot->makeFile(d->slot->path()), options.standardError);
    d->callsPrevious = options.callPreviousHandler;
    d->process = getpid();
    {
        const std::lock_guard lock(d->mutex);
        d->filePath = d->slot->path();
        d->running = true;
        d->applyRules();
    }
    d->previous = qInstallMessageHandler(&Private::handle);
    const QStringList remarks = d->slot->remarks();
    for (const QString &remark : remarks) {
        d->queue.append(QtWarningMsg, "vex.frame.log", "log", remark.toUtf8());
    }
    return true;
}

void FwLog::stop()
{
    if (d->isForked() || !isRunning()) {
        return;
    }
    const QtMessageHandler onTop = qInstallMessageHandler(d->previous);
    if (onTop != &Private::handle) {
        qInstallMessageHandler(onTop);
    }
    d->queue.close();
    d->writer.reset();
    d->queue.release();
    d->slot->close();
    d->slot.reset();
    d->process = 0;
    const std::lock_guard lock(d->mutex);
    d->filePath.clear();
    d->running = false;
}

bool FwLog::isRunning() const
{
    const std::lock_guard lock(d->mutex);
    return d->running;
}

QString FwLog::filePath() const
{
    const std::lock_guard lock(d->mutex);
    return d->filePath;
}

void FwLog::setLevel(const QString &category, QtMsgType lowest)
{
    const std::lock_guard lock(d->mutex);
    d->levels.insert(category, lowest);
    d->applyRules();
}

void FwLog::setRules(const QString &rules)
{
    const std::lock_guard lock(d->mutex);
    d->rules = rules;
    d->applyRules();
}

bool FwLog::flush(int timeoutMs)
{
    return d->isForked() || d->queue.flush(timeoutMs);
}

QVector<FwLogLine> FwLog::lines(quint64 after) const
{
    return d->history.lines(after);
}

quint64 FwLog::newestLine() const
{
    return d->history.newest();
}

quint64 FwLog::droppedLines() const
{
    return d->queue.dropped();
}

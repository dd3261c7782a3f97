#include "FileTransfer.h"

#include <QPointer>
#include <QThread>
#include <QTimer>

#include "TransferRun.h"

using namespace std::chrono_literals;

namespace {

/// A little more than a twentieth of a second: a timer may come a little early.
constexpr auto ProgressInterval = 55ms;

} // namespace

TransferQuestions::~TransferQuestions() = default;

struct FileTransfer::Private
{
    ConflictDesk::Ask asker(FileTransfer *q) const;
    void work(FileTransfer *q);
    void showProgress(FileTransfer *q);
    void end(FileTransfer *q, const TransferSummary &summary);

    TransferRun::Task task;
    TransferQuestions *questions = nullptr;
    bool isStarted = false;
    bool isCancelled = false;
    bool isRunning = false;
    std::unique_ptr<TransferRun> run;
    std::unique_ptr<QThread> thread;
    QTimer timer;
    TransferProgress shown;
};

FileTransfer::FileTransfer(FcpAppCORBA *controller, Kind kind, const QStringList &sources,
                           const QString &targetFolder, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    d->task = {controller, kind, sources, targetFolder, {}};
    d->timer.setTimerType(Qt::PreciseTimer);
    connect(&d->timer, &QTimer::timeout, this, [this] { d->showProgress(this); });
}

FileTransfer::~FileTransfer()
{
    if (d->thread) {
        d->run->cancel();
        d->thread->wait();
    }
}

FileTransfer::Kind FileTransfer::kind() const
{
    return d->task.kind;
}

QString FileTransfer::targetFolder() const
{
    return d->task.targetFolder;
}

bool FileTransfer::isRunning() const
{
    return d->isRunning;
}

TransferProgress FileTransfer::progress() const
{
    return d->run ? d->run->progress() : TransferProgress();
}

void FileTransfer::setQuestions(TransferQuestions *questions)
{
    d->questions = questions;
}

void FileTransfer::setTargetName(const QString &source, const QString &name)
{
    d->task.names.insert(source, name);
}

void FileTransfer::start()
{
    if (std::exchange(d->isStarted, true)) {
        return;
    }
    d->isRunning = true;
    d->run = std::make_unique<TransferRun>(d->task, d->asker(this));
    if (d->isCancelled) {
        d->run->cancel();
    }
    d->thread.reset(QThread::create([this] { d->work(this); }));
    d->thread->setObjectName(QStringLiteral("VexFileTransfer"));
    d->timer.start(ProgressInterval);
    d->thread->start();
}

void FileTransfer::cancel()
{
    d->isCancelled = true;
    if (d->run) {
        d->run->cancel();
    }
}

/// Brings a question to the transfer's own thread.
ConflictDesk::Ask FileTransfer::Private::asker(FileTransfer *q) const
{
    if (!questions) {
        return {};
    }
    return [this, q](const FileConflict &conflict, const TransferQuestions::Answer &answer) {
        QMetaObject::invokeMethod(
            q,
            [this, conflict, answer] {
                if (!isCancelled) {
                    questions->askConflict(conflict, answer);
                }
            },
            Qt::QueuedConnection);
    };
}

/// On the worker thread.
void FileTransfer::Private::work(FileTransfer *q)
{
    const TransferSummary summary = run->run();
    QMetaObject::invokeMethod(
        q, [this, q, summary] { end(q, summary); }, Qt::QueuedConnection);
}

void FileTransfer::Private::showProgress(FileTransfer *q)
{
    const TransferProgress now = run->progress();
    const bool isNews = now.bytesDone != shown.bytesDone || now.bytesTotal != shown.bytesTotal
        || now.fileNumber != shown.fileNumber || now.remaining != shown.remaining
        || now.fileCount != shown.fileCount;
    if (isNews) {
        shown = now;
        Q_EMIT q->progressChanged(now);
    }
}

void FileTransfer::Private::end(FileTransfer *q, const TransferSummary &summary)
{
    thread->wait();
    timer.stop();
    isRunning = false;
    const QPointer<FileTransfer> alive(q);
    showProgress(q);
    if (alive) {
        Q_EMIT q->finished(summary);
    }
}

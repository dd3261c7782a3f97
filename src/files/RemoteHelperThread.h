#pragma once

#include <QString>
#include <QThread>
#include <QVector>

#include <atomic>

#include "VexExport.h"

class FcpAppCORBA;

/**
 * Removes, copies or moves files of the instrument, one after another, on a thread.
 *
 * Every completion signal is emitted on that thread. Each item done gives one with result 0 and
 * @c final false; then comes exactly one with @c final true: 0 and empty paths at the end of the
 * list, -5 and empty paths after cancel(), or what stopped the run and the item it stopped at.
 */
class VEX_EXPORT RemoteHelperThread : public QThread
{
    Q_OBJECT

public:
    enum class Kind { Remove, Copy, Move };

    /** @p controller is not owned and must outlive the thread. */
    explicit RemoteHelperThread(FcpAppCORBA *controller, QObject *parent = nullptr);
    /** Cancels, and waits for the call under way. */
    ~RemoteHelperThread() override;

    /** Fills in what start() is to do, and forgets a cancel(). Not while it runs. */
    void setTask(Kind kind, const QVector<QString> &sources, const QString &destination = {});
    /** Ends the run before its next item. From any thread. */
    void cancel();

Q_SIGNALS:
    void removeComplete(long result, const QString &more, bool final);
    void copyComplete(long result, const QString &src, const QString &dst, bool final);
    void moveComplete(long result, const QString &src, const QString &dst, bool final);

protected:
    void run() override;

private:
    long carryOut(const QString &source) const;
    long call(const QString &source) const;
    void report(long result, const QString &source, const QString &destination, bool final);

    FcpAppCORBA *const m_controller;
    Kind m_kind = Kind::Remove;
    QVector<QString> m_sources;
    QString m_destination;
    std::atomic<bool> m_cancelled = false;
};

#pragma once

#include <QDir>
#include <QString>
#include <QThread>
#include <QVector>

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>

#include "ListingDiff.h"

class FcpAppCORBA;

/** Lists directories of the instrument on a thread, one after another. */
class RemoteLister : public QThread
{
public:
    struct Request
    {
        quint64 id = 0;
        QString path;
        QVector<QString> patterns;
        QDir::Filters filters;
        QVector<FileSystemItem> known; ///< what the diff is to be made against
    };
    struct Result
    {
        quint64 id = 0;
        std::shared_ptr<ListingDiff> diff; ///< null when the listing failed
    };

    /** @p notify is called on the lister's thread when there are results. */
    RemoteLister(FcpAppCORBA *controller, std::function<void()> notify);
    /** Waits for the call under way. */
    ~RemoteLister() override;

    /** Drops what waits, and ends after the call under way. Nobody is notified afterwards. */
    void end();

    void post(Request request);
    /** Whether the controller was not yet asked. */
    bool isWaiting(quint64 id);
    void drop(quint64 id);
    std::vector<Result> takeResults();

    /** Asks the controller. @return null when that failed. */
    static std::shared_ptr<ListingDiff> list(FcpAppCORBA *controller, const Request &request);

private:
    void run() override;
    bool next(Request &request);
    std::deque<Request>::iterator find(quint64 id);

    FcpAppCORBA *const m_controller;
    const std::function<void()> m_notify; ///< not once it is ending
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<Request> m_waiting;
    std::vector<Result> m_results;
    bool m_ending = false;
};

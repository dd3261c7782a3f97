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
class RemoteLister : private QThread
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
    /** Called on the lister's thread; @p diff is null when the listing failed. */
    using Deliver = std::function<void(quint64 id, const std::shared_ptr<ListingDiff> &diff)>;

    RemoteLister(FcpAppCORBA *controller, Deliver deliver);
    /** Drops what waits, and waits for the call under way. Nothing is delivered afterwards. */
    ~RemoteLister() override;

    void post(Request request);
    /** Whether the controller was not yet asked. */
    bool isWaiting(quint64 id);
    void drop(quint64 id);

    /** Asks the controller. @return null when that failed. */
    static std::shared_ptr<ListingDiff> list(FcpAppCORBA *controller, const Request &request);

private:
    void run() override;
    bool next(Request &request);
    std::deque<Request>::iterator find(quint64 id);

    FcpAppCORBA *const m_controller;
    const Deliver m_deliver;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<Request> m_waiting;
    bool m_ending = false;
};

#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

#include <chrono>

/**
 * Delivers events until @p condition holds; looks at it more often than QTRY_VERIFY, for conditions
 * that come true many times in a test. @return false when it did not in time.
 */
template<typename Condition>
bool pollUntil(Condition &&condition, std::chrono::milliseconds patience = std::chrono::seconds(20))
{
    const QDeadlineTimer deadline(patience);
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents();
        QThread::usleep(200);
    }
    return true;
}

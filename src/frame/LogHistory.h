#pragma once

#include <QVector>

#include <atomic>
#include <mutex>

#include "FwLogLine.h"

/** The newest lines, for views. Thread-safe. */
class LogHistory
{
public:
    void begin(int capacity);
    void append(const QVector<FwLogLine> &lines);
    /** Those after number @p after. */
    QVector<FwLogLine> lines(quint64 after) const;
    quint64 newest() const { return m_newest; }

private:
    mutable std::mutex m_mutex;
    QVector<FwLogLine> m_lines;
    qsizetype m_capacity = 0;
    std::atomic<quint64> m_newest = 0;
};

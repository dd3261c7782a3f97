#include "LogHistory.h"

#include <algorithm>

void LogHistory::begin(int capacity)
{
    const std::lock_guard lock(m_mutex);
    m_lines.clear();
    m_capacity = capacity;
}

void LogHistory::append(const QVector<FwLogLine> &lines)
{
    const std::lock_guard lock(m_mutex);
    m_lines += lines;
    if (m_lines.size() > m_capacity) {
        m_lines.remove(0, m_lines.size() - m_capacity);
    }
    m_newest = lines.isEmpty() ? m_newest.load() : lines.constLast().number;
}

QVector<FwLogLine> LogHistory::lines(quint64 after) const
{
    const std::lock_guard lock(m_mutex);
    const auto first = std::upper_bound(
        m_lines.begin(), m_lines.end(), after,
        [](quint64 number, const FwLogLine &line) { return number < line.number; });
    return m_lines.mid(first - m_lines.begin());
}

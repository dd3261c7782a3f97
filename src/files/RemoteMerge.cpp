#include "RemoteMerge.h"

#include <algorithm>

namespace {

/// So many unchanged rows between changed ones are told as changed: a signal costs more.
constexpr qint32 GapTold = 16;

} // namespace

RemoteMerge::RemoteMerge(RemoteRows *rows, RemoteNode *directory, std::shared_ptr<ListingDiff> diff)
    : m_rows(rows)
    , m_directory(directory)
    , m_diff(std::move(diff))
{
    if (m_diff->scattered) {
        const auto gone = qint32(m_diff->order.size()) - m_diff->staying;
        m_diff->removed = {{m_diff->staying, gone}};
    }
}

void RemoteMerge::step(qint32 batch)
{
    switch (m_stage) {
    case Stage::Updating:
        update(batch);
        break;
    case Stage::Gathering:
        m_stage = Stage::Removing;
        m_rows->reorderRows(m_directory, m_diff->order);
        break;
    case Stage::Removing:
        remove(batch);
        break;
    case Stage::Inserting:
        insert(batch);
        break;
    case Stage::Settling:
        m_stage = Stage::Over;
        m_rows->reorderRows(m_directory, m_diff->finalOrder());
        break;
    case Stage::Over:
        break;
    }
}

void RemoteMerge::update(qint32 batch)
{
    const std::vector<ListingDiff::Change> &changes = m_diff->changed;
    if (m_changes == changes.size()) {
        m_stage = m_diff->scattered ? Stage::Gathering : Stage::Removing;
        return;
    }
    const qint32 first = changes[m_changes].row;
    qint32 last = first;
    for (; m_changes < changes.size() && changes[m_changes].row - last <= GapTold
         && last - first < batch;
         ++m_changes) {
        last = changes[m_changes].row;
        change(changes[m_changes]);
    }
    m_rows->rowsChanged(m_directory, first, last);
}

void RemoteMerge::change(const ListingDiff::Change &change)
{
    RemoteNode *node = m_directory->child(change.row);
    m_changesSigns = m_changesSigns
        || (node->item.isdir && !node->isListed()
            && (node->item.dircount == 0) != (change.item.dircount == 0));
    node->item = change.item;
}

void RemoteMerge::remove(qint32 batch)
{
    std::vector<ListingDiff::Range> &ranges = m_diff->removed;
    while (!ranges.empty() && ranges.back().count == 0) {
        ranges.pop_back();
    }
    if (ranges.empty()) {
        m_stage = Stage::Inserting;
        return;
    }
    ListingDiff::Range &range = ranges.back();
    const qint32 count = std::min(batch, range.count);
    range.count -= count;
    m_rows->removeRows(m_directory, range.first + range.count, count);
}

void RemoteMerge::insert(qint32 batch)
{
    if (m_added == m_diff->added.size()) {
        m_stage = m_diff->scattered ? Stage::Settling : Stage::Over;
        return;
    }
    const auto first = m_diff->added.begin() + std::ptrdiff_t(m_added);
    const ListingDiff::Range &range = m_diff->inserted[m_range];
    const auto left = qint32(m_diff->added.size() - m_added);
    const qint32 count = std::min(batch, m_diff->scattered ? left : range.count - m_inRange);
    const qint32 row = m_diff->scattered ? m_directory->childCount() : range.first + m_inRange;
    m_added += size_t(count);
    m_inRange += count;
    if (m_inRange == range.count) {
        ++m_range;
        m_inRange = 0;
    }
    m_rows->insertRows(m_directory, row, first, count);
}

#include "ListingDiff.h"

#include <QHash>
#include <QStringView>

#include <algorithm>
#include <array>

namespace {

/// Inserting or removing one range moves all rows behind it.
constexpr qsizetype RowsMovedAtMost = 4'000'000;
constexpr qsizetype RangesAlwaysBorne = 16;

bool isSame(const FileSystemItem &a, const FileSystemItem &b)
{
    return a.isdir == b.isdir && a.name == b.name;
}

void extend(std::vector<ListingDiff::Range> &ranges, qint32 row)
{
    if (ranges.empty() || ranges.back().first + ranges.back().count != row) {
        ranges.push_back({row, 0});
    }
    ++ranges.back().count;
}

/// Finds entries by name and kind, each once, those of one name in their order.
class Finder
{
public:
    Finder(const QVector<FileSystemItem> &items, qint32 from)
        : m_items(items)
        , m_next(size_t(items.size()), -1)
    {
        m_first[0].reserve(items.size() - from);
        for (auto row = qint32(items.size()) - 1; row >= from; --row) {
            qint32 &first = rowsOf(items[row]).emplace(items[row].name, -1).value();
            m_next[size_t(row)] = std::exchange(first, row);
        }
    }

    qint32 take(const FileSystemItem &item)
    {
        const auto found = rowsOf(item).find(item.name);
        if (found == rowsOf(item).end() || found.value() < 0) {
            return -1;
        }
        return std::exchange(found.value(), m_next[size_t(found.value())]);
    }

private:
    using Rows = QHash<QStringView, qint32>;

    Rows &rowsOf(const FileSystemItem &item) { return m_first[item.isdir ? 1 : 0]; }

    const QVector<FileSystemItem> &m_items;
    std::array<Rows, 2> m_first;
    std::vector<qint32> m_next;
};

} // namespace

ListingDiff::ListingDiff(const QVector<FileSystemItem> &known,
                         const QVector<FileSystemItem> &listed)
{
    const auto both = qint32(std::min(known.size(), listed.size()));
    qint32 row = 0;
    order.reserve(size_t(known.size()));
    for (; row < both && isSame(known[row], listed[row]); ++row) {
        keep(row, known[row], listed[row]);
    }
    if (row < known.size()) {
        Finder finder(known, row);
        for (; row < listed.size(); ++row) {
            const qint32 found = finder.take(listed[row]);
            if (found < 0) {
                add(row, listed[row]);
            } else {
                keep(found, known[found], listed[row]);
            }
        }
    }
    for (; row < listed.size(); ++row) {
        add(row, listed[row]);
    }
    listRemoved(qint32(known.size()));
}

void ListingDiff::add(qint32 row, const FileSystemItem &item)
{
    added.push_back(std::make_unique<RemoteNode>(item));
    if (added.size() > 1 && added[added.size() - 2]->item.date == item.date) {
        added.back()->item.date = added[added.size() - 2]->item.date; // one text for both
    }
    extend(inserted, row);
}

void ListingDiff::keep(qint32 known, const FileSystemItem &before, const FileSystemItem &now)
{
    scattered = scattered || (!order.empty() && known < order.back());
    order.push_back(known);
    ++staying;
    if (before != now) {
        changed.push_back({known, now});
    }
}

void ListingDiff::listRemoved(qint32 known)
{
    std::vector<bool> stays(size_t(known), false);
    for (const qint32 row : order) {
        stays[size_t(row)] = true;
    }
    for (qint32 row = 0; row < known; ++row) {
        if (!stays[size_t(row)]) {
            order.push_back(row);
            extend(removed, row);
        }
    }
    if (scattered) {
        std::sort(changed.begin(), changed.end(),
                  [](const Change &a, const Change &b) { return a.row < b.row; });
    }
    const auto ranges = qsizetype(removed.size() + inserted.size());
    const qsizetype rows = known + qsizetype(added.size()) + 1;
    scattered = scattered || ranges > std::max(RangesAlwaysBorne, RowsMovedAtMost / rows);
}

std::vector<qint32> ListingDiff::finalOrder() const
{
    std::vector<qint32> rows;
    rows.reserve(size_t(staying) + added.size());
    qint32 stayed = 0;
    qint32 came = staying;
    for (const Range &range : inserted) {
        while (qint32(rows.size()) < range.first) {
            rows.push_back(stayed++);
        }
        for (qint32 i = 0; i < range.count; ++i) {
            rows.push_back(came++);
        }
    }
    while (stayed < staying) {
        rows.push_back(stayed++);
    }
    return rows;
}

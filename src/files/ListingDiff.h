#pragma once

#include <QVector>

#include "RemoteNode.h"

/**
 * What makes the known entries of a directory those of a new listing. Takes time in proportion to
 * the number of entries, and may be made on any thread.
 */
struct ListingDiff
{
    struct Range
    {
        qint32 first = 0;
        qint32 count = 0;
    };
    struct Change
    {
        qint32 row = 0; ///< the known one
        FileSystemItem item;
    };

    ListingDiff(const QVector<FileSystemItem> &known, const QVector<FileSystemItem> &listed);

    std::vector<Change> changed; ///< by ascending row
    std::vector<Range> removed; ///< known rows, ascending
    std::vector<Range> inserted; ///< rows of the listing, ascending
    RemoteNodes added; ///< what comes into the inserted rows
    /** The known rows of those that stay, in the order of the listing; then of those that go. */
    std::vector<qint32> order;
    qint32 staying = 0; ///< how many of them
    /** What stays gets another order, or there are so many ranges that sorting is cheaper. */
    bool scattered = false;

    /** When what stays comes first and what was added comes behind it: the way to the listing. */
    std::vector<qint32> finalOrder() const;

private:
    void add(qint32 row, const FileSystemItem &item);
    void keep(qint32 known, const FileSystemItem &before, const FileSystemItem &now);
    void listRemoved(qint32 known);
};

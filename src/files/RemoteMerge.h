#pragma once

#include <memory>

#include "ListingDiff.h"

/** Changes the rows of a directory, and tells the views so. */
class RemoteRows
{
public:
    virtual ~RemoteRows() = default;

    virtual void insertRows(RemoteNode *directory, qint32 row, RemoteNodes::iterator first,
                            qint32 count) = 0;
    virtual void removeRows(RemoteNode *directory, qint32 row, qint32 count) = 0;
    /** @p order holds, for each row to be, the row that it has now. */
    virtual void reorderRows(RemoteNode *directory, const std::vector<qint32> &order) = 0;
    virtual void rowsChanged(RemoteNode *directory, qint32 first, qint32 last) = 0;
};

/**
 * Brings a listing into the tree, in steps, between which the tree is whole.
 *
 * Updating -> [Gathering] -> Removing -> Inserting -> [Settling] -> Over. Those in brackets only
 * where there are many small ranges, or another order: what goes is brought to the end, what comes
 * is added there, and one more sorting puts it into its place.
 */
class RemoteMerge
{
public:
    /** @p diff is against the entries that @p directory has now. */
    RemoteMerge(RemoteRows *rows, RemoteNode *directory, std::shared_ptr<ListingDiff> diff);

    bool isOver() const { return m_stage == Stage::Over; }
    /**
     * Does the next thing, to some @p batch rows at most where rows come or go.
     *
     * The views' reaction may be that this is deleted: a step looks at nothing afterwards.
     */
    void step(qint32 batch);
    /** A directory began or ceased to look empty: an expanding sign comes or goes. */
    bool changesSigns() const { return m_changesSigns; }

private:
    enum class Stage { Updating, Gathering, Removing, Inserting, Settling, Over };

    void update(qint32 batch);
    void change(const ListingDiff::Change &change);
    void remove(qint32 batch);
    void insert(qint32 batch);

    RemoteRows *const m_rows;
    RemoteNode *const m_directory;
    const std::shared_ptr<ListingDiff> m_diff;
    Stage m_stage = Stage::Updating;
    size_t m_changes = 0; ///< made
    size_t m_added = 0; ///< entries inserted
    size_t m_range = 0; ///< of those inserted
    qint32 m_inRange = 0; ///< rows inserted in it
    bool m_changesSigns = false;
};

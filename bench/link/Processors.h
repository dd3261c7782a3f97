#pragma once

#include <QList>

/** A process and the processor that it shall keep to. */
struct Placement
{
    qint64 process;
    int processor;
};

/**
 * Keeps processes, with all their threads, to one processor each while it lives.
 *
 * For an exchange of microseconds it matters most whether the scheduler puts the two ends on the
 * same processor: waking another one takes longer than the exchange. Left to chance, that decides
 * the outcome.
 */
class PinnedProcesses
{
public:
    explicit PinnedProcesses(const QList<Placement> &placements);
    ~PinnedProcesses();

    PinnedProcesses(const PinnedProcesses &) = delete;
    PinnedProcesses &operator=(const PinnedProcesses &) = delete;

private:
    const QList<Placement> m_placements;
};

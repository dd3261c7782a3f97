#include "Processors.h"

#include <QDir>

#include <sched.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

cpu_set_t allProcessors()
{
    cpu_set_t set;
    CPU_ZERO(&set);
    const int count = static_cast<int>(::sysconf(_SC_NPROCESSORS_CONF));
    for (int i = 0; i < count; ++i) {
        CPU_SET(static_cast<size_t>(i), &set);
    }
    return set;
}

void moveThreads(qint64 process, const cpu_set_t &set)
{
    const QStringList threads =
        QDir(u"/proc/%1/task"_s.arg(process)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &thread : threads) {
        ::sched_setaffinity(thread.toInt(), sizeof set, &set);
    }
}

} // namespace

PinnedProcesses::PinnedProcesses(const QList<Placement> &placements)
    : m_placements(placements)
{
    for (const Placement &placement : m_placements) {
        cpu_set_t set;
        CPU_ZERO(&set);
        CPU_SET(static_cast<size_t>(placement.processor), &set);
        moveThreads(placement.process, set);
    }
}

PinnedProcesses::~PinnedProcesses()
{
    for (const Placement &placement : m_placements) {
        moveThreads(placement.process, allProcessors());
    }
}

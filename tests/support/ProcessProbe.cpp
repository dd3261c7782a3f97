#include "ProcessProbe.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

int entries(const char *directory)
{
    // The listing itself holds the directory open.
    return int(QDir(QLatin1String(directory))
                   .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                   .size());
}

} // namespace

int openDescriptors()
{
    return entries("/proc/self/fd");
}

int openSockets()
{
    const QDir descriptors(QStringLiteral("/proc/self/fd"));
    const QFileInfoList all = descriptors.entryInfoList(QDir::AllEntries | QDir::System);
    return int(std::count_if(all.cbegin(), all.cend(), [](const QFileInfo &descriptor) {
        return descriptor.symLinkTarget().contains(QLatin1String("socket:"));
    }));
}

int runningThreads()
{
    return entries("/proc/self/task");
}

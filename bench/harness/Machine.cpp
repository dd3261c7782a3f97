#include "Machine.h"

#include <QFile>
#include <QRegularExpression>
#include <QSysInfo>
#include <QThread>

#include <fcntl.h>
#include <unistd.h>

#include <cstdint>

using namespace Qt::StringLiterals;

namespace {

/// The first value of @p key in a file of the kernel with lines of the form "key : value".
QString valueIn(const QString &path, const QString &key)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QRegularExpression pattern(u"^%1\\s*:\\s*(.*)$"_s.arg(key),
                                     QRegularExpression::MultilineOption);
    return pattern.match(QString::fromUtf8(file.readAll())).captured(1).trimmed();
}

} // namespace

QString describeMachine()
{
    const QString model = valueIn(u"/proc/cpuinfo"_s, u"model name"_s);
    const bool isVirtual =
        valueIn(u"/proc/cpuinfo"_s, u"flags"_s).split(u' ').contains(u"hypervisor"_s);
    const double kilobytes =
        valueIn(u"/proc/meminfo"_s, u"MemTotal"_s).section(u' ', 0, 0).toDouble();
    return u"%1%2, %3 processors, %4 GiB; %5, Linux %6"_s
        .arg(isVirtual ? u"virtual machine, "_s : QString(), model)
        .arg(QThread::idealThreadCount())
        .arg(kilobytes / (1024 * 1024), 0, 'f', 0)
        .arg(QSysInfo::prettyProductName(), QSysInfo::kernelVersion().section(u'-', 0, 0));
}

AwakeProcessors::AwakeProcessors()
    : m_request(::open("/dev/cpu_dma_latency", O_WRONLY | O_CLOEXEC))
{
    // The longest time, in microseconds, that a processor may need to wake; it holds until closed.
    const std::int32_t longest = 0;
    if (m_request >= 0 && ::write(m_request, &longest, sizeof longest) != sizeof longest) {
        ::close(m_request);
        m_request = -1;
    }
}

AwakeProcessors::~AwakeProcessors()
{
    if (m_request >= 0) {
        ::close(m_request);
    }
}

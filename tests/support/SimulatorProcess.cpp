#include "SimulatorProcess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// 3 openFile("/Internal/a.txt", true, false) = FS_OK 71264
SimulatorProcess::Call parseCall(const QByteArray &line)
{
    const qsizetype space = line.indexOf(' ');
    const qsizetype opening = line.indexOf('(', space);
    const qsizetype closing = line.lastIndexOf(')');
    SimulatorProcess::Call call;
    call.connection = line.first(space);
    call.operation = line.sliced(space + 1, opening - space - 1);
    call.arguments = line.sliced(opening + 1, closing - opening - 1);
    const QByteArray after = line.sliced(closing + 1).trimmed();
    call.result = after.startsWith('=') ? after.sliced(1).trimmed() : after;
    return call;
}

} // namespace

SimulatorProcess::SimulatorProcess(quint16 publishedPort, const QStringList &moreArguments)
    : ControllerProcess(QStringLiteral(VEX_TEST_SIMULATOR))
{
    QStringList arguments = {u"--root"_s, root(), u"--log"_s, logFile()};
    if (publishedPort != 0) {
        arguments << u"--publish"_s << u"127.0.0.1:%1"_s.arg(publishedPort);
    }
    setArguments(arguments + moreArguments);
}

QVector<SimulatorProcess::Call> SimulatorProcess::calls() const
{
    QFile file(logFile());
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QVector<Call> result;
    while (!file.atEnd()) {
        result.append(parseCall(file.readLine()));
    }
    return result;
}

QVector<SimulatorProcess::Call> SimulatorProcess::calls(const QByteArray &operation) const
{
    QVector<Call> result = calls();
    result.removeIf([&](const Call &call) { return call.operation != operation; });
    return result;
}

QStringList SimulatorProcess::openFiles() const
{
    QStringList open;
    const QDir descriptors(u"/proc/%1/fd"_s.arg(processId()));
    for (const QFileInfo &entry : descriptors.entryInfoList(QDir::Files | QDir::System)) {
        const QString target = entry.symLinkTarget();
        if (target.startsWith(root() + u'/') && !QFileInfo(target).isDir()) {
            open.append(target.sliced(root().size()));
        }
    }
    return open;
}

#include "SimulatorProcess.h"

#include <QFile>

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

QByteArrayList SimulatorProcess::openHandles() const
{
    QByteArrayList open;
    for (const Call &call : calls()) {
        if (call.operation == "openFile" && call.result.startsWith("FS_OK ")) {
            open.append(call.result.sliced(6));
        } else if (call.operation == "closeFile") {
            open.removeOne(call.arguments);
        }
    }
    return open;
}

#include "ChildProcess.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QStandardPaths>
#include <QThread>

#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr int PatienceMs = 60000;
constexpr int StartMs = 10000;

[[noreturn]] void fail(const QProcess &process, const QString &what)
{
    throw std::runtime_error(u"%1 %2"_s.arg(process.program(), what).toStdString());
}

sockaddr_in loopback(quint16 port)
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

bool isListening(quint16 port)
{
    const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_in address = loopback(port);
    const bool connected =
        ::connect(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    ::close(fd);
    return connected;
}

} // namespace

ChildProcess::ChildProcess(const QString &program, const QStringList &arguments)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    m_process.start(program, arguments);
    if (!m_process.waitForStarted()) {
        fail(m_process, m_process.errorString());
    }
}

ChildProcess::~ChildProcess()
{
    m_process.closeWriteChannel();
    m_process.terminate();
    if (!m_process.waitForFinished(3000)) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

QString ChildProcess::readLine()
{
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(PatienceMs)) {
            fail(m_process, u"gives no answer"_s);
        }
    }
    return QString::fromUtf8(m_process.readLine()).trimmed();
}

QString ChildProcess::waitForLine(const QString &start)
{
    while (true) {
        const QString line = readLine();
        if (line.startsWith(start)) {
            return line.sliced(start.size());
        }
    }
}

QString ChildProcess::ask(const QString &line)
{
    tell(line.toUtf8() + '\n');
    return readLine();
}

void ChildProcess::tell(const QByteArray &bytes)
{
    m_process.write(bytes);
    while (m_process.bytesToWrite() > 0) {
        if (!m_process.waitForBytesWritten(PatienceMs)) {
            fail(m_process, u"does not read its input"_s);
        }
    }
}

void ChildProcess::waitForPort(quint16 port)
{
    QElapsedTimer timer;
    timer.start();
    while (!isListening(port)) {
        if (m_process.waitForFinished(1) || timer.elapsed() > StartMs) {
            fail(m_process, u"does not listen on port %1"_s.arg(port));
        }
        QThread::msleep(20);
    }
}

QString besideThisProgram(const QString &name)
{
    return QCoreApplication::applicationDirPath() + u'/' + name;
}

double secondsToRun(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    QElapsedTimer timer;
    timer.start();
    process.start(program, arguments);
    process.closeWriteChannel();
    const bool ended = process.waitForFinished(PatienceMs);
    const double seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    if (!ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        fail(process,
             u"failed: %1, exit code %2"_s.arg(process.errorString()).arg(process.exitCode()));
    }
    return seconds;
}

QString findProgram(const QString &name)
{
    const QString found = QStandardPaths::findExecutable(name);
    return found.isEmpty() ? QStandardPaths::findExecutable(name, {u"/usr/sbin"_s, u"/sbin"_s})
                           : found;
}

quint16 freePort()
{
    const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = loopback(0);
    socklen_t length = sizeof address;
    const bool bound = ::bind(fd, reinterpret_cast<const sockaddr *>(&address), length) == 0
        && ::getsockname(fd, reinterpret_cast<sockaddr *>(&address), &length) == 0;
    ::close(fd);
    if (!bound) {
        throw std::runtime_error("no port is free");
    }
    return ntohs(address.sin_port);
}

#include "ControllerProcess.h"

#include <QDeadlineTimer>

#include <csignal>
#include <sys/prctl.h>
#include <sys/wait.h>

#include "Sockets.h"

using namespace Qt::StringLiterals;

#ifdef __SANITIZE_THREAD__
#include <cstdarg>

// QProcess starts its child in the parent's memory (CLONE_VM | CLONE_VFORK). ThreadSanitizer takes
// every clone() for a fork, and from then on ignores the synchronisation of the thread that called
// it, in the parent. This definition goes past it to the C library's.
extern "C" int __clone(int (*body)(void *), void *stack, int flags, void *argument, ...);

extern "C" int clone(int (*body)(void *), void *stack, int flags, void *argument, ...)
{
    va_list more;
    va_start(more, argument);
    void *parentId = va_arg(more, void *);
    void *tls = va_arg(more, void *);
    void *childId = va_arg(more, void *);
    va_end(more);
    return __clone(body, stack, flags, argument, parentId, tls, childId);
}
#endif

namespace {

constexpr int PatienceMs = 20'000;

} // namespace

ControllerProcess::ControllerProcess(const QString &program)
    : m_program(program)
{
    // Whatever becomes of the test, its controller goes with it.
    m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

ControllerProcess::~ControllerProcess()
{
    if (isRunning()) {
        kill();
    }
}

void ControllerProcess::start()
{
    if (m_port == 0) {
        m_port = localPort(listenOn(0));
    }
    m_process.start(m_program, m_arguments + QStringList {u"--port"_s, QString::number(m_port)});
    const QByteArray announcement = ": listening on port ";
    QByteArray line;
    do {
        line = readLine();
    } while (!line.contains(announcement));
    m_port = line.sliced(line.indexOf(announcement) + announcement.size()).toUShort();
}

int ControllerProcess::stop()
{
    thaw();
    m_process.terminate();
    if (!m_process.waitForFinished(PatienceMs)) {
        qFatal("%s does not end on SIGTERM", qPrintable(m_program));
    }
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

void ControllerProcess::kill()
{
    m_process.kill();
    m_process.waitForFinished(PatienceMs);
    m_frozen = false;
}

bool ControllerProcess::isRunning() const
{
    return m_process.state() == QProcess::Running;
}

void ControllerProcess::freeze()
{
    signal(SIGSTOP);
    m_frozen = true;
}

void ControllerProcess::thaw()
{
    if (m_frozen) {
        signal(SIGCONT);
        m_frozen = false;
    }
}

void ControllerProcess::signal(int number)
{
    ::kill(pid_t(m_process.processId()), number);
    if (number == SIGSTOP) {
        // It has stopped when waitid says so; the child is left for QProcess to reap.
        siginfo_t info = {};
        ::waitid(P_PID, id_t(m_process.processId()), &info, WSTOPPED | WNOWAIT);
    }
}

QByteArray ControllerProcess::command(const QByteArray &line)
{
    m_process.write(line + '\n');
    return readLine();
}

void ControllerProcess::order(const QByteArray &line)
{
    const QByteArray answer = command(line);
    if (!answer.startsWith("ok")) {
        qFatal("%s answers \"%s\" to \"%s\"", qPrintable(m_program), answer.constData(),
               line.constData());
    }
}

void ControllerProcess::sendEvents(const QByteArray &name, int count)
{
    order("event " + name + ' ' + QByteArray::number(count));
}

QByteArray ControllerProcess::errors()
{
    m_process.waitForReadyRead(0);
    return m_process.readAllStandardError();
}

QByteArray ControllerProcess::readLine()
{
    const QDeadlineTimer deadline(PatienceMs);
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(int(deadline.remainingTime()))
            && !m_process.canReadLine()) {
            qFatal("%s says nothing: %s %s", qPrintable(m_program),
                   qPrintable(m_process.errorString()), errors().constData());
        }
    }
    return m_process.readLine().trimmed();
}

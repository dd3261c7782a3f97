#include "Fcpctl.h"

#include <csignal>

#include <fcntl.h>
#include <pty.h>
#include <sys/prctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int PatienceMs = 20'000;

} // namespace

Fcpctl::Fcpctl(quint16 port, const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"FCP_HOST"_s, u"127.0.0.1"_s);
    environment.insert(u"FCP_PORT"_s, QString::number(port));
    m_process.setProcessEnvironment(environment);
    m_process.setProgram(QStringLiteral(VEX_TEST_FCPCTL));
    m_process.setArguments(arguments);
    m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

void Fcpctl::throughShell()
{
    const QString words = m_process.arguments().join(u"\" \""_s);
    m_process.setArguments({u"-c"_s, u"exec \"$0\" \"%1\""_s.arg(words), m_process.program()});
    m_process.setProgram(u"sh"_s);
}

void Fcpctl::writeToNobody()
{
    m_process.setChildProcessModifier([] {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        int ends[2] = {};
        if (::pipe(ends) == 0) {
            ::dup2(ends[1], STDOUT_FILENO);
            ::close(ends[0]);
            ::close(ends[1]);
        }
    });
}

Fcpctl::~Fcpctl()
{
    if (isRunning()) {
        m_process.kill();
        m_process.waitForFinished(PatienceMs);
    }
    if (m_terminal != -1) {
        ::close(m_terminal);
        ::close(m_terminalEnd);
    }
}

void Fcpctl::start()
{
    m_process.start();
    if (!m_process.waitForStarted(PatienceMs)) {
        qFatal("fcpctl does not start: %s", qPrintable(m_process.errorString()));
    }
}

void Fcpctl::startOnTerminal(int columns)
{
    const winsize size {24, static_cast<unsigned short>(columns), 0, 0};
    char name[64] = {};
    if (::openpty(&m_terminal, &m_terminalEnd, name, nullptr, &size) != 0) {
        qFatal("no terminal: %s", qPrintable(qt_error_string(errno)));
    }
    ::fcntl(m_terminal, F_SETFL, O_NONBLOCK);
    m_process.setStandardOutputFile(QString::fromLocal8Bit(name));
    m_process.setStandardErrorFile(QString::fromLocal8Bit(name));
    start();
}

void Fcpctl::signal(int number)
{
    if (const qint64 id = m_process.processId(); id > 0) { // 0 would be this process's group
        ::kill(static_cast<pid_t>(id), number);
    }
}

int Fcpctl::wait()
{
    if (isRunning() && !m_process.waitForFinished(PatienceMs)) {
        qFatal("fcpctl %s does not end; it said: %s%s",
               qPrintable(m_process.arguments().join(u' ')), output().constData(),
               errors().constData());
    }
    // Qt gives the signal as the exit code of a crash.
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode()
                                                          : -m_process.exitCode();
}

int Fcpctl::run()
{
    start();
    return wait();
}

QByteArray Fcpctl::output()
{
    read();
    return m_output;
}

QByteArray Fcpctl::errors()
{
    read();
    return m_errors;
}

void Fcpctl::read()
{
    if (m_terminal == -1) {
        m_process.waitForReadyRead(0);
        m_output += m_process.readAllStandardOutput();
        m_errors += m_process.readAllStandardError();
        return;
    }
    char buffer[4096];
    ssize_t got = 0;
    while ((got = ::read(m_terminal, buffer, sizeof buffer)) > 0) {
        m_output.append(buffer, got);
    }
}

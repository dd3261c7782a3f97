#pragma once

#include <QProcess>
#include <QStringList>

/**
 * A program that the benchmark starts, which ends with it whatever happens.
 *
 * Every function throws std::runtime_error when the program does not do as it should.
 */
class ChildProcess
{
public:
    ChildProcess(const QString &program, const QStringList &arguments);
    /** Asks it to end, and ends it when it does not. */
    ~ChildProcess();

    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    /** Waits for a line of its output that begins with @p start, and returns what follows. */
    QString waitForLine(const QString &start);
    /** Writes a line to its input and returns the next line of its output. */
    QString ask(const QString &line);
    void tell(const QByteArray &bytes);
    qint64 id() const { return m_process.processId(); }

    /** Waits until something listens on the port of the loopback interface. */
    void waitForPort(quint16 port);

private:
    QString readLine();

    QProcess m_process;
};

/** The path of a program that is built together with this one. */
QString besideThisProgram(const QString &name);
/** Runs a program to its end and returns the seconds that took. */
double secondsToRun(const QString &program, const QStringList &arguments);
/** The path of a program, also of those for administrators; empty when it is not installed. */
QString findProgram(const QString &name);
/** A port of the loopback interface that was free a moment ago. */
quint16 freePort();

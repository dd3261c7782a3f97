#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QProcess>
#include <QStringList>

/** fcpctl in a process of its own, pointed at a controller on this machine. */
class Fcpctl
{
public:
    explicit Fcpctl(quint16 port, const QStringList &arguments = {});
    ~Fcpctl();

    /** Has a shell expand its arguments first, as between double quotes. */
    void throughShell();
    /** Sends its output to a file. */
    void writeTo(const QString &file) { m_process.setStandardOutputFile(file); }
    /** Sends its output to a pipe that nobody reads. */
    void writeToNobody();

    void start();
    /** Starts it with what it writes on a terminal of @p columns instead. */
    void startOnTerminal(int columns);
    void signal(int number);
    /** Waits for its end. @return the exit code; the negative number of the signal that ended it */
    int wait();
    /** start() and wait() */
    int run();

    bool isRunning() const { return m_process.state() == QProcess::Running; }
    /** What it wrote so far; on a terminal, both streams are output. */
    QByteArray output();
    QByteArray errors();
    QJsonDocument json() { return QJsonDocument::fromJson(output()); }

private:
    void read();

    QProcess m_process;
    QByteArray m_output;
    QByteArray m_errors;
    int m_terminal = -1;
    int m_terminalEnd = -1;
};

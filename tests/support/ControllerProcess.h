#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

/**
 * A controller in a process of its own: it says on its standard output on which port it listens,
 * and takes commands on its standard input, each answered by one line.
 *
 * A problem with the process itself (it does not start, does not answer) ends the test program with
 * qFatal: no test can go on then.
 */
class ControllerProcess
{
public:
    virtual ~ControllerProcess();

    /** Starts it, on the port that it had before, and waits until it is ready. */
    void start();
    /** Ends it by SIGTERM and returns its exit code. */
    int stop();
    /** Ends it by SIGKILL. */
    void kill();
    bool isRunning() const;

    /** SIGSTOP and SIGCONT. */
    void freeze();
    void thaw();

    quint16 port() const { return m_port; }
    qint64 processId() const { return m_process.processId(); }

    /** Sends a line and returns the line that answers it. */
    QByteArray command(const QByteArray &line);
    /** Likewise, and insists on an answer that begins with "ok". */
    void order(const QByteArray &line);
    /** Has it call Event on its clients @p count times. */
    void sendEvents(const QByteArray &name, int count = 1);

    /** What it has written to its standard error. */
    QByteArray errors();

protected:
    explicit ControllerProcess(const QString &program);

    void setArguments(const QStringList &arguments) { m_arguments = arguments; }

private:
    QByteArray readLine();
    void signal(int number);

    QString m_program;
    QStringList m_arguments;
    quint16 m_port = 0;
    bool m_frozen = false;
    QProcess m_process;
};

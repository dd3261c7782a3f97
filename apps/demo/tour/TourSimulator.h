#pragma once

#include <QProcess>
#include <QTemporaryDir>

/// The fcp-sim beside this program, with an instrument whose test runs until it is terminated.
class TourSimulator
{
public:
    ~TourSimulator();

    /// @return why it does not run; empty when it does.
    QString start();
    int port() const { return m_port; }
    /// Of a file on the instrument.
    QString local(const QString &remotePath) const;

    /// Gives it a command. @return whether it said that it has obeyed.
    bool command(const QByteArray &line);
    /// As a cut of its power does. The next start() comes up on the same port.
    void kill();

private:
    QString writeInstrument() const;

    QTemporaryDir m_folder;
    QProcess m_process;
    int m_port = 0;
};

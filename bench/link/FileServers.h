#pragma once

#include <QString>
#include <QStringList>

#include <memory>

#include "harness/ChildProcess.h"

class Workbench;

/**
 * @file
 * The usual ways to carry files, each with a server of its own on a port of the loopback
 * interface, its settings, keys and logs in the workbench's directory. Nothing of the system is
 * started or changed. The functions return the seconds of one run of the client and throw
 * std::runtime_error when something fails.
 */

/** OpenSSH's sshd, with sftp and scp. The clients share one connection, made beforehand. */
class SshServer
{
public:
    explicit SshServer(const Workbench &workbench);

    /** Why it can not take part; empty when it can. */
    static QString absence();
    /** Runs a line of sftp's language, e.g. "put FILE DIRECTORY". */
    double sftp(const QString &command) const;
    /** Here a path with a leading ':' is one of the server. */
    double scp(const QString &source, const QString &target) const;

private:
    QStringList clientOptions() const;

    const QString m_directory;
    const quint16 m_port;
    std::unique_ptr<ChildProcess> m_server;
    std::unique_ptr<ChildProcess> m_connection;
};

/** An rsync daemon that serves the workbench's server directory as the module "there". */
class RsyncServer
{
public:
    explicit RsyncServer(const Workbench &workbench);

    static QString absence();
    /** @p remotePath is below the server directory. */
    double upload(const QString &localPath, const QString &remotePath) const;
    double download(const QString &remotePath, const QString &localPath) const;

private:
    QString url(const QString &remotePath) const;

    const quint16 m_port;
    std::unique_ptr<ChildProcess> m_server;
};

/** vsftpd, used over one control connection by the FTP client of Python's library. */
class FtpServer
{
public:
    explicit FtpServer(const Workbench &workbench);

    static QString absence();
    /** Carries all files of a directory; the remote one is below the server directory. */
    double upload(const QString &localDirectory, const QString &remoteDirectory) const;
    double download(const QString &remoteDirectory, const QString &localDirectory) const;

private:
    double ask(const QStringList &words) const;

    const quint16 m_port;
    std::unique_ptr<ChildProcess> m_server;
    std::unique_ptr<ChildProcess> m_client;
};

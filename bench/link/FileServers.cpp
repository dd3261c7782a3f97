#include "FileServers.h"

#include <QDir>
#include <QFile>

#include <pwd.h>
#include <unistd.h>

#include <stdexcept>

#include "Workbench.h"

using namespace Qt::StringLiterals;

namespace {

bool isRoot()
{
    return ::geteuid() == 0;
}

QString userName()
{
    const passwd *user = ::getpwuid(::geteuid());
    return user ? QString::fromLocal8Bit(user->pw_name) : QString();
}

void writeFile(const QString &path, const QString &text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0) {
        throw std::runtime_error((path + u": "_s + file.errorString()).toStdString());
    }
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
}

QString makeDirectory(const QString &path)
{
    QDir().mkpath(path);
    return path;
}

QString missingOf(const QStringList &programs)
{
    for (const QString &program : programs) {
        if (findProgram(program).isEmpty()) {
            return u"not installed"_s;
        }
    }
    return {};
}

} // namespace

QString SshServer::absence()
{
    return missingOf({u"sshd"_s, u"ssh"_s, u"ssh-keygen"_s, u"sftp"_s, u"scp"_s});
}

SshServer::SshServer(const Workbench &workbench)
    : m_directory(makeDirectory(workbench.scratch(u"ssh"_s)))
    , m_port(freePort())
{
    for (const QString &key : {u"/host"_s, u"/client"_s}) {
        secondsToRun(
            findProgram(u"ssh-keygen"_s),
            {u"-q"_s, u"-t"_s, u"ed25519"_s, u"-N"_s, QString(), u"-f"_s, m_directory + key});
    }
    if (isRoot()) {
        QDir().mkpath(u"/run/sshd"_s); // sshd keeps its unprivileged half there
    }
    writeFile(m_directory + u"/sshd_config"_s,
              u"ListenAddress 127.0.0.1\nPort %1\nHostKey %2/host\n"
              "AuthorizedKeysFile %2/client.pub\nPidFile none\nStrictModes no\nUsePAM no\n"
              "PasswordAuthentication no\nPermitRootLogin prohibit-password\n"
              "Subsystem sftp internal-sftp\nLogLevel FATAL\n"_s.arg(m_port)
                  .arg(m_directory));
    m_server = std::make_unique<ChildProcess>(
        findProgram(u"sshd"_s),
        QStringList {u"-D"_s, u"-e"_s, u"-f"_s, m_directory + u"/sshd_config"_s});
    m_server->waitForPort(m_port);
    m_connection = std::make_unique<ChildProcess>(
        findProgram(u"ssh"_s),
        clientOptions()
            + QStringList {u"-M"_s, u"-p"_s, QString::number(m_port), u"127.0.0.1"_s,
                           u"echo connected; cat"_s});
    m_connection->waitForLine(u"connected"_s);
}

QStringList SshServer::clientOptions() const
{
    return {u"-F"_s, u"/dev/null"_s,
            u"-i"_s, m_directory + u"/client"_s,
            u"-o"_s, u"ControlPath=%1/control"_s.arg(m_directory),
            u"-o"_s, u"User=%1"_s.arg(userName()),
            u"-o"_s, u"StrictHostKeyChecking=no"_s,
            u"-o"_s, u"UserKnownHostsFile=/dev/null"_s,
            u"-o"_s, u"BatchMode=yes"_s,
            u"-o"_s, u"LogLevel=ERROR"_s};
}

double SshServer::sftp(const QString &command) const
{
    const QString batch = m_directory + u"/batch"_s;
    writeFile(batch, command + u'\n');
    return secondsToRun(findProgram(u"sftp"_s),
                        clientOptions()
                            + QStringList {u"-q"_s, u"-P"_s, QString::number(m_port), u"-b"_s,
                                           batch, u"127.0.0.1"_s});
}

double SshServer::scp(const QString &source, const QString &target) const
{
    const auto place = [](const QString &path) {
        return path.startsWith(u':') ? u"127.0.0.1"_s + path : path;
    };
    return secondsToRun(findProgram(u"scp"_s),
                        clientOptions()
                            + QStringList {u"-q"_s, u"-r"_s, u"-P"_s, QString::number(m_port),
                                           place(source), place(target)});
}

QString RsyncServer::absence()
{
    return missingOf({u"rsync"_s});
}

RsyncServer::RsyncServer(const Workbench &workbench)
    : m_port(freePort())
{
    const QString directory = makeDirectory(workbench.scratch(u"rsync"_s));
    const QString owner = isRoot() ? u"uid = root\ngid = root\n"_s : QString();
    writeFile(directory + u"/rsyncd.conf"_s,
              u"address = 127.0.0.1\nport = %1\nlog file = %2/log\nlock file = %2/lock\n"
              "use chroot = no\n%3[there]\npath = %4\nread only = no\n"_s.arg(m_port)
                  .arg(directory, owner, workbench.serverRoot()));
    m_server = std::make_unique<ChildProcess>(
        findProgram(u"rsync"_s),
        QStringList {u"--daemon"_s, u"--no-detach"_s, u"--config=%1/rsyncd.conf"_s.arg(directory)});
    m_server->waitForPort(m_port);
}

QString RsyncServer::url(const QString &remotePath) const
{
    return u"rsync://127.0.0.1:%1/there/%2"_s.arg(m_port).arg(remotePath);
}

double RsyncServer::upload(const QString &localPath, const QString &remotePath) const
{
    return secondsToRun(findProgram(u"rsync"_s), {localPath, url(remotePath)});
}

double RsyncServer::download(const QString &remotePath, const QString &localPath) const
{
    return secondsToRun(findProgram(u"rsync"_s), {url(remotePath), localPath});
}

QString FtpServer::absence()
{
    return missingOf({u"vsftpd"_s, u"python3"_s});
}

FtpServer::FtpServer(const Workbench &workbench)
    : m_port(freePort())
{
    const QString directory = makeDirectory(workbench.scratch(u"ftp"_s));
    makeDirectory(directory + u"/empty"_s);
    writeFile(directory + u"/vsftpd.conf"_s,
              u"listen=YES\nlisten_address=127.0.0.1\nlisten_port=%1\nbackground=NO\n"
              "run_as_launching_user=YES\nsecure_chroot_dir=%2/empty\nseccomp_sandbox=NO\n"
              "anonymous_enable=YES\nno_anon_password=YES\nanon_root=%3\nwrite_enable=YES\n"
              "anon_upload_enable=YES\nanon_other_write_enable=YES\n"
              "anon_world_readable_only=NO\nanon_umask=022\nxferlog_enable=NO\n"_s.arg(m_port)
                  .arg(directory, workbench.serverRoot()));
    m_server = std::make_unique<ChildProcess>(findProgram(u"vsftpd"_s),
                                              QStringList {directory + u"/vsftpd.conf"_s});
    m_server->waitForPort(m_port);
    m_client = std::make_unique<ChildProcess>(
        findProgram(u"python3"_s),
        QStringList {besideThisProgram(u"bench-ftp-client.py"_s), QString::number(m_port)});
}

double FtpServer::ask(const QStringList &words) const
{
    bool isNumber = false;
    const double seconds = m_client->ask(words.join(u'\t')).toDouble(&isNumber);
    if (!isNumber) {
        throw std::runtime_error("the FTP client failed");
    }
    return seconds;
}

double FtpServer::upload(const QString &localDirectory, const QString &remoteDirectory) const
{
    return ask({u"upload"_s, localDirectory, remoteDirectory});
}

double FtpServer::download(const QString &remoteDirectory, const QString &localDirectory) const
{
    return ask({u"download"_s, localDirectory, remoteDirectory});
}

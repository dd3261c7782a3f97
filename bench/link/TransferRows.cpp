#include "TransferRows.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QRegularExpression>

#include <functional>
#include <memory>
#include <stdexcept>

#include "Connections.h"
#include "FileServers.h"
#include "RawClient.h"
#include "Workbench.h"
#include "files/QvexFileMover.h"
#include "files/QvexFileMoverThread.h"

using namespace Qt::StringLiterals;

namespace {

const QString Carried = u"carried"_s;

/// The servers, each started when it is first needed.
struct Rivals
{
    template<typename Server>
    static Server &started(std::unique_ptr<Server> &server, const Workbench &workbench)
    {
        if (!server) {
            server = std::make_unique<Server>(workbench);
        }
        return *server;
    }

    SshServer &ssh() { return started(m_ssh, workbench); }
    RsyncServer &rsync() { return started(m_rsync, workbench); }
    FtpServer &ftp() { return started(m_ftp, workbench); }

    const Workbench &workbench;

    explicit Rivals(const Workbench &bench)
        : workbench(bench)
    {
    }

private:
    std::unique_ptr<SshServer> m_ssh;
    std::unique_ptr<RsyncServer> m_rsync;
    std::unique_ptr<FtpServer> m_ftp;
};

/**
 * A transfer that is measured: what is carried must not be at @p target before, and must be there
 * afterwards. Its pages were in use a moment before: a host that takes back what a virtual machine
 * does not use can not slow down whoever comes first.
 */
Contender transfer(const QString &name, const QString &source, const QString &target, Demand demand,
                   const std::function<double()> &carry, const QString &absence = {})
{
    const auto isChecked = std::make_shared<bool>(false);
    const auto round = [=] {
        removeAll(target);
        if (QFileInfo(source).isDir()) {
            QDir().mkpath(target);
        }
        const double seconds = carry();
        if (!*isChecked && !isSame(source, target)) {
            throw std::runtime_error("what has arrived is not what was sent");
        }
        *isChecked = true;
        return seconds;
    };
    return {name, round, demand, absence};
}

void expectDone(int result)
{
    if (result != 0) {
        throw std::runtime_error("result " + std::to_string(result));
    }
}

double moveLarge(const LinkBench &bench, bool upload)
{
    QvexFileMover mover(&bench.connection.controller());
    const QString here = bench.workbench.here(upload ? Workbench::largeName() : Carried);
    const QString there = u"/Internal/"_s + (upload ? Carried : Workbench::largeName());
    int result = -1;
    const double seconds = secondsOf([&] {
        result =
            upload ? mover.uploadFile(here, there, true) : mover.downloadFile(there, here, true);
    });
    expectDone(result);
    return seconds;
}

/// Carries the small files as an application does, on the mover's thread.
double moveSmall(const LinkBench &bench, bool upload)
{
    const QString directory = Workbench::smallDirectory();
    const QString folder = upload ? bench.workbench.here(directory) : u"/Internal/"_s + directory;
    QVector<QString> sources;
    for (const QString &name : bench.workbench.smallNames()) {
        sources.append(folder + u'/' + name);
    }
    QvexFileMoverThread mover(&bench.connection.controller());
    QEventLoop loop;
    int result = -1;
    QObject::connect(&mover, &QvexFileMoverThread::complete, &loop, [&](int value) {
        result = value;
        loop.quit();
    });
    const double seconds = secondsOf([&] {
        if (upload) {
            mover.uploadFiles(sources, u"/Internal/"_s + Carried, true);
        } else {
            mover.downloadFiles(sources, bench.workbench.here(Carried), true);
        }
        loop.exec();
    });
    expectDone(result);
    return seconds;
}

void addLargeRow(Suite &suite, const LinkBench &bench, const std::shared_ptr<Rivals> &rivals,
                 bool upload)
{
    const Workbench &files = bench.workbench;
    const QString source =
        upload ? files.here(Workbench::largeName()) : files.there(Workbench::largeName());
    const QString target = upload ? files.there(Carried) : files.here(Carried);
    const auto entry = [=](const QString &name, Demand demand, const std::function<double()> &carry,
                           const QString &absence = {}) {
        return transfer(name, source, target, demand, carry, absence);
    };
    const auto rawTransfer = [=, &raw = bench.raw] {
        return secondsOf(
            [&] { upload ? raw.upload(source, target) : raw.download(source, target); });
    };
    const auto rsync = [=] {
        return upload ? rivals->rsync().upload(source, u"Internal/"_s + Carried)
                      : rivals->rsync().download(u"Internal/"_s + Workbench::largeName(), target);
    };
    const auto sftp = [=] {
        return rivals->ssh().sftp(u"%1 %2 %3"_s.arg(upload ? u"put"_s : u"get"_s, source, target));
    };
    const auto scp = [=] {
        return rivals->ssh().scp(upload ? source : u':' + source, upload ? u':' + target : target);
    };
    const qint64 mebibytes = files.largeSize() / Workbench::Mebibyte;
    Comparison comparison;
    comparison.name = u"%1 of %2 MiB"_s.arg(upload ? u"upload"_s : u"download"_s).arg(mebibytes);
    comparison.work = {double(mebibytes), u"MiB/s"_s, 0};
    comparison.subject = entry(u"file mover"_s, {}, [=] { return moveLarge(bench, upload); });
    comparison.rivals = {entry(u"plain TCP"_s, Demand::speedAtLeast(0.7), rawTransfer),
                         entry(u"rsync daemon"_s, Demand::faster(), rsync, RsyncServer::absence()),
                         entry(u"sftp"_s, Demand::faster(), sftp, SshServer::absence()),
                         entry(u"scp"_s, Demand::faster(), scp, SshServer::absence())};
    suite.add(comparison);
}

void addSmallRow(Suite &suite, const LinkBench &bench, const std::shared_ptr<Rivals> &rivals,
                 bool upload)
{
    const Workbench &files = bench.workbench;
    const QString directory = Workbench::smallDirectory();
    const QString source = upload ? files.here(directory) : files.there(directory);
    const QString target = upload ? files.there(Carried) : files.here(Carried);
    const QStringList names = files.smallNames();
    const auto entry = [=](const QString &name, Demand demand, const std::function<double()> &carry,
                           const QString &absence = {}) {
        return transfer(name, source, target, demand, carry, absence);
    };
    const auto rawTransfer = [=, &raw = bench.raw] {
        return secondsOf([&] {
            for (const QString &name : names) {
                const QString from = source + u'/' + name;
                const QString to = target + u'/' + name;
                upload ? raw.upload(from, to) : raw.download(from, to);
            }
        });
    };
    const auto ftp = [=] {
        return upload ? rivals->ftp().upload(source, u"Internal/"_s + Carried)
                      : rivals->ftp().download(u"Internal/"_s + directory, target);
    };
    const auto sftp = [=] {
        return rivals->ssh().sftp(
            u"%1 %2/* %3"_s.arg(upload ? u"put"_s : u"get"_s, source, target));
    };
    const auto scp = [=] {
        const QString contents = source + u"/."_s;
        return rivals->ssh().scp(upload ? contents : u':' + contents,
                                 upload ? u':' + target : target);
    };
    Comparison comparison;
    comparison.name = u"%1 of %L2 files of 4 KiB"_s.arg(upload ? u"upload"_s : u"download"_s)
                          .arg(files.smallCount());
    comparison.work = {double(files.smallCount()), u"files/s"_s, 0};
    comparison.subject = entry(u"file mover"_s, {}, [=] { return moveSmall(bench, upload); });
    comparison.rivals = {entry(u"plain TCP"_s, Demand::speedAtLeast(0.7), rawTransfer),
                         entry(u"FTP"_s, Demand::faster(), ftp, FtpServer::absence()),
                         entry(u"sftp"_s, Demand::faster(), sftp, SshServer::absence()),
                         entry(u"scp"_s, Demand::faster(), scp, SshServer::absence())};
    suite.add(comparison);
}

double mebibytesIn(const QString &key)
{
    QFile file(u"/proc/self/status"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("cannot read /proc/self/status");
    }
    const QRegularExpression pattern(u"^%1:\\s*(\\d+) kB"_s.arg(key),
                                     QRegularExpression::MultilineOption);
    return pattern.match(QString::fromUtf8(file.readAll())).captured(1).toDouble() / 1024;
}

/// How far above its start the resident memory of this process is at the highest.
double memoryGrowth(const std::function<void()> &work)
{
    QFile peak(u"/proc/self/clear_refs"_s);
    if (!peak.open(QIODevice::WriteOnly) || peak.write("5") != 1) {
        throw std::runtime_error("cannot reset the memory's high-water mark");
    }
    peak.close();
    const double before = mebibytesIn(u"VmRSS"_s);
    work();
    return mebibytesIn(u"VmHWM"_s) - before;
}

void addMemoryRow(Suite &suite, const LinkBench &bench, bool upload)
{
    LimitedFigure growth;
    growth.name = u"growth of memory during the %1"_s.arg(upload ? u"upload"_s : u"download"_s);
    growth.unit = u"MiB"_s;
    growth.atMost = 8;
    growth.measure = [=] {
        removeAll(upload ? bench.workbench.there(Carried) : bench.workbench.here(Carried));
        return memoryGrowth([&] { moveLarge(bench, upload); });
    };
    growth.rounds = 3;
    suite.add(growth);
}

} // namespace

void addTransferRows(Suite &suite, const LinkBench &bench)
{
    const auto rivals = std::make_shared<Rivals>(bench.workbench);
    for (const bool upload : {true, false}) {
        addLargeRow(suite, bench, rivals, upload);
        addMemoryRow(suite, bench, upload);
    }
    for (const bool upload : {true, false}) {
        addSmallRow(suite, bench, rivals, upload);
    }
}

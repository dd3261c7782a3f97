#include "TransferRun.h"

#include "Checksum.h"
#include "Output.h"
#include "Text.h"

#include <corba/FcpRemoteFile.h>

#include <QElapsedTimer>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QJsonArray toJson(const QList<Transfer> &transfers)
{
    QJsonArray array;
    for (const Transfer &transfer : transfers) {
        array += QJsonObject {
            {u"source"_s, transfer.source},
            {u"destination"_s, transfer.destination},
            {u"size"_s, transfer.size},
            {u"seconds"_s, transfer.seconds},
            {u"sha256"_s,
             transfer.sha256.isEmpty() ? QJsonValue() : QString::fromLatin1(transfer.sha256)},
            {u"error"_s, transfer.failure.isEmpty() ? QJsonValue() : transfer.failure},
        };
    }
    return array;
}

QString toLine(const Transfer &transfer)
{
    const double rate = static_cast<double>(transfer.size) / std::max(transfer.seconds, 1e-9);
    QString line = u"%1 -> %2  %3 bytes in %4 s, %5/s"_s.arg(
        Output::name(transfer.source), Output::name(transfer.destination),
        QString::number(transfer.size), QString::number(transfer.seconds, 'f', 2),
        humanSize(static_cast<qint64>(rate)));
    if (!transfer.sha256.isEmpty()) {
        line += u", SHA-256 verified"_s;
    }
    return line;
}

} // namespace

TransferRun::TransferRun(const Invocation &invocation)
    : m_invocation(invocation)
    , m_session(invocation.address())
    , m_tree(m_session)
    , m_mover(m_session.controller())
    , m_bar(!invocation.isSet(u"quiet"_s))
{
    QObject::connect(&m_mover, &QvexFileMover::progress, &m_mover,
                     [this](const QString &, qint64 done) {
                         m_moved = done;
                         m_bar.update(done);
                         if (m_interrupt.requested()) {
                             m_mover.abort();
                         }
                     });
}

int TransferRun::run(const QStringList &sources, const Carry &carry)
{
    for (const QString &source : sources) {
        if (m_interrupt.requested() || m_linkLost) {
            break;
        }
        carryOne(source, carry);
    }
    if (m_invocation.json()) {
        Output::json(toJson(m_transfers));
    }
    summarize(sources);
    return exitCode();
}

void TransferRun::carryOne(const QString &source, const Carry &carry)
{
    Transfer transfer;
    transfer.source = source;
    try {
        carry(transfer);
    } catch (const Interrupted &interrupted) {
        transfer.failure = u"interrupted; "_s + interrupted.left;
    } catch (const Failure &failure) {
        m_linkLost = failure.exit == Exit::NoLink;
        transfer.failure =
            m_linkLost ? printable(source) + u": "_s + failure.message : failure.message;
    }
    m_transfers += transfer;
    report(transfer);
}

void TransferRun::report(const Transfer &transfer)
{
    m_bar.clear();
    if (!transfer.failure.isEmpty()) {
        Output::error(u"%1: %2"_s.arg(m_invocation.name(), transfer.failure));
        return;
    }
    // The bar's last line has told it already, but for the checksum.
    const bool told = m_bar.isEnabled() && Output::isTerminal() && transfer.sha256.isEmpty();
    if (!m_invocation.json() && !m_invocation.isSet(u"quiet"_s) && !told) {
        Output::line(toLine(transfer));
    }
}

void TransferRun::summarize(const QStringList &sources) const
{
    QStringList missing;
    for (const Transfer &transfer : m_transfers) {
        if (!transfer.failure.isEmpty()) {
            missing += transfer.failure;
        }
    }
    for (const QString &source : sources.sliced(m_transfers.size())) {
        missing += printable(source) + u": not tried"_s;
    }
    if (sources.size() > 1 && !missing.isEmpty()) {
        Output::error(u"%1: %2 of %3 files were not carried:\n  %4"_s.arg(
            m_invocation.name(), QString::number(missing.size()), QString::number(sources.size()),
            missing.join(u"\n  "_s)));
    }
}

int TransferRun::exitCode() const
{
    if (m_linkLost) {
        return static_cast<int>(Exit::NoLink);
    }
    if (m_interrupt.requested()) {
        return m_interrupt.exitCode();
    }
    const bool allCarried =
        std::all_of(m_transfers.begin(), m_transfers.end(),
                    [](const Transfer &transfer) { return transfer.failure.isEmpty(); });
    return static_cast<int>(allCarried ? Exit::Done : Exit::Failed);
}

void TransferRun::claim(const QString &destination)
{
    if (m_claimed.contains(destination)) {
        throw fileFailure(destination,
                          u"an earlier file of the same name has just been put there"_s);
    }
    m_claimed += destination;
}

int TransferRun::move(Direction direction, const QString &target, Transfer &transfer, qint64 total)
{
    m_moved = 0;
    m_bar.start(remoteName(transfer.source), total);
    QElapsedTimer clock;
    clock.start();
    const int result = direction == Direction::Upload
        ? m_mover.uploadFile(transfer.source, target, m_invocation.isSet(u"overwrite"_s))
        : m_mover.downloadFile(transfer.source, target, false);
    transfer.seconds = static_cast<double>(clock.nsecsElapsed()) / 1e9;
    transfer.size = m_moved;
    if (result == 0) {
        m_bar.finish(m_moved);
    } else {
        m_bar.clear();
    }
    return result;
}

QByteArray TransferRun::verify(const QString &localPath, const QString &remotePath, qint64 size)
{
    m_bar.start(u"verifying "_s + remoteName(remotePath), size);
    const QByteArray remote = remoteChecksum(remotePath);
    m_bar.clear();
    QByteArray local = localChecksum(localPath);
    if (local != remote) {
        throw fileFailure(remotePath,
                          u"the two files differ: SHA-256 %1 on the instrument, %2 here"_s.arg(
                              QLatin1String(remote), QLatin1String(local)));
    }
    return local;
}

QByteArray TransferRun::localChecksum(const QString &path) const
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        throw fileFailure(path, file.errorString());
    }
    Checksum checksum;
    QByteArray buffer(QvexFileMover::ChunkSize, Qt::Uninitialized);
    qint64 got = 0;
    while ((got = file.read(buffer.data(), buffer.size())) > 0) {
        throwIfInterrupted();
        checksum.add(QByteArrayView(buffer).first(got));
    }
    if (got < 0) {
        throw fileFailure(path, file.errorString());
    }
    return checksum.hex();
}

QByteArray TransferRun::remoteChecksum(const QString &path)
{
    FcpRemoteFile file(m_session.controller());
    Checksum checksum;
    qint64 done = 0;
    FileSystemResult result = file.open(path, false, false);
    while (result == FS_OK) {
        throwIfInterrupted();
        QByteArrayView bytes;
        result = file.pull(QvexFileMover::ChunkSize, bytes);
        checksum.add(bytes);
        done += bytes.size();
        m_bar.updateNowAndThen(done);
    }
    m_session.requireLink();
    if (result != FS_NOMORE) {
        throw fileFailure(path, u"it can not be read back from the instrument"_s);
    }
    return checksum.hex();
}

void TransferRun::throwIfInterrupted() const
{
    if (m_interrupt.requested()) {
        throw Interrupted {};
    }
}

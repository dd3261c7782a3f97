// File contents between here and the instrument: get, put.

#include "IncomingFile.h"
#include "Text.h"
#include "TransferRun.h"

#include <corba/FcpRemoteFile.h>

#include <QFileInfo>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// What the mover answers.
constexpr int Carried = 0;
constexpr int Exists = 2;
constexpr int Aborted = 3;

QString ofBytes(qint64 part, qint64 whole)
{
    return u"%1 of %2 bytes"_s.arg(part).arg(whole);
}

/// Where @p source goes on the local disk.
QString localTarget(const QString &destination, const QString &source, bool mustBeDirectory)
{
    struct stat found
    {
    };
    const bool exists = ::stat(toShell(destination).constData(), &found) == 0;
    if (exists && S_ISDIR(found.st_mode)) {
        return joinPath(destination, remoteName(source));
    }
    if (mustBeDirectory || destination.endsWith(u'/')) {
        throw fileFailure(destination, qt_error_string(exists ? ENOTDIR : errno));
    }
    return destination;
}

QString localDirectory(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    return slash < 0 ? u"."_s : path.first(std::max<qsizetype>(1, slash));
}

/// Why the mover failed, as far as both sides can still be asked.
Failure whyNotFetched(TransferRun &run, const Transfer &transfer, const IncomingFile &file,
                      qint64 total)
{
    run.session().requireLink();
    if (const int error = file.whyNotWritable(std::max<qint64>(0, total - file.partSize()))) {
        return fileFailure(transfer.destination, qt_error_string(error));
    }
    FcpRemoteFile remote(run.session().controller());
    const FileSystemResult opened = remote.open(transfer.source, false, false);
    run.session().requireLink();
    return fileFailure(transfer.source,
                       opened == FS_OK
                           ? u"the instrument gave no more after "_s + ofBytes(transfer.size, total)
                           : u"the instrument refused to open it"_s);
}

void fetch(TransferRun &run, Transfer &transfer, const QString &target,
           const Invocation &invocation)
{
    const std::optional<FileSystemItem> item = run.tree().find(transfer.source);
    if (!item) {
        throw fileFailure(transfer.source, u"no such file on the instrument"_s);
    }
    if (item->isdir) {
        throw fileFailure(transfer.source, u"it is a directory"_s);
    }
    transfer.destination = target;
    run.claim(target);
    IncomingFile file(target, invocation.isSet(u"overwrite"_s));
    const auto interrupted = [&target] {
        return Interrupted {printable(target) + u" was not touched"_s};
    };

    switch (run.move(TransferRun::Direction::Download, file.partPath(), transfer, item->size)) {
    case Carried:
        break;
    case Aborted:
        throw interrupted();
    default:
        throw whyNotFetched(run, transfer, file, item->size);
    }
    // A file that grew meanwhile is a good copy of what it was; a shorter one is none.
    if (transfer.size < item->size) {
        throw fileFailure(transfer.source,
                          u"only "_s + ofBytes(transfer.size, item->size) + u" came"_s);
    }
    if (invocation.isSet(u"verify"_s)) {
        try {
            transfer.sha256 = run.verify(file.partPath(), transfer.source, transfer.size);
        } catch (const Interrupted &) {
            throw interrupted();
        }
    }
    file.commit();
}

int get(const Invocation &invocation)
{
    QStringList sources = invocation.operands();
    const QString destination = sources.size() > 1 ? sources.takeLast() : u"."_s;
    TransferRun run(invocation);
    const QString first = localTarget(destination, sources.first(), sources.size() > 1);
    const QString directory = localDirectory(first);
    IncomingFile::removeAbandoned(directory);
    const int code = run.run(sources, [&](Transfer &transfer) {
        fetch(run, transfer, localTarget(destination, transfer.source, sources.size() > 1),
              invocation);
    });
    IncomingFile::syncDirectory(directory);
    return code;
}

/// A local file as it was when its transfer began.
class LocalSource
{
public:
    /// Throws when it can't be read.
    explicit LocalSource(const QString &path)
        : m_path(path)
        , m_before(look())
    {
    }

    qint64 size() const { return m_before.st_size; }

    bool hasChanged() const
    {
        const struct stat now = look();
        return now.st_dev != m_before.st_dev || now.st_ino != m_before.st_ino
            || now.st_size != m_before.st_size || now.st_mtim.tv_sec != m_before.st_mtim.tv_sec
            || now.st_mtim.tv_nsec != m_before.st_mtim.tv_nsec;
    }

private:
    struct stat look() const
    {
        if (!isUtf8Name(m_path)) {
            throw fileFailure(m_path, u"its name is not UTF-8"_s);
        }
        // Not blocking: opening a named pipe would wait for its other end.
        const int descriptor =
            ::open(toShell(m_path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        if (descriptor == -1) {
            throw fileFailure(m_path, qt_error_string(errno));
        }
        struct stat found
        {
        };
        const int error = ::fstat(descriptor, &found) == 0 ? 0 : errno;
        ::close(descriptor);
        if (error != 0) {
            throw fileFailure(m_path, qt_error_string(error));
        }
        if (!S_ISREG(found.st_mode)) {
            throw fileFailure(m_path,
                              S_ISDIR(found.st_mode) ? u"it is a directory"_s
                                                     : u"it is no regular file"_s);
        }
        return found;
    }

    QString m_path;
    struct stat m_before;
};

/// What a transfer that did not end well has left on the instrument.
QString leftOnInstrument(TransferRun &run, const Transfer &transfer, qint64 total)
{
    run.tree().forget();
    // Some controllers write under a name of their own until the file is closed.
    for (const QString &name : {transfer.destination + u".part"_s, transfer.destination}) {
        if (const std::optional<FileSystemItem> item = run.tree().find(name)) {
            // Without a byte carried it may as well be what was there before.
            return transfer.size > 0 && item->size < total
                ? u"%1 is incomplete on the instrument (%2)"_s.arg(printable(name),
                                                                   ofBytes(item->size, total))
                : u"%1 has %2 bytes on the instrument"_s.arg(printable(name)).arg(item->size);
        }
    }
    return u"it is not on the instrument"_s;
}

Failure whyNotSent(TransferRun &run, const Transfer &transfer, qint64 total)
{
    if (!run.session().isLinkUp()) {
        Failure lost = run.session().linkLost();
        lost.message +=
            u"; "_s + printable(transfer.destination) + u" may be incomplete on the instrument"_s;
        return lost;
    }
    QString reason = u"the instrument took only "_s + ofBytes(transfer.size, total);
    if (transfer.size == total) {
        reason = u"the instrument took all %1 bytes, but could not close the file"_s.arg(total);
    } else if (transfer.size == 0) {
        reason = u"the instrument refused to open it, or its first bytes"_s;
    }
    return fileFailure(transfer.destination,
                       reason + u"; "_s + leftOnInstrument(run, transfer, total));
}

void send(TransferRun &run, Transfer &transfer, const QString &target, const Invocation &invocation)
{
    const LocalSource local(transfer.source);
    transfer.destination = target;
    run.claim(target);
    switch (run.move(TransferRun::Direction::Upload, target, transfer, local.size())) {
    case Carried:
        break;
    case Exists:
        throw fileFailure(target,
                          u"it exists already on the instrument; --overwrite replaces it"_s);
    case Aborted:
        throw Interrupted {leftOnInstrument(run, transfer, local.size())};
    default:
        throw whyNotSent(run, transfer, local.size());
    }
    if (invocation.isSet(u"verify"_s)) {
        try {
            transfer.sha256 = run.verify(transfer.source, target, local.size());
        } catch (const Interrupted &) {
            throw Interrupted {printable(target) + u" is on the instrument, but not verified"_s};
        }
    }
    if (local.hasChanged() || transfer.size != local.size()) {
        throw fileFailure(transfer.source,
                          u"it changed while it was carried; what is on the instrument "
                          u"may be a mixture"_s);
    }
}

int put(const Invocation &invocation)
{
    QStringList sources = invocation.operands();
    const QString destination = sources.takeLast();
    TransferRun run(invocation);
    const QString directory = run.tree().target(destination, QString(), sources.size() > 1);
    return run.run(sources, [&](Transfer &transfer) {
        const QString target =
            directory.endsWith(u'/') ? joinPath(directory, remoteName(transfer.source)) : directory;
        send(run, transfer, target, invocation);
    });
}

QList<QCommandLineOption> transferOptions()
{
    return {
        {u"overwrite"_s, u"Replace a destination that exists."_s},
        {u"verify"_s, u"Read the file back and compare the SHA-256 of both sides."_s},
        {{u"q"_s, u"quiet"_s}, u"Say nothing but errors."_s},
    };
}

} // namespace

QList<Command> transferCommands()
{
    return {
        {.name = u"get"_s,
         .operands = u"SOURCE... [DESTINATION]"_s,
         .summary = u"Fetch files from the instrument."_s,
         .options = transferOptions(),
         .fewest = 1,
         .most = Command::Any,
         .run = get},
        {.name = u"put"_s,
         .operands = u"SOURCE... DESTINATION"_s,
         .summary = u"Send files to the instrument."_s,
         .options = transferOptions(),
         .fewest = 2,
         .most = Command::Any,
         .run = put},
    };
}

#include "FcpRemoteFile.h"

#include "FcpAppCORBA_p.h"

using namespace WireConversion;

struct FcpRemoteFile::Private
{
    template<typename Call>
    FileSystemResult call(Call &&call)
    {
        // Bound to its connection, a call on a link that was lost could not reach a newer one; not
        // making it saves the ORB the trouble.
        if (!link || proxy->currentLink() != link) {
            return FS_ERROR;
        }
        return proxy->callOn(link, FS_ERROR, std::forward<Call>(call));
    }

    FcpAppCORBA::Private *const proxy;
    std::shared_ptr<FcpLink> link;
    long handle = 0;
    OctetSequence_var pulled;
};

FcpRemoteFile::FcpRemoteFile(FcpAppCORBA *controller)
    : d(new Private {controller->d.get(), nullptr, 0, {}})
{
}

FcpRemoteFile::~FcpRemoteFile()
{
    close();
}

FileSystemResult FcpRemoteFile::open(const QString &path, bool write, bool overwrite)
{
    close();
    if (!canTravel(path)) {
        return FS_ERROR;
    }
    d->link = d->proxy->currentLink();
    const FileSystemResult result =
        d->call([&](FcpLink &link) { return link.openFile(path, write, overwrite, d->handle); });
    if (result != FS_OK) {
        d->link.reset();
    }
    return result;
}

bool FcpRemoteFile::isOpen() const
{
    return d->link != nullptr;
}

FileSystemResult FcpRemoteFile::push(const char *data, long size)
{
    if (size < 0 || !canTravel(size)) {
        return FS_ERROR;
    }
    return d->call([&](FcpLink &link) { return link.pushFileContents(d->handle, data, size); });
}

FileSystemResult FcpRemoteFile::pull(long wanted, QByteArrayView &bytes)
{
    bytes = {};
    if (wanted < 0 || !canTravel(wanted)) {
        return FS_ERROR;
    }
    return d->call([&](FcpLink &link) {
        const FileSystemResult result = link.pullFileContents(d->handle, wanted, d->pulled);
        bytes = QByteArrayView(d->pulled->NP_data(), static_cast<qsizetype>(d->pulled->length()));
        return result;
    });
}

FileSystemResult FcpRemoteFile::close()
{
    // Also on a link that was replaced: as long as its connection lives, the controller keeps the
    // file open for it.
    FileSystemResult result = FS_ERROR;
    if (d->link && (d->proxy->currentLink() == d->link || d->link->openSocket())) {
        result = d->proxy->callOn(d->link, FS_ERROR,
                                  [this](FcpLink &link) { return link.closeFile(d->handle); });
    }
    d->link.reset();
    return result;
}

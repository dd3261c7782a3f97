// The operations of FcpAppCORBA on the instrument's files.

#include "FcpAppCORBA_p.h"

#include <cstring>

using namespace WireConversion;

QString FcpAppCORBA::newDirectory(const QString &path)
{
    if (!d->admits(path)) {
        return {};
    }
    return d->call(QString(), [&](FcpLink &link) {
        const CORBA::String_var created = link.controller()->newDirectory(toWire(path).constData());
        return fromWire(created.in());
    });
}

long FcpAppCORBA::renameFileDirectory(const QString &directory, const QString &oldName,
                                      const QString &newName)
{
    if (!d->admits(directory, oldName, newName)) {
        return 0;
    }
    return d->call(0L, [&](FcpLink &link) -> long {
        return link.controller()->renameFileDirectory(toWire(directory).constData(),
                                                      toWire(oldName).constData(),
                                                      toWire(newName).constData());
    });
}

long FcpAppCORBA::moveFileDirectory(const QString &source, const QString &destination)
{
    if (!d->admits(source, destination)) {
        return 0;
    }
    return d->call(0L, [&](FcpLink &link) -> long {
        return link.controller()->moveFileDirectory(toWire(source).constData(),
                                                    toWire(destination).constData());
    });
}

long FcpAppCORBA::copyFileDirectory(const QString &source, const QString &destination)
{
    if (!d->admits(source, destination)) {
        return 0;
    }
    return d->call(0L, [&](FcpLink &link) -> long {
        return link.controller()->copyFileDirectory(toWire(source).constData(),
                                                    toWire(destination).constData());
    });
}

long FcpAppCORBA::deleteFileDirectory(const QString &path)
{
    if (!d->admits(path)) {
        return 0;
    }
    return d->call(0L, [&](FcpLink &link) -> long {
        return link.controller()->deleteFileDirectory(toWire(path).constData());
    });
}

bool FcpAppCORBA::getFileSystemItems(const QString &directory, const QVector<QString> &patterns,
                                     QDir::Filters filters, QVector<FileSystemItem> &items)
{
    if (!d->admits(directory, patterns)) {
        return false;
    }
    return d->call(false, [&](FcpLink &link) -> bool {
        FileSystemItemCORBASeq_var wire;
        const bool listed = link.controller()->getFileSystemItems(
            toWire(directory).constData(), static_cast<CORBA::Long>(filters.toInt()),
            filtersToWire(patterns), wire.out());
        items = vectorFromWire<FileSystemItem>(wire.in());
        return listed;
    });
}

FileSystemResult FcpAppCORBA::openFile(const QString &path, bool write, bool overwrite,
                                       long &handle)
{
    if (!d->admits(path)) {
        return FS_OK;
    }
    return d->call(FS_OK,
                   [&](FcpLink &link) { return link.openFile(path, write, overwrite, handle); });
}

FileSystemResult FcpAppCORBA::closeFile(long handle)
{
    if (!d->admits(handle)) {
        return FS_ERROR;
    }
    return d->call(FS_OK, [&](FcpLink &link) { return link.closeFile(handle); });
}

FileSystemResult FcpAppCORBA::pushFileContents(long handle, const char *data, long size)
{
    if (!d->admits(handle, size) || size < 0) {
        return FS_ERROR;
    }
    return d->call(FS_OK, [&](FcpLink &link) { return link.pushFileContents(handle, data, size); });
}

FileSystemResult FcpAppCORBA::pullFileContents(long handle, long wanted, long &got, char *buffer)
{
    if (!d->admits(handle, wanted) || wanted < 0) {
        return FS_ERROR;
    }
    return d->call(FS_OK, [&](FcpLink &link) {
        OctetSequence_var bytes;
        const FileSystemResult result = link.pullFileContents(handle, wanted, bytes);
        got = static_cast<long>(bytes->length());
        if (got > 0) {
            std::memcpy(buffer, bytes->NP_data(), static_cast<size_t>(got));
        }
        return result;
    });
}

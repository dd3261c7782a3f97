#include "LocalSource.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include "FileNames.h"
#include "FilePaths.h"

namespace {

TransferSource::Entry entryOf(const QFileInfo &info)
{
    using Type = TransferSource::Entry::Type;
    Type type = Type::Other;
    if (!info.isSymLink() && (info.isDir() || info.isFile())) {
        type = info.isDir() ? Type::Folder : Type::File;
    }
    return {info.fileName(), type, type == Type::File ? info.size() : 0,
            QLocale().toString(info.lastModified(), QLocale::ShortFormat)};
}

} // namespace

TransferStep LocalSource::look(const QString &folder, const QString &name, Entry &entry)
{
    const QFileInfo info(FilePaths::join(folder, name));
    if (!info.exists() && !info.isSymLink()) {
        return TransferStep::failed(tr("it is not there"));
    }
    entry = entryOf(info);
    return TransferStep::done();
}

TransferStep LocalSource::list(const QString &folder, QVector<Entry> &entries)
{
    const QFileInfo info(folder);
    if (!info.isDir() || !info.isReadable() || !info.isExecutable()) {
        return TransferStep::failed(info.exists() ? tr("this folder cannot be read")
                                                  : tr("it is not there"));
    }
    const QFileInfoList infos = QDir(folder).entryInfoList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo &item : infos) {
        entries.append(entryOf(item));
    }
    return TransferStep::done();
}

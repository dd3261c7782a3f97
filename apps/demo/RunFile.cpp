#include "RunFile.h"

#include "RunReader.h"
#include "RunWriter.h"

#include <QFile>
#include <QSaveFile>

using namespace Qt::StringLiterals;

QString RunFile::suffix()
{
    return u"xml"_s;
}

QString RunFile::write(const QString &path) const
{
    QSaveFile file(path);
    // Without direct writes there is either the old file or the whole new one.
    file.setDirectWriteFallback(false);
    if (!file.open(QIODevice::WriteOnly)) {
        return tr("%1 can't be written: %2").arg(path, file.errorString());
    }
    RunWriter(file).write(*this);
    return file.commit() ? QString() : tr("%1 can't be written: %2").arg(path, file.errorString());
}

QString RunFile::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return tr("%1 can't be read: %2").arg(path, file.errorString());
    }
    // Of what claims to be small but is not (a device, a pipe) no more is read either.
    const QByteArray contents = file.read(largestFile + 1);
    if (contents.size() > largestFile) {
        return tr("%1 is larger than %2 MiB.").arg(path).arg(largestFile / (1024 * 1024));
    }
    RunReader reader(contents);
    RunFile read;
    if (!reader.read(read)) {
        return tr("%1 is no run of the level meter: %2").arg(path, reader.error());
    }
    *this = read;
    return {};
}

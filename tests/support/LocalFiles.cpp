#include "LocalFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

void writeFile(const QString &path, const QByteArray &contents)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()) {
        qFatal("Can not write %s", qPrintable(path));
    }
}

void removeFiles(const QString &folder)
{
    const QDir directory(folder);
    for (const QString &name : directory.entryList(QDir::Files)) {
        QFile::remove(directory.filePath(name));
    }
}

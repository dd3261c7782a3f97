#include "Workbench.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 Block = Workbench::Mebibyte;
constexpr qint64 SmallSize = 4096;

int scaled(int count, double scale)
{
    return std::max(1, static_cast<int>(count * scale));
}

QByteArray noise(qint64 size)
{
    std::mt19937_64 generator(20240607);
    QByteArray bytes(size, Qt::Uninitialized);
    for (qint64 i = 0; i + 8 <= size; i += 8) {
        const quint64 value = generator();
        std::memcpy(bytes.data() + i, &value, sizeof value);
    }
    return bytes;
}

void write(const QString &path, const QByteArray &bytes, qint64 times)
{
    QFile file(path);
    bool isFine = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    QByteArray block = bytes;
    for (qint64 i = 0; isFine && i < times; ++i) {
        // No two blocks are alike, so that one in the wrong place shows.
        std::memcpy(block.data(), &i, sizeof i);
        isFine = file.write(block) == block.size();
    }
    if (!isFine) {
        throw std::runtime_error((path + u": "_s + file.errorString()).toStdString());
    }
}

bool isSameFile(const QString &path, const QString &otherPath)
{
    QFile file(path);
    QFile other(otherPath);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)
        || !other.open(QIODevice::ReadOnly | QIODevice::Unbuffered)
        || file.size() != other.size()) {
        return false;
    }
    while (true) {
        const QByteArray bytes = file.read(Block);
        if (bytes != other.read(Block)) {
            return false;
        }
        if (bytes.isEmpty()) {
            return true;
        }
    }
}

} // namespace

Workbench::Workbench(const QString &directory, double scale)
    : m_directory(directory)
    , m_largeSize(std::max<qint64>(1, static_cast<qint64>(1024 * scale)) * Mebibyte)
    , m_smallCount(scaled(2000, scale))
    , m_listedCount(scaled(100000, scale))
    , m_eventCount(scaled(200000, scale))
{
    for (const QString &path : {here({}), there({}), scratch({}), here(smallDirectory()),
                                there(smallDirectory()), there(listedDirectory())}) {
        if (!QDir().mkpath(path)) {
            throw std::runtime_error("cannot make " + path.toStdString());
        }
    }
    // The source, one copy of it, and room for the servers' own needs.
    if (QStorageInfo(directory).bytesAvailable() < m_largeSize * 5 / 2) {
        throw std::runtime_error("too little room in " + directory.toStdString()
                                 + " for two files of 1 GiB; try --scale 0.1");
    }
    makeLargeFile();
    makeSmallFiles();
}

QString Workbench::here(const QString &name) const
{
    return m_directory + u"/here/"_s + name;
}

QString Workbench::there(const QString &name) const
{
    return serverRoot() + u"/Internal/"_s + name;
}

QString Workbench::scratch(const QString &name) const
{
    return m_directory + u"/scratch/"_s + name;
}

QStringList Workbench::smallNames() const
{
    QStringList names;
    for (int i = 0; i < m_smallCount; ++i) {
        names.append(u"%1.dat"_s.arg(i, 6, 10, QLatin1Char('0')));
    }
    return names;
}

void Workbench::makeLargeFile() const
{
    write(here(largeName()), noise(Block), m_largeSize / Block);
    // One file under two names: what is carried is read here or there.
    const QByteArray source = here(largeName()).toLocal8Bit();
    if (::link(source.constData(), there(largeName()).toLocal8Bit().constData()) != 0) {
        throw std::runtime_error("cannot link " + source.toStdString());
    }
}

void Workbench::makeSmallFiles() const
{
    const QByteArray bytes = noise(SmallSize * 2);
    qint64 index = 0;
    for (const QString &name : smallNames()) {
        const QByteArray contents = bytes.mid(index++ % SmallSize, SmallSize);
        write(here(smallDirectory() + u'/' + name), contents, 1);
        write(there(smallDirectory() + u'/' + name), contents, 1);
    }
}

void Workbench::makeListedDirectory() const
{
    for (int i = 0; i < m_listedCount; ++i) {
        write(
            there(
                u"%1/measurement-%2.dat"_s.arg(listedDirectory()).arg(i, 6, 10, QLatin1Char('0'))),
            {}, 0);
    }
}

bool isSame(const QString &path, const QString &otherPath)
{
    if (!QFileInfo(path).isDir()) {
        return isSameFile(path, otherPath);
    }
    const QStringList names = QDir(path).entryList(QDir::Files);
    return names == QDir(otherPath).entryList(QDir::Files)
        && std::all_of(names.begin(), names.end(), [&](const QString &name) {
               return isSameFile(path + u'/' + name, otherPath + u'/' + name);
           });
}

void removeAll(const QString &path)
{
    if (QFileInfo(path).isDir()) {
        QDir(path).removeRecursively();
    } else {
        QFile::remove(path);
    }
}

#include "Folders.h"

#include <QDir>
#include <QFile>

#include <unistd.h>

#include <algorithm>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

int scaled(int count, double scale)
{
    return std::max(10, static_cast<int>(count * scale));
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        throw std::runtime_error((path + u": "_s + file.errorString()).toStdString());
    }
}

QByteArray savedFile(const QByteArray &application)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE VEX>\n<File>\n"
           "<ServerId>1</ServerId>\n<AppType>"
        + application
        + "</AppType>\n<AppTech>Optical</AppTech>\n<Ports>1,2</Ports>\n"
          "<Timestamp>2026-05-04T10:11:12</Timestamp>\n<Data>\n"
        + QByteArray("<Value>0.125</Value>\n").repeated(50) + "</Data>\n</File>\n";
}

} // namespace

Folders::Folders(const QString &directory, double scale)
    : m_directory(directory)
    , m_manyCount(scaled(100'000, scale))
    , m_hugeCount(scaled(1'000'000, scale))
    , m_headCount(scaled(10'000, scale))
{
    makeNames(many(), m_manyCount);
    makeNames(huge(), m_hugeCount);
    makeHeads();
}

QString Folders::path(const QString &name) const
{
    return serverRoot() + u"/Internal/"_s + name;
}

QString Folders::name(int number)
{
    return u"measurement-%1.dat"_s.arg(number, 7, 10, QLatin1Char('0'));
}

/// All names are links to one file, so that a million of them fit into the memory.
void Folders::makeNames(const QString &folder, int count) const
{
    QDir().mkpath(path(folder));
    const QByteArray first = path(folder + u'/' + name(0)).toLocal8Bit();
    write(QString::fromLocal8Bit(first), "measured");
    for (int i = 1; i < count; ++i) {
        const QByteArray next = path(folder + u'/' + name(i)).toLocal8Bit();
        if (::link(first.constData(), next.constData()) != 0) {
            throw std::runtime_error("cannot link " + next.toStdString());
        }
    }
}

void Folders::makeHeads() const
{
    QDir().mkpath(path(heads()));
    for (int i = 0; i < m_headCount; ++i) {
        write(path(u"%1/run-%2.xml"_s.arg(heads()).arg(i, 6, 10, QLatin1Char('0'))),
              savedFile(i % 2 == 0 ? "Meter" : "Scope"));
    }
}

void Folders::changeOne()
{
    const QString file = path(many() + u'/' + name(m_manyCount / 2));
    QFile::remove(file);
    write(file, QByteArray(++m_changes, 'x'));
}

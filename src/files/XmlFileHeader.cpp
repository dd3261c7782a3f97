#include "XmlFileHeader.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "FileDescriptor.h"

namespace {

using Prefix = std::array<char, size_t(XmlFileHeader::LineCount) * XmlFileHeader::LineLength>;

QByteArray linesOf(QIODevice &device)
{
    QByteArray lines;
    for (int line = 0; line < XmlFileHeader::LineCount; ++line) {
        lines += device.readLine(XmlFileHeader::LineLength);
    }
    return lines;
}

/// How much readLine() takes at most: Qt 6.4 leaves room for a zero, so it is one byte less.
qsizetype readLineLength()
{
    QByteArray line(XmlFileHeader::LineLength + 1, 'x');
    QBuffer buffer(&line);
    buffer.open(QIODevice::ReadOnly);
    return buffer.readLine(XmlFileHeader::LineLength).size();
}

/// What linesOf() gives for a file that begins with these bytes, several times as fast.
QByteArray linesIn(const char *begin, qsizetype size)
{
    static const qsizetype length = readLineLength();
    const char *const end = begin + size;
    const char *at = begin;
    for (int line = 0; line < XmlFileHeader::LineCount && at != end; ++line) {
        const char *const limit = at + std::min(length, qsizetype(end - at));
        const char *const newline = std::find(at, limit, '\n');
        at = newline == limit ? limit : newline + 1;
    }
    return QByteArray(begin, at - begin);
}

/// @return how many bytes were read, fewer than asked for at the end of the file only; or -1.
qsizetype readAtMost(int fd, char *buffer, size_t size)
{
    size_t done = 0;
    while (done < size) {
        const ssize_t got = ::read(fd, buffer + done, size - done);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            return -1;
        }
        if (got == 0) {
            break;
        }
        done += static_cast<size_t>(got);
    }
    return static_cast<qsizetype>(done);
}

/// Opening a pipe would wait for its writer, and opening a device may do anything.
FileDescriptor openRegularFile(const QString &path)
{
    FileDescriptor fd(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status;
    if (fd && (::fstat(fd.get(), &status) != 0 || !S_ISREG(status.st_mode))) {
        return FileDescriptor();
    }
    return fd;
}

QString *fieldOf(FileData &data, QStringView element)
{
    static constexpr std::pair<QStringView, QString FileData::*> fields[] = {
        {u"ServerId", &FileData::ServerId},   {u"AppType", &FileData::AppType},
        {u"AppTech", &FileData::AppTech},     {u"Ports", &FileData::Ports},
        {u"Timestamp", &FileData::Timestamp},
    };
    const auto field =
        std::find_if(std::begin(fields), std::end(fields),
                     [element](const auto &candidate) { return candidate.first == element; });
    return field == std::end(fields) ? nullptr : &(data.*field->second);
}

} // namespace

XmlFileHeader::XmlFileHeader() = default;

XmlFileHeader::~XmlFileHeader() = default;

bool XmlFileHeader::getFileInfo(QFile *file, FileData *data)
{
    if (file->isOpen()) {
        return false;
    }
    const QFileInfo info(*file);
    if (!info.isFile() || !file->open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray head = linesOf(*file);
    file->close();
    return parse(head, data);
}

bool XmlFileHeader::getFileInfo(const QString &path, FileData *data)
{
    const FileDescriptor fd = openRegularFile(path);
    return fd && getFileInfo(fd.get(), data);
}

bool XmlFileHeader::getFileInfo(int fd, FileData *data)
{
    Prefix prefix;
    const qsizetype size = readAtMost(fd, prefix.data(), prefix.size());
    if (size <= 0) {
        return false;
    }
    return parse(linesIn(prefix.data(), size), data);
}

bool XmlFileHeader::parse(const QByteArray &head, FileData *data)
{
    if (!head.startsWith("<?xml") || !head.contains("<!DOCTYPE VEX>")) {
        return false;
    }
    QXmlStreamReader reader(head);
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::DTD && !reader.entityDeclarations().isEmpty()) {
            break;
        }
        if (token != QXmlStreamReader::StartElement) {
            continue;
        }
        if (QString *field = fieldOf(*data, reader.name())) {
            *field = reader.readElementText();
        }
    }
    return true;
}

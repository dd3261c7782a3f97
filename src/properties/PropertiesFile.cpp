#include "PropertiesFile.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "PropertiesXml.h"

using namespace Qt::StringLiterals;

namespace {

/// Where the file is that @p path stands for: a symbolic link goes on being one.
QString resolved(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isSymLink()) {
        return path;
    }
    const QString target = info.canonicalFilePath();
    return target.isEmpty() ? info.symLinkTarget() : target;
}

/// Also true on file systems that do not know how.
bool flushToMedium(int descriptor)
{
    return ::fsync(descriptor) == 0 || errno == EINVAL;
}

} // namespace

PropertiesFile::PropertiesFile(const QString &path, QByteArray &lastWhole)
    : m_path(resolved(path))
    , m_lastWhole(lastWhole)
{
}

PropertiesFile::State PropertiesFile::read(QVector<long> &ids, QVector<QString> &values)
{
    QByteArray bytes;
    const State state = readBytes(bytes);
    return state == State::Whole ? parse(bytes, ids, values) : state;
}

PropertiesFile::State PropertiesFile::readBytes(QByteArray &bytes)
{
    const QFileInfo info(m_path);
    if (!info.exists()) {
        return State::Absent;
    }
    QFile file(m_path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) { // opening a pipe would wait
        fail(m_path, info.isFile() ? file.errorString() : u"it is no file"_s);
        return State::Unreadable;
    }
    bytes = file.read(PropertiesXml::MaxSize + 1);
    bytes.squeeze(); // it had room for the largest file
    if (file.error() != QFileDevice::NoError) {
        fail(m_path, file.errorString());
        return State::Unreadable;
    }
    return State::Whole;
}

PropertiesFile::State PropertiesFile::parse(const QByteArray &bytes, QVector<long> &ids,
                                            QVector<QString> &values)
{
    const QString objection = PropertiesXml::read(bytes, ids, values);
    if (!objection.isEmpty()) {
        fail(m_path, objection);
        return State::Damaged;
    }
    m_lastWhole = bytes;
    return State::Whole;
}

bool PropertiesFile::write(const QVector<StoredProperty> &properties)
{
    const QByteArray xml = PropertiesXml::write(properties);
    if (xml.size() > PropertiesXml::MaxSize) {
        return fail(m_path, u"with %1 bytes it could not be read again"_s.arg(xml.size()));
    }
    if (!replace(m_path, xml, [this] { return keepPrevious(); })) {
        return false;
    }
    m_lastWhole = xml;
    return flushDirectory();
}

bool PropertiesFile::moveAside()
{
    const QString first =
        m_path + u".corrupt-"_s + QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss"_s);
    QString aside = first;
    for (int i = 2; QFileInfo::exists(aside); ++i) {
        aside = first + u'-' + QString::number(i);
    }
    QFile file(m_path);
    if (!file.rename(aside)) {
        return fail(aside, file.errorString());
    }
    m_report += u"; it was moved to %1"_s.arg(aside);
    return true;
}

bool PropertiesFile::replace(const QString &path, const QByteArray &bytes,
                             const std::function<bool()> &beforeReplacing)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        return fail(path, u"it is no file"_s);
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
        return fail(path, file.errorString());
    }
    // QSaveFile flushes to the medium too, but does not say when that has failed.
    if (!flushToMedium(file.handle())) {
        return fail(path, qt_error_string(errno));
    }
    if (!beforeReplacing()) {
        return false;
    }
    return file.commit() || fail(path, file.errorString());
}

bool PropertiesFile::keepPrevious()
{
    QByteArray bytes;
    State state = readBytes(bytes);
    if (state == State::Whole && (bytes.isEmpty() || bytes != m_lastWhole)) {
        QVector<long> ids;
        QVector<QString> values;
        state = parse(bytes, ids, values);
    }
    switch (state) {
    case State::Absent:
        return true;
    case State::Whole:
        return keepAsBackup();
    case State::Unreadable:
    case State::Damaged:
        return moveAside();
    }
    return false;
}

/// Gives the file a second name; it has the first one until another file takes it.
bool PropertiesFile::keepAsBackup()
{
    const QString backup = m_path + u".bak"_s;
    const QString fresh = backup + u".new"_s;
    QFile::remove(fresh); // of a process that was ended before it had the name
    const QByteArray freshName = QFile::encodeName(fresh);
    if (::link(QFile::encodeName(m_path).constData(), freshName.constData()) != 0) {
        return copyTo(backup); // the file system has no second names
    }
    if (::rename(freshName.constData(), QFile::encodeName(backup).constData()) != 0) {
        const QString reason = qt_error_string(errno);
        QFile::remove(fresh);
        return fail(backup, reason);
    }
    QFile::remove(fresh); // it is still there when both were names of the same file
    return true;
}

bool PropertiesFile::copyTo(const QString &backup)
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        return fail(m_path, file.errorString());
    }
    return replace(backup, file.readAll(), [] { return true; }) && flushDirectory();
}

/// Without this a power cut may undo that a file got its name.
bool PropertiesFile::flushDirectory()
{
    const QString directory = QFileInfo(m_path).absolutePath();
    const int descriptor =
        ::open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool isFlushed = descriptor >= 0 && flushToMedium(descriptor);
    const QString reason = isFlushed ? QString() : qt_error_string(errno);
    if (descriptor >= 0) {
        ::close(descriptor);
    }
    return isFlushed || fail(directory, reason);
}

bool PropertiesFile::fail(const QString &path, const QString &reason)
{
    m_report += (m_report.isEmpty() ? u"%1: %2"_s : u"; %1: %2"_s).arg(path, reason);
    return false;
}

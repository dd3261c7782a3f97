#include "LogFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

LogFile::LogFile(const QString &path, qint64 maxSize, int count)
    : m_path(path)
    , m_maxSize(maxSize)
    , m_count(count)
{
}

LogFile::~LogFile()
{
    close();
}

qint64 LogFile::size() const
{
    struct stat status
    {
    };
    return ::stat(QFile::encodeName(m_path).constData(), &status) == 0 ? status.st_size : 0;
}

bool LogFile::write(const QByteArray &lines)
{
    const qint64 before = size();
    if (before > 0 && before + lines.size() > m_maxSize) {
        rotate();
    }
    return open() && append(lines);
}

bool LogFile::append(const QByteArray &lines)
{
    const qint64 before = size();
    qsizetype done = 0;
    while (done < lines.size()) {
        const ssize_t written =
            ::write(m_descriptor, lines.constData() + done, size_t(lines.size() - done));
        if (written < 0 && errno != EINTR) {
            const bool failed = fail();
            // A part of a line is worse than none.
            truncate(before);
            close();
            return failed;
        }
        done += qMax<ssize_t>(written, 0);
    }
    return true;
}

bool LogFile::truncate(qint64 size)
{
    return ::truncate(QFile::encodeName(m_path).constData(), size) == 0;
}

/// A file that somebody has deleted or moved away is made anew.
bool LogFile::isInPlace() const
{
    struct stat opened
    {
    };
    struct stat named
    {
    };
    return ::fstat(m_descriptor, &opened) == 0
        && ::stat(QFile::encodeName(m_path).constData(), &named) == 0
        && opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}

bool LogFile::open()
{
    if (!isInPlace()) {
        close();
        QDir().mkpath(QFileInfo(m_path).absolutePath());
        m_descriptor = ::open(QFile::encodeName(m_path).constData(),
                              O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
    }
    return m_descriptor >= 0 || fail();
}

void LogFile::close()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
        m_descriptor = -1;
    }
}

bool LogFile::fail()
{
    m_error = qt_error_string(errno);
    return false;
}

/// rename() replaces the oldest. What can't be renamed goes on growing.
void LogFile::rotate()
{
    if (m_aboutToRotate) {
        m_aboutToRotate();
    }
    close();
    const auto name = [this](int age) {
        return QFile::encodeName(age == 0 ? m_path : m_path + u'.' + QString::number(age));
    };
    if (m_count == 1) {
        ::unlink(name(0).constData());
    }
    for (int age = m_count - 1; age > 0; --age) {
        std::rename(name(age - 1).constData(), name(age).constData());
    }
}

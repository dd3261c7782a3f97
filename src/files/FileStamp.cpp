#include "FileStamp.h"

#include <QFile>

FileStamp::FileStamp(const QString &path)
    : m_exists(::lstat(QFile::encodeName(path).constData(), &m_status) == 0)
{
}

bool FileStamp::operator==(const FileStamp &other) const
{
    return m_exists == other.m_exists && m_status.st_dev == other.m_status.st_dev
        && m_status.st_ino == other.m_status.st_ino && m_status.st_size == other.m_status.st_size
        && m_status.st_mtim.tv_sec == other.m_status.st_mtim.tv_sec
        && m_status.st_mtim.tv_nsec == other.m_status.st_mtim.tv_nsec;
}

#pragma once

#include <QString>

#include <sys/stat.h>

/** What tells that a local file is still the same and was not written to. */
class FileStamp
{
public:
    /** Of what is at @p path now; a symbolic link is not followed. */
    explicit FileStamp(const QString &path);

    bool exists() const { return m_exists; }
    bool isRegularFile() const { return m_exists && S_ISREG(m_status.st_mode); }
    qint64 size() const { return m_status.st_size; }
    bool operator==(const FileStamp &other) const;

private:
    struct stat m_status = {};
    bool m_exists = false;
};

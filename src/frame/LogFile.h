#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

/** A log file that is renamed when it has grown, and the older ones with it. */
class LogFile
{
public:
    /** @p maxSize in bytes; @p count files are kept. Opens nothing yet. */
    LogFile(const QString &path, qint64 maxSize, int count);
    ~LogFile();

    LogFile(const LogFile &) = delete;
    LogFile &operator=(const LogFile &) = delete;

    QString path() const { return m_path; }
    /** Of the file, in bytes; 0 while it is not there. */
    qint64 size() const;

    /** Called before the file is renamed, when size() is about to become 0. */
    void setAboutToRotate(const std::function<void()> &action) { m_aboutToRotate = action; }

    /** Appends all of @p lines or, with the reason in error(), none. */
    bool write(const QByteArray &lines);
    /** Cuts off what lies behind @p size. */
    bool truncate(qint64 size);
    QString error() const { return m_error; }

private:
    bool open();
    bool isInPlace() const;
    void close();
    void rotate();
    bool append(const QByteArray &lines);
    bool fail();

    const QString m_path;
    const qint64 m_maxSize;
    const int m_count;
    std::function<void()> m_aboutToRotate;
    int m_descriptor = -1;
    QString m_error;
};

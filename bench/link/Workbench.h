#pragma once

#include <QString>
#include <QStringList>

#include "harness/Stopwatch.h"

/**
 * The files that the benchmarks carry, all in one directory of memory, and their places:
 * "here" belongs to the client, "there" to whoever serves.
 */
class Workbench
{
public:
    static constexpr qint64 Mebibyte = 1 << 20;

    /** @p scale shortens everything, for a quick look. */
    Workbench(const QString &directory, double scale);

    qint64 largeSize() const { return m_largeSize; }
    int smallCount() const { return m_smallCount; }
    int listedCount() const { return m_listedCount; }
    int eventCount() const { return m_eventCount; }

    /** The directory of a server, of which clients see "/Internal" when it is a controller. */
    QString serverRoot() const { return m_directory + QStringLiteral("/there"); }
    QString here(const QString &name) const;
    QString there(const QString &name) const;
    /** A directory for keys, settings and logs of the servers. */
    QString scratch(const QString &name) const;

    static QString largeName() { return QStringLiteral("large.bin"); }
    static QString smallDirectory() { return QStringLiteral("small"); }
    static QString listedDirectory() { return QStringLiteral("listed"); }
    QStringList smallNames() const;

    /** Makes the directory of many entries, in which only names count. */
    void makeListedDirectory() const;

private:
    void makeLargeFile() const;
    void makeSmallFiles() const;

    const QString m_directory;
    const qint64 m_largeSize;
    const int m_smallCount;
    const int m_listedCount;
    const int m_eventCount;
};

/** Whether two files, or two directories of files, hold the same. */
bool isSame(const QString &path, const QString &otherPath);
void removeAll(const QString &path);

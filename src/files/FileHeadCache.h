#pragma once

#include <QHash>
#include <QObject>
#include <QSet>

#include "HeadReader.h"

class QFileInfo;

/**
 * What the heads of files tell, each read once for as long as its file stays as it is, and never on
 * the thread that asks.
 */
class FileHeadCache : public QObject
{
    Q_OBJECT

public:
    FileHeadCache();
    ~FileHeadCache() override;

    /**
     * Reads the heads of a folder's files before they are asked for, those with a wanted name.
     * What was to be read before is left unread until it is asked for again. headsRead() follows.
     * @p isWanted is called on another thread.
     */
    void readFolder(const QString &folder, const HeadReader::IsWanted &isWanted);
    /**
     * The head of a regular file; null while it isn't known, which headsRead() ends. While the head
     * of a file that has changed is read again the old one stands for it.
     */
    const FileHead *headOf(const QFileInfo &file);
    /** The file keeps its head under a new name. */
    void rename(const QString &path, const QString &newPath);

    /** Whether a head is still being read. */
    bool isReading() const { return m_isReading; }

Q_SIGNALS:
    /** More heads are known; all that was asked for when isReading() tells no more. */
    void headsRead();

private:
    struct Entry
    {
        FileVersion file;
        FileHead head;
    };

    bool isReadAhead(const QString &path) const;
    void takeResults();

    QHash<QString, Entry> m_entries; ///< by path
    QSet<QString> m_asked; ///< single files that are being read
    QString m_folder; ///< that is being read ahead, with a "/" behind
    bool m_isReading = false;
    HeadReader m_reader; ///< ends first
};

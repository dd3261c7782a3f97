#pragma once

#include <QCache>
#include <QDateTime>
#include <QString>

#include "XmlFileHeader.h"

class QFileInfo;

/** What the heads of files tell, each read once for as long as its file stays as it is. */
class FileHeadCache
{
public:
    struct Head
    {
        bool isValid = false;
        QString appType;
        QString appTech;
    };

    /** The head of a file; not valid for what is no regular file, which is not opened. */
    Head headOf(const QFileInfo &file);

private:
    struct Entry
    {
        qint64 size;
        QDateTime time;
        Head head;
    };

    XmlFileHeader m_reader;
    QCache<QString, Entry> m_entries {32'768};
};

#include "FileHeadCache.h"

#include <QFileInfo>

FileHeadCache::Head FileHeadCache::headOf(const QFileInfo &file)
{
    if (!file.isFile()) {
        return Head();
    }
    const QString path = file.absoluteFilePath();
    const qint64 size = file.size();
    const QDateTime time = file.lastModified();
    if (const Entry *entry = m_entries.object(path);
        entry && entry->size == size && entry->time == time) {
        return entry->head;
    }
    FileData data;
    const bool isValid = m_reader.getFileInfo(path, &data);
    const Head head {isValid, data.AppType, data.AppTech};
    m_entries.insert(path, new Entry {size, time, head});
    return head;
}

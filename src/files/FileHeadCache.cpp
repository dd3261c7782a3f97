#include "FileHeadCache.h"

#include <QFileInfo>

namespace {

/// Beyond that many, those of other folders are forgotten when a folder is read.
constexpr qsizetype EnoughEntries = 32'768;

} // namespace

FileHeadCache::FileHeadCache()
    : m_reader([this] {
        QMetaObject::invokeMethod(this, &FileHeadCache::takeResults, Qt::QueuedConnection);
    })
{
}

FileHeadCache::~FileHeadCache() = default;

void FileHeadCache::readFolder(const QString &folder, const HeadReader::IsWanted &isWanted)
{
    if (m_entries.size() > EnoughEntries) {
        m_entries.clear();
    }
    m_asked.clear();
    m_folder = folder.endsWith(u'/') ? folder : folder + u'/';
    m_isReading = true;
    m_reader.readFolder(m_folder, isWanted);
}

bool FileHeadCache::isReadAhead(const QString &path) const
{
    return !m_folder.isEmpty() && path.startsWith(m_folder)
        && path.lastIndexOf(u'/') == m_folder.size() - 1;
}

const FileHead *FileHeadCache::headOf(const QFileInfo &info)
{
    const QString path = info.filePath();
    const auto entry = m_entries.constFind(path);
    const FileHead *const known = entry == m_entries.cend() ? nullptr : &entry->head;
    if (!known && isReadAhead(path)) {
        return nullptr; // without the time, which costs more than all the rest
    }
    const FileVersion file {path, info.size(), info.lastModified().toMSecsSinceEpoch()};
    if (!(known && entry->file == file) && !isReadAhead(path) && !m_asked.contains(path)) {
        m_asked.insert(path);
        m_isReading = true;
        m_reader.readFile(file);
    }
    return known;
}

void FileHeadCache::rename(const QString &path, const QString &newPath)
{
    if (m_entries.contains(path)) {
        Entry entry = m_entries.take(path);
        entry.file.path = newPath;
        m_entries.insert(newPath, entry);
    }
}

void FileHeadCache::takeResults()
{
    bool isIdle = false;
    for (HeadReader::Result &result : m_reader.takeResults(&isIdle)) {
        m_asked.remove(result.file.path);
        const QString path = result.file.path;
        m_entries.insert(path, {std::move(result.file), std::move(result.head)});
    }
    if (isIdle) {
        m_isReading = false;
        m_folder.clear();
    }
    Q_EMIT headsRead();
}

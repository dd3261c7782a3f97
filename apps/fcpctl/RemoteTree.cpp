#include "RemoteTree.h"

#include "Session.h"
#include "Text.h"

#include <QDir>

using namespace Qt::StringLiterals;

QString withoutTrailingSlash(const QString &path)
{
    qsizetype length = path.size();
    while (length > 1 && path[length - 1] == u'/') {
        --length;
    }
    return path.first(length);
}

QString remoteParent(const QString &path)
{
    const QString clean = withoutTrailingSlash(path);
    const qsizetype slash = clean.lastIndexOf(u'/');
    return slash <= 0 ? u"/"_s : withoutTrailingSlash(clean.first(slash));
}

QString remoteName(const QString &path)
{
    const QString clean = withoutTrailingSlash(path);
    return clean.sliced(clean.lastIndexOf(u'/') + 1);
}

QString joinPath(const QString &directory, const QString &name)
{
    return directory.endsWith(u'/') ? directory + name : directory + u'/' + name;
}

RemoteTree::RemoteTree(const Session &session)
    : m_session(session)
{
}

std::optional<QVector<FileSystemItem>> RemoteTree::list(const QString &directory,
                                                        const QVector<QString> &patterns) const
{
    constexpr auto Everything =
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QVector<FileSystemItem> items;
    const bool listed = m_session.ask([&](FcpAppCORBA &fcp) {
        return fcp.getFileSystemItems(directory, patterns, Everything, items);
    });
    if (!listed) {
        return std::nullopt;
    }
    return items;
}

std::optional<FileSystemItem> RemoteTree::find(const QString &path)
{
    const QString name = remoteName(path);
    if (!name.isEmpty()) {
        if (const Entries *siblings = entries(remoteParent(path))) {
            const auto found = siblings->find(name);
            return found == siblings->end() ? std::nullopt : std::optional(*found);
        }
    }
    // The root, or a directory whose parent the controller does not show.
    if (!entries(withoutTrailingSlash(path))) {
        return std::nullopt;
    }
    FileSystemItem directory;
    directory.name = name;
    directory.isdir = true;
    return directory;
}

bool RemoteTree::isDirectory(const QString &path)
{
    const std::optional<FileSystemItem> item = find(path);
    return item && item->isdir;
}

QString RemoteTree::target(const QString &destination, const QString &name, bool mustBeDirectory)
{
    QString clean = withoutTrailingSlash(destination);
    if (isDirectory(clean)) {
        return joinPath(clean, name);
    }
    if (mustBeDirectory || destination.endsWith(u'/')) {
        throw fileFailure(destination, u"no such directory on the instrument"_s);
    }
    return clean;
}

const RemoteTree::Entries *RemoteTree::entries(const QString &directory)
{
    auto known = m_directories.find(directory);
    if (known == m_directories.end()) {
        std::optional<Entries> entries;
        if (const auto items = list(directory)) {
            entries.emplace();
            for (const FileSystemItem &item : *items) {
                entries->insert(item.name, item);
            }
        }
        known = m_directories.insert(directory, entries);
    }
    return *known ? &**known : nullptr;
}

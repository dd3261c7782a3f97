#include "QvexRemoteFileSystemAbstract.h"
#include "FilePaths.h"

#include <QDir>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

void number(RemoteNodes &nodes, qint32 from)
{
    for (size_t i = size_t(from); i < nodes.size(); ++i) {
        nodes[i]->row = qint32(i);
    }
}

} // namespace

QvexRemoteFileSystemAbstract::QvexRemoteFileSystemAbstract()
    : m_root(FileSystemItem {.name = {}, .date = {}, .isdir = true, .dircount = -1})
{
}

bool QvexRemoteFileSystemAbstract::isName(const QString &name)
{
    return !name.isEmpty() && name != "."_L1 && name != ".."_L1 && !name.contains(u'/')
        && !name.contains(QChar::Null);
}

QString QvexRemoteFileSystemAbstract::cleanPath(const QString &path)
{
    return path.contains(QChar::Null) ? QString() : QDir::cleanPath(u'/' + path);
}

bool QvexRemoteFileSystemAbstract::hasPath(const RemoteNode *node)
{
    while (node->parent && node->nameable) {
        node = node->parent;
    }
    return !node->parent;
}

QString QvexRemoteFileSystemAbstract::path(const RemoteNode *node) const
{
    if (node == &m_root) {
        return u"/"_s;
    }
    if (!node->nameable) {
        return {};
    }
    const QString above = path(node->parent);
    return above.isEmpty() ? above : FilePaths::join(above, node->item.name);
}

RemoteNode *QvexRemoteFileSystemAbstract::find(const QString &path)
{
    RemoteNode *node = path.isEmpty() ? nullptr : &m_root;
    for (const QStringView name : QStringView(path).split(u'/', Qt::SkipEmptyParts)) {
        node = node ? child(node, name) : nullptr;
    }
    return node;
}

RemoteNode *QvexRemoteFileSystemAbstract::child(const RemoteNode *directory, QStringView name)
{
    RemoteNode *file = nullptr;
    for (qint32 i = 0; i < directory->childCount(); ++i) {
        RemoteNode *node = directory->child(i);
        if (node->item.name == name) {
            if (node->item.isdir) {
                return node;
            }
            file = file ? file : node;
        }
    }
    return file;
}

bool QvexRemoteFileSystemAbstract::isBelow(const RemoteNode *node, const RemoteNode *ancestor)
{
    while (node && node != ancestor) {
        node = node->parent;
    }
    return node;
}

QVector<RemoteNode *> QvexRemoteFileSystemAbstract::listedDirectories(RemoteNode *top)
{
    QVector<RemoteNode *> found;
    if (top->isListed()) {
        found.append(top);
    }
    for (qint32 i = 0; i < top->childCount(); ++i) {
        if (top->child(i)->branch) {
            found += listedDirectories(top->child(i));
        }
    }
    return found;
}

QVector<FileSystemItem> QvexRemoteFileSystemAbstract::entries(const RemoteNode *directory)
{
    QVector<FileSystemItem> items;
    items.reserve(directory->childCount());
    for (qint32 i = 0; i < directory->childCount(); ++i) {
        items.append(directory->child(i)->item);
    }
    return items;
}

void QvexRemoteFileSystemAbstract::insert(RemoteNode *directory, qint32 row,
                                          RemoteNodes::iterator first, qint32 count)
{
    RemoteNodes &children = directory->makeBranch().children;
    std::for_each(first, first + count, [directory](auto &node) { node->parent = directory; });
    children.insert(children.begin() + row, std::make_move_iterator(first),
                    std::make_move_iterator(first + count));
    number(children, row);
}

RemoteNodes QvexRemoteFileSystemAbstract::take(RemoteNode *directory, qint32 row, qint32 count)
{
    RemoteNodes &children = directory->branch->children;
    const auto first = children.begin() + row;
    RemoteNodes taken(std::make_move_iterator(first), std::make_move_iterator(first + count));
    children.erase(first, first + count);
    number(children, row);
    if (children.empty()) {
        children.shrink_to_fit();
    }
    return taken;
}

void QvexRemoteFileSystemAbstract::reorder(RemoteNode *directory, const std::vector<qint32> &order)
{
    RemoteNodes &children = directory->branch->children;
    RemoteNodes sorted;
    sorted.reserve(order.size());
    for (const qint32 row : order) {
        sorted.push_back(std::move(children[size_t(row)]));
    }
    children = std::move(sorted);
    number(children, 0);
}

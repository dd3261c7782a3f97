#pragma once

#include <QString>
#include <QVector>

#include "RemoteNode.h"

/**
 * The tree over the controller's files, as far as it is known. It only keeps what it is given: the
 * model lists, and tells the views.
 */
class QvexRemoteFileSystemAbstract
{
public:
    QvexRemoteFileSystemAbstract();

    /** Stands for the whole storage; its path is "/". */
    RemoteNode *root() { return &m_root; }
    const RemoteNode *root() const { return &m_root; }

    /** Whether a name can be a part of a path. */
    static bool isName(const QString &name);
    /** Absolute, without "." and "..", without a slash at its end; empty if it can't be one. */
    static QString cleanPath(const QString &path);

    /** Whether the node and all directories above it have a name for a path. */
    static bool hasPath(const RemoteNode *node);
    /** Empty without hasPath(). */
    QString path(const RemoteNode *node) const;
    /** The first entry of that path, or null. @p path is clean. */
    RemoteNode *find(const QString &path);
    /** The first entry of that name; a directory, where there are entries of both kinds. */
    static RemoteNode *child(const RemoteNode *directory, QStringView name);
    static bool isBelow(const RemoteNode *node, const RemoteNode *ancestor);
    /** Every listed directory from @p top down, those above first. */
    static QVector<RemoteNode *> listedDirectories(RemoteNode *top);

    static QVector<FileSystemItem> entries(const RemoteNode *directory);
    /** Moves @p count nodes that begin at @p first into the tree. */
    static void insert(RemoteNode *directory, qint32 row, RemoteNodes::iterator first,
                       qint32 count);
    static RemoteNodes take(RemoteNode *directory, qint32 row, qint32 count);
    /** @p order holds, for each row to be, the row that it has now. */
    static void reorder(RemoteNode *directory, const std::vector<qint32> &order);

private:
    RemoteNode m_root;
};

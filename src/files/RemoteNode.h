#pragma once

#include <QDeadlineTimer>

#include <memory>
#include <vector>

#include "corba/FcpRecords.h"

struct RemoteNode;
using RemoteNodes = std::vector<std::unique_ptr<RemoteNode>>;

/** What a directory has when it was looked into, or when an entry of it is known. */
struct RemoteBranch
{
    RemoteNodes children; ///< in the controller's order
    bool listed = false;
    QDeadlineTimer retry; ///< after a failure views don't list it again before
};

/**
 * An entry of the instrument's storage. There may be millions: its size matters. Its address is its
 * identity and never changes.
 */
struct RemoteNode
{
    explicit RemoteNode(const FileSystemItem &entry);
    ~RemoteNode();

    RemoteNode(const RemoteNode &) = delete;
    RemoteNode &operator=(const RemoteNode &) = delete;

    bool isListed() const { return branch && branch->listed; }
    qint32 childCount() const { return branch ? qint32(branch->children.size()) : 0; }
    RemoteNode *child(qint32 at) const { return branch->children[size_t(at)].get(); }
    RemoteBranch &makeBranch();

    FileSystemItem item;
    RemoteNode *parent = nullptr;
    std::unique_ptr<RemoteBranch> branch;
    qint32 row = 0;
    bool nameable = true; ///< its name can be a part of a path
};

#include "RemoteNode.h"

#include "QvexRemoteFileSystemAbstract.h"

RemoteNode::RemoteNode(const FileSystemItem &entry)
    : item(entry)
    , nameable(QvexRemoteFileSystemAbstract::isName(entry.name))
{
}

RemoteNode::~RemoteNode() = default;

RemoteBranch &RemoteNode::makeBranch()
{
    if (!branch) {
        branch = std::make_unique<RemoteBranch>();
    }
    return *branch;
}

#include "TransferLink.h"

#include "corba/FcpAppCORBA.h"

using namespace Qt::Literals::StringLiterals;

TransferLink::TransferLink(FcpAppCORBA *controller)
    : m_controller(controller)
    , m_serial(controller ? controller->linkSerial() : 0)
{
}

bool TransferLink::isLost() const
{
    return m_serial == 0 || m_controller->linkSerial() != m_serial;
}

TransferStep TransferLink::lost() const
{
    const QString reason = m_controller ? m_controller->lastError() : QString();
    return TransferStep::fatal(reason.isEmpty() ? tr("there is no link to the instrument")
                                                : reason);
}

TransferStep TransferLink::list(const QString &folder, QVector<FileSystemItem> &items) const
{
    if (isLost()) {
        return lost();
    }
    constexpr QDir::Filters all =
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    const bool listed = m_controller->getFileSystemItems(folder, {u"*"_s}, all, items);
    if (isLost()) {
        return lost();
    }
    return listed ? TransferStep::done()
                  : TransferStep::failed(tr("the instrument cannot list %1").arg(folder));
}

/// Makes a call that answers 0 for success, which a lost link does as well.
template<typename Call>
TransferStep TransferLink::change(const QString &failure, Call &&call) const
{
    if (isLost()) {
        return lost();
    }
    const long result = call();
    if (isLost()) {
        return TransferStep::fatal(tr("%1; it is unknown whether the instrument still did its "
                                      "last step")
                                       .arg(lost().reason));
    }
    return result == 0
        ? TransferStep::done()
        : TransferStep::failed(
            tr("%1 (the instrument answers %2)").arg(failure, QString::number(result)));
}

TransferStep TransferLink::rename(const QString &folder, const QString &from,
                                  const QString &to) const
{
    return change(tr("the instrument cannot give a file of %1 the name %2").arg(folder, to),
                  [&] { return m_controller->renameFileDirectory(folder, from, to); });
}

TransferStep TransferLink::remove(const QString &path) const
{
    return change(tr("the instrument cannot remove %1").arg(path),
                  [&] { return m_controller->deleteFileDirectory(path); });
}

TransferStep TransferLink::makeFolder(const QString &parent, QString &path) const
{
    constexpr long none = -1;
    return change(tr("the instrument cannot make a folder in %1").arg(parent), [&] {
        path = m_controller->newDirectory(parent);
        return path.isEmpty() ? none : 0L;
    });
}

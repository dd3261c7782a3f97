#pragma once

#include <QCoreApplication>
#include <QVector>

#include "TransferStep.h"
#include "corba/FcpRecords.h"

class FcpAppCORBA;

/**
 * The controller as a transfer sees it: its file operations with results that tell a lost link from
 * success, on the one link on which the transfer began.
 *
 * Once that link is lost every step is Fatal, also after a reconnect. A step that was under way
 * then may have been carried out or not; its reason says so.
 */
class TransferLink
{
    Q_DECLARE_TR_FUNCTIONS(FileTransfer)

public:
    /** @p controller is not owned; null is a link that is lost. */
    explicit TransferLink(FcpAppCORBA *controller);

    FcpAppCORBA *controller() const { return m_controller; }
    bool isLost() const;
    /** What a step says that was not begun because the link is lost. */
    TransferStep lost() const;

    /** All entries but "." and "..". */
    TransferStep list(const QString &folder, QVector<FileSystemItem> &items) const;
    /** Never replaces. */
    TransferStep rename(const QString &folder, const QString &from, const QString &to) const;
    TransferStep remove(const QString &path) const;
    /** Makes a folder of a name that the controller chooses. */
    TransferStep makeFolder(const QString &parent, QString &path) const;

private:
    template<typename Call>
    TransferStep change(const QString &failure, Call &&call) const;

    FcpAppCORBA *const m_controller;
    const quint64 m_serial;
};

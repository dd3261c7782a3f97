#pragma once

#include <QObject>
#include <QPointer>

#include "QvexFileModel.h"

class FcpAppCORBA;

/**
 * Notices that a folder of the instrument can't be listed, and whether that is because it is gone:
 * then the folders above it are listed, as far as needed. Of this computer it says nothing.
 */
class FolderWatch : public QObject
{
    Q_OBJECT

public:
    /** @p controller is not owned, and may be null where there is no instrument. */
    FolderWatch(FcpAppCORBA *controller, QObject *parent);

    void setModel(QvexFileModel *model);
    /** Forgets what was before. */
    void setFolder(const QString &path);
    bool hasFailed() const { return m_hasFailed; }

Q_SIGNALS:
    void failed();
    /** @p nearest is what is there of the way to the folder. */
    void gone(const QString &nearest);

private Q_SLOTS:
    void listingFailed(const QString &path);

private:
    void directoryLoaded(const QString &path);
    void lookAbove(const QString &path);
    bool isBelow(const QString &path) const;

    FcpAppCORBA *const m_controller;
    QPointer<QvexFileModel> m_model;
    QString m_folder;
    bool m_hasFailed = false;
};

#include "FolderWatch.h"

#include "FilePaths.h"
#include "corba/FcpAppCORBA.h"

using namespace Qt::Literals::StringLiterals;

FolderWatch::FolderWatch(FcpAppCORBA *controller, QObject *parent)
    : QObject(parent)
    , m_controller(controller)
{
}

void FolderWatch::setModel(QvexFileModel *model)
{
    if (m_model) {
        m_model->disconnect(this);
    }
    m_model = model;
    // Only what lists over a link can say that it could not.
    if (model->metaObject()->indexOfSignal("listingFailed(QString)") >= 0) {
        connect(model, SIGNAL(listingFailed(QString)), this, SLOT(listingFailed(QString)));
        connect(model, &QvexFileModel::directoryLoaded, this, &FolderWatch::directoryLoaded);
    }
}

void FolderWatch::setFolder(const QString &path)
{
    m_folder = path;
    m_hasFailed = false;
}

void FolderWatch::listingFailed(const QString &path)
{
    if (isBelow(path)) {
        lookAbove(path);
    } else if (path == m_folder && !m_hasFailed) { // a view lists what failed again and again
        m_hasFailed = true;
        Q_EMIT failed();
        lookAbove(path);
    }
}

void FolderWatch::directoryLoaded(const QString &path)
{
    if (isBelow(path) && !m_model->fileIndex(m_folder).isValid()) {
        Q_EMIT gone(path);
    }
}

void FolderWatch::lookAbove(const QString &path)
{
    const QModelIndex above = m_model->fileIndex(FilePaths::parentOf(path));
    if (path != "/"_L1 && above.isValid() && m_controller && m_controller->isConnected()) {
        m_model->refreshDirectory(above);
    }
}

/// Whether the folder is below @p path.
bool FolderWatch::isBelow(const QString &path) const
{
    return m_folder != path && (path == "/"_L1 || m_folder.startsWith(path + u'/'));
}

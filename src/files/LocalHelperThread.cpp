#include "LocalHelperThread.h"

#include <cerrno>

#include "LocalTreeWork.h"
#include "QvexFileModel.h"

LocalHelperThread::LocalHelperThread(QObject *parent)
    : QThread(parent)
{
}

LocalHelperThread::~LocalHelperThread()
{
    cancel();
    wait();
}

void LocalHelperThread::setTask(Operation operation, const QVector<QString> &sources,
                                const QString &destination)
{
    m_operation = operation;
    m_sources = sources;
    m_destination = destination;
    m_cancelled = false;
}

void LocalHelperThread::cancel()
{
    m_cancelled = true;
}

QString LocalHelperThread::resultText(long result)
{
    switch (result) {
    case QvexFileModel::Done:
        return QString();
    case QvexFileModel::Cancelled:
        return tr("Cancelled.");
    case QvexFileModel::Busy:
        return tr("Files are being copied, moved or deleted already.");
    case EEXIST:
        return tr("There is an entry of that name already.");
    case EINVAL:
        return tr("This can't be done with this folder, or not at this place.");
    case EOPNOTSUPP:
        return tr("This is neither a file nor a folder nor a link, and can't be copied.");
    case EBUSY:
        return tr("It is in use.");
    case EROFS:
        return tr("Nothing may be changed here.");
    default:
        return qt_error_string(static_cast<int>(result));
    }
}

void LocalHelperThread::run()
{
    LocalTreeWork work(m_cancelled);
    int result = 0;
    for (const QString &source : std::as_const(m_sources)) {
        result = m_operation == Operation::Remove ? work.remove(source)
            : m_operation == Operation::Copy      ? work.copyInto(source, m_destination)
                                                  : work.moveInto(source, m_destination);
        if (result != 0) {
            break;
        }
    }
    switch (m_operation) {
    case Operation::Remove:
        Q_EMIT removeComplete(result, work.stoppedAt());
        break;
    case Operation::Copy:
        Q_EMIT copyComplete(result, work.stoppedAt());
        break;
    case Operation::Move:
        Q_EMIT moveComplete(result, work.stoppedAt());
        break;
    }
}

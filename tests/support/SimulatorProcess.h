#pragma once

#include <QTemporaryDir>
#include <QVector>

#include "ControllerProcess.h"

/** The simulator in a process of its own, with a directory of its own. */
class SimulatorProcess : public ControllerProcess
{
public:
    /** A call that it carried out. */
    struct Call
    {
        QByteArray connection; ///< its number, also over restarts not that of another
        QByteArray operation;
        QByteArray arguments; ///< as in the log: texts in quotes, separated by ", "
        QByteArray result;
    };

    /** With @p publishedPort its references carry that port, a proxy's, instead of its own. */
    explicit SimulatorProcess(quint16 publishedPort = 0, const QStringList &moreArguments = {});

    /** The local directory that holds the storage roots "Internal" and "Remote". */
    QString root() const { return m_directory.filePath(QStringLiteral("root")); }
    /** The local path of a file on the instrument. */
    QString local(const QString &remotePath) const { return root() + remotePath; }

    QVector<Call> calls() const;
    QVector<Call> calls(const QByteArray &operation) const;
    /** The files on the instrument that it has open now. */
    QStringList openFiles() const;

private:
    QString logFile() const { return m_directory.filePath(QStringLiteral("calls.log")); }

    QTemporaryDir m_directory;
};

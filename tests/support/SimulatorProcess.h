#pragma once

#include <QTemporaryDir>
#include <QVector>

#include "ControllerProcess.h"

/** The simulator in a process of its own, with a directory of its own. */
class SimulatorProcess : public ControllerProcess
{
public:
    /** With @p publishedPort its references carry that port, a proxy's, instead of its own. */
    explicit SimulatorProcess(quint16 publishedPort = 0, const QStringList &moreArguments = {});

    /** The local directory that holds the storage roots "Internal" and "Remote". */
    QString root() const;
    /** The local path of a file on the instrument. */
    QString local(const QString &remotePath) const { return root() + remotePath; }

private:
    QTemporaryDir m_directory;
};

#include "FcpRecords.h"

#include <QDebug>

namespace {

/// Pictures can be megabytes: a log line shows their size only.
struct Picture
{
    const QByteArray &bytes;
};

QDebug operator<<(QDebug debug, const Picture &picture)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << '<' << picture.bytes.size() << " bytes>";
    return debug;
}

/// Writes "Name(a, b, ...)".
template<typename... Members>
QDebug writeRecord(QDebug debug, const char *name, const Members &...members)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << name << '(';
    const char *separator = "";
    ((debug << separator << members, separator = ", "), ...);
    debug << ')';
    return debug;
}

template<typename Record>
void registerRecord(const char *name)
{
    qRegisterMetaType<Record>(name);
    qRegisterMetaType<QVector<Record>>(QByteArray("QVector<") + name + '>');
}

} // namespace

QDebug operator<<(QDebug debug, const TestInformation &record)
{
    return writeRecord(debug, "TestInformation", record.testID, record.testTcpPort,
                       record.testName);
}

QDebug operator<<(QDebug debug, const AvailableTestInformation &record)
{
    return writeRecord(debug, "AvailableTestInformation", record.testName, record.runnableState,
                       record.expOptions);
}

QDebug operator<<(QDebug debug, const ClientInformation &record)
{
    return writeRecord(debug, "ClientInformation", record.clientId, record.clientName,
                       record.clientHost, record.clientReadOnly);
}

QDebug operator<<(QDebug debug, const ControllerInformation &record)
{
    return writeRecord(debug, "ControllerInformation", record.controllerModel,
                       record.controllerSerial, Picture {record.controllerImage});
}

QDebug operator<<(QDebug debug, const ControllerStatusInformation &record)
{
    return writeRecord(debug, "ControllerStatusInformation", record.bogusInformation);
}

QDebug operator<<(QDebug debug, const ModuleGenOptionInformation &record)
{
    return writeRecord(debug, "ModuleGenOptionInformation", record.option);
}

QDebug operator<<(QDebug debug, const ModuleInformation &record)
{
    return writeRecord(debug, "ModuleInformation", record.moduleID, record.moduleType,
                       record.moduleName, record.moduleSerialNumber, record.moduleGenOptions,
                       Picture {record.moduleImage});
}

QDebug operator<<(QDebug debug, const PortInformation &record)
{
    return writeRecord(debug, "PortInformation", record.portID, record.moduleID,
                       Picture {record.portImage});
}

QDebug operator<<(QDebug debug, const ResourceInformation &record)
{
    return writeRecord(debug, "ResourceInformation", record.portID, record.moduleID,
                       record.resourceID, record.resourceType, record.resourceName);
}

QDebug operator<<(QDebug debug, const ResourceStatusInformation &record)
{
    return writeRecord(debug, "ResourceStatusInformation", record.moduleID, record.resourceID,
                       record.serverID, record.status);
}

QDebug operator<<(QDebug debug, const ResourceRequestInformation &record)
{
    return writeRecord(debug, "ResourceRequestInformation", record.moduleID, record.resourceID);
}

QDebug operator<<(QDebug debug, const FileSystemItem &record)
{
    return writeRecord(debug, "FileSystemItem", record.name, record.date, record.size, record.isdir,
                       record.dircount);
}

void registerFcpRecordTypes()
{
    registerRecord<TestInformation>("TestInformation");
    registerRecord<AvailableTestInformation>("AvailableTestInformation");
    registerRecord<ClientInformation>("ClientInformation");
    registerRecord<ControllerInformation>("ControllerInformation");
    registerRecord<ControllerStatusInformation>("ControllerStatusInformation");
    registerRecord<ModuleGenOptionInformation>("ModuleGenOptionInformation");
    registerRecord<ModuleInformation>("ModuleInformation");
    registerRecord<PortInformation>("PortInformation");
    registerRecord<ResourceInformation>("ResourceInformation");
    registerRecord<ResourceStatusInformation>("ResourceStatusInformation");
    registerRecord<ResourceRequestInformation>("ResourceRequestInformation");
    registerRecord<FileSystemItem>("FileSystemItem");
}

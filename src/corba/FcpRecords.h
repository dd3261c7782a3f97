#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <QVector>

#include "VexExport.h"

class QDebug;

/**
 * @file
 * What the controller tells about itself, as plain values.
 *
 * Each record has the members of its wire struct: texts as QString (the wire carries UTF-8),
 * 32-bit integers as qint32, pictures as the encoded bytes that the controller sent (PNG or another
 * format that QImage::fromData() recognises; empty when there is none). All are copyable,
 * comparable and usable in queued signals.
 */

/** A test process that is running on the instrument. */
struct VEX_EXPORT TestInformation
{
    qint32 testID = 0;
    qint32 testTcpPort = 0;
    QString testName;

    bool operator==(const TestInformation &) const = default;
};

/** A test that the controller can launch. The controller defines the meaning of the last two. */
struct VEX_EXPORT AvailableTestInformation
{
    QString testName;
    qint32 runnableState = 0;
    QString expOptions;

    bool operator==(const AvailableTestInformation &) const = default;
};

/** A client that is registered with the controller. */
struct VEX_EXPORT ClientInformation
{
    qint32 clientId = 0;
    QString clientName;
    QString clientHost;
    bool clientReadOnly = false;

    bool operator==(const ClientInformation &) const = default;
};

/** The instrument itself. */
struct VEX_EXPORT ControllerInformation
{
    QString controllerModel;
    QString controllerSerial;
    QByteArray controllerImage;

    bool operator==(const ControllerInformation &) const = default;
};

/** The controller's status, which carries nothing yet but its placeholder. */
struct VEX_EXPORT ControllerStatusInformation
{
    qint32 bogusInformation = 0;

    bool operator==(const ControllerStatusInformation &) const = default;
};

/** An option that a module is fitted with. */
struct VEX_EXPORT ModuleGenOptionInformation
{
    QString option;

    bool operator==(const ModuleGenOptionInformation &) const = default;
};

/** A module that is plugged into the instrument. */
struct VEX_EXPORT ModuleInformation
{
    qint32 moduleID = 0;
    QString moduleType;
    QString moduleName;
    QString moduleSerialNumber;
    QVector<ModuleGenOptionInformation> moduleGenOptions;
    QByteArray moduleImage;

    bool operator==(const ModuleInformation &) const = default;
};

/** A port of a module. */
struct VEX_EXPORT PortInformation
{
    qint32 portID = 0;
    qint32 moduleID = 0;
    QByteArray portImage;

    bool operator==(const PortInformation &) const = default;
};

/** A resource that tests can ask for. */
struct VEX_EXPORT ResourceInformation
{
    qint32 portID = 0;
    qint32 moduleID = 0;
    qint32 resourceID = 0;
    QString resourceType;
    QString resourceName;

    bool operator==(const ResourceInformation &) const = default;
};

/** Who holds a resource. The controller defines the values of @c status. */
struct VEX_EXPORT ResourceStatusInformation
{
    qint32 moduleID = 0;
    qint32 resourceID = 0;
    qint32 serverID = 0;
    qint32 status = 0;

    bool operator==(const ResourceStatusInformation &) const = default;
};

/** A resource as it is named in a request. */
struct VEX_EXPORT ResourceRequestInformation
{
    qint32 moduleID = 0;
    qint32 resourceID = 0;

    bool operator==(const ResourceRequestInformation &) const = default;
};

/** An entry of a directory on the instrument. */
struct VEX_EXPORT FileSystemItem
{
    QString name;
    QString date; ///< as the controller words it
    qint64 size = 0; ///< in bytes
    bool isdir = false;
    qint32 dircount = 0; ///< number of entries, for a directory

    bool operator==(const FileSystemItem &) const = default;
};

VEX_EXPORT QDebug operator<<(QDebug debug, const TestInformation &record);
VEX_EXPORT QDebug operator<<(QDebug debug, const AvailableTestInformation &record);
VEX_EXPORT QDebug operator<<(QDebug debug, const ClientInformation &record);
VEX_EXPORT QDebug operator<<(QDebug debug, const ControllerInformation &record);
VEX_EXPORT QDebug operator<<(QDebug debug, const ControllerStatusInformation &record);
VEX_EXPORT QDebug operator<<(QDebug debug, const ModuleGenOptionInformation &record);
VEX_EXPORT QDebug operator<<(QDebug debug, const ModuleInformation &record);
VEX_EXPORT QDebug operator<<(QDebug debug, const PortInformation &record);
VEX_EXPORT QDebug operator<<(QDebug debug, const ResourceInformation &record);
VEX_EXPORT QDebug operator<<(QDebug debug, const ResourceStatusInformation &record);
VEX_EXPORT QDebug operator<<(QDebug debug, const ResourceRequestInformation &record);
VEX_EXPORT QDebug operator<<(QDebug debug, const FileSystemItem &record);

/**
 * Registers the records, and QVector of each, with the meta-type system by name, for queued
 * connections made by name and for QVariant. FcpAppCORBA does it; calling it again does nothing.
 */
VEX_EXPORT void registerFcpRecordTypes();

#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <limits>

#include <FcpInterfaces.hh>

#include "FcpRecords.h"

/**
 * Between the wire's types and Qt's.
 *
 * Texts travel as UTF-8. A byte from the controller that is no UTF-8 (a file name on its disk may
 * hold any) becomes the lone surrogate U+DC00 + byte, which no valid text holds, and goes back as
 * that byte: such a name still names its file.
 */
namespace WireConversion {

QString fromWire(const char *text);
QByteArray fromWire(const CharSequence &bytes);
/** @pre canTravel(text) */
QByteArray toWire(const QString &text);

TestInformation fromWire(const TestInformationCORBA &wire);
AvailableTestInformation fromWire(const AvailableTestInformationCORBA &wire);
ClientInformation fromWire(const ClientInformationCORBA &wire);
ControllerInformation fromWire(const ControllerInformationCORBA &wire);
ControllerStatusInformation fromWire(const ControllerStatusInformationCORBA &wire);
ModuleGenOptionInformation fromWire(const ModuleGenOptionInformationCORBA &wire);
ModuleInformation fromWire(const ModuleInformationCORBA &wire);
PortInformation fromWire(const PortInformationCORBA &wire);
ResourceInformation fromWire(const ResourceInformationCORBA &wire);
ResourceStatusInformation fromWire(const ResourceStatusInformationCORBA &wire);
FileSystemItem fromWire(const FileSystemItemCORBA &wire);

/** The elements of a wire sequence as records, in their order. */
template<typename Record, typename Sequence>
QVector<Record> vectorFromWire(const Sequence &wire)
{
    QVector<Record> records;
    records.reserve(static_cast<qsizetype>(wire.length()));
    for (CORBA::ULong i = 0; i < wire.length(); ++i) {
        records.append(fromWire(wire[i]));
    }
    return records;
}

TestArgInformationCORBASeq argumentsToWire(const QVector<QString> &arguments);
FileSystemFilterCORBASeq filtersToWire(const QVector<QString> &patterns);
ResourceRequestInformationCORBASeq
requestsToWire(const QVector<ResourceRequestInformation> &requests);

/** Whether an argument fits the wire: a text has no NUL character, a number has 32 bits. */
inline bool canTravel(const QString &text)
{
    return !text.contains(QChar::Null);
}

inline bool canTravel(long number)
{
    return number >= std::numeric_limits<CORBA::Long>::min()
        && number <= std::numeric_limits<CORBA::Long>::max();
}

inline bool canTravel(bool)
{
    return true;
}

inline bool canTravel(const QVector<QString> &texts)
{
    for (const QString &text : texts) {
        if (!canTravel(text)) {
            return false;
        }
    }
    return true;
}

/** @pre canTravel(number) */
inline CORBA::Long toWire(long number)
{
    return static_cast<CORBA::Long>(number);
}

} // namespace WireConversion

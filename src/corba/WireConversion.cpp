#include "WireConversion.h"

#include <QStringDecoder>

#include <cstring>

namespace {

constexpr char16_t EscapedByte = 0xDC00;

bool isEscapedByte(QChar character)
{
    return character >= QChar(EscapedByte + 0x80) && character <= QChar(EscapedByte + 0xFF);
}

/// The length of the longest start of @p bytes that is valid UTF-8.
qsizetype validLength(QByteArrayView bytes)
{
    const auto continues = [&bytes](qsizetype at) {
        return at < bytes.size() && (static_cast<quint8>(bytes[at]) & 0xC0) == 0x80;
    };
    qsizetype position = 0;
    while (position < bytes.size()) {
        const auto lead = static_cast<quint8>(bytes[position]);
        const qsizetype length = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
        bool whole = true;
        for (qsizetype i = 1; i < length; ++i) {
            whole = whole && continues(position + i);
        }
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        if (!whole || (length > 1 && QString(decoder(bytes.sliced(position, length))).isNull())
            || decoder.hasError()) {
            return position;
        }
        position += length;
    }
    return position;
}

QString decodeEscaping(QByteArrayView bytes)
{
    QString text;
    while (!bytes.isEmpty()) {
        const qsizetype length = validLength(bytes);
        text += QString::fromUtf8(bytes.first(length));
        if (length == bytes.size()) {
            break;
        }
        text += QChar(EscapedByte + static_cast<quint8>(bytes[length]));
        bytes = bytes.sliced(length + 1);
    }
    return text;
}

template<typename Sequence, typename Source, typename Assign>
Sequence sequenceOf(const Source &source, Assign assign)
{
    Sequence wire;
    wire.length(static_cast<CORBA::ULong>(source.size()));
    CORBA::ULong i = 0;
    for (const auto &element : source) {
        assign(wire[i++], element);
    }
    return wire;
}

} // namespace

QString WireConversion::fromWire(const char *text)
{
    const QByteArrayView bytes(text);
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless
                               | QStringDecoder::Flag::ConvertInitialBom);
    QString decoded = decoder(bytes);
    return decoder.hasError() ? decodeEscaping(bytes) : decoded;
}

QByteArray WireConversion::fromWire(const CharSequence &bytes)
{
    return QByteArray(reinterpret_cast<const char *>(bytes.NP_data()),
                      static_cast<qsizetype>(bytes.length()));
}

QByteArray WireConversion::toWire(const QString &text)
{
    const bool hasEscapes = [&text] {
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (text.at(i).isHighSurrogate()) {
                ++i; // with its low surrogate it is one character
            } else if (isEscapedByte(text.at(i))) {
                return true;
            }
        }
        return false;
    }();
    if (!hasEscapes) {
        return text.toUtf8();
    }
    QByteArray bytes;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i).isHighSurrogate()) {
            ++i;
        } else if (isEscapedByte(text.at(i))) {
            bytes += QStringView(text).sliced(start, i - start).toUtf8();
            bytes += static_cast<char>(text.at(i).unicode() - EscapedByte);
            start = i + 1;
        }
    }
    return bytes + QStringView(text).sliced(start).toUtf8();
}

TestInformation WireConversion::fromWire(const TestInformationCORBA &wire)
{
    return {wire.testID, wire.testTcpPort, fromWire(wire.testName.in())};
}

AvailableTestInformation WireConversion::fromWire(const AvailableTestInformationCORBA &wire)
{
    return {fromWire(wire.testName.in()), wire.runnableState, fromWire(wire.expOptions.in())};
}

ClientInformation WireConversion::fromWire(const ClientInformationCORBA &wire)
{
    return {wire.clientId, fromWire(wire.clientName.in()), fromWire(wire.clientHost.in()),
            wire.clientReadOnly};
}

ControllerInformation WireConversion::fromWire(const ControllerInformationCORBA &wire)
{
    return {fromWire(wire.controllerModel.in()), fromWire(wire.controllerSerial.in()),
            fromWire(wire.controllerImage)};
}

ControllerStatusInformation WireConversion::fromWire(const ControllerStatusInformationCORBA &wire)
{
    return {wire.bogusInformation};
}

ModuleGenOptionInformation WireConversion::fromWire(const ModuleGenOptionInformationCORBA &wire)
{
    return {fromWire(wire.option.in())};
}

ModuleInformation WireConversion::fromWire(const ModuleInformationCORBA &wire)
{
    return {wire.moduleID,
            fromWire(wire.moduleType.in()),
            fromWire(wire.moduleName.in()),
            fromWire(wire.moduleSerialNumber.in()),
            vectorFromWire<ModuleGenOptionInformation>(wire.moduleGenOptions),
            fromWire(wire.moduleImage)};
}

PortInformation WireConversion::fromWire(const PortInformationCORBA &wire)
{
    return {wire.portID, wire.moduleID, fromWire(wire.portImage)};
}

ResourceInformation WireConversion::fromWire(const ResourceInformationCORBA &wire)
{
    return {wire.portID, wire.moduleID, wire.resourceID, fromWire(wire.resourceType.in()),
            fromWire(wire.resourceName.in())};
}

ResourceStatusInformation WireConversion::fromWire(const ResourceStatusInformationCORBA &wire)
{
    return {wire.moduleID, wire.resourceID, wire.serverID, wire.status};
}

FileSystemItem WireConversion::fromWire(const FileSystemItemCORBA &wire)
{
    return {fromWire(wire.name.in()), fromWire(wire.date.in()), wire.size, wire.isdir,
            wire.dircount};
}

TestArgInformationCORBASeq WireConversion::argumentsToWire(const QVector<QString> &arguments)
{
    return sequenceOf<TestArgInformationCORBASeq>(
        arguments, [](TestArgInformationCORBA &wire, const QString &argument) {
            wire.arg = toWire(argument).constData();
        });
}

FileSystemFilterCORBASeq WireConversion::filtersToWire(const QVector<QString> &patterns)
{
    return sequenceOf<FileSystemFilterCORBASeq>(
        patterns, [](FileSystemFilterCORBA &wire, const QString &pattern) {
            wire.filter = toWire(pattern).constData();
        });
}

ResourceRequestInformationCORBASeq
WireConversion::requestsToWire(const QVector<ResourceRequestInformation> &requests)
{
    return sequenceOf<ResourceRequestInformationCORBASeq>(
        requests,
        [](ResourceRequestInformationCORBA &wire, const ResourceRequestInformation &request) {
            wire.moduleID = request.moduleID;
            wire.resourceID = request.resourceID;
        });
}

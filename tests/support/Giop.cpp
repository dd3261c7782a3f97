#include "Giop.h"

#include <QtEndian>

#include <algorithm>

namespace Giop {

namespace {

constexpr quint32 BiDirIiopContext = 5;
constexpr quint32 IiopProfile = 0;
constexpr quint32 AlternateAddressComponent = 3;

/// Reads CDR from a block whose first byte has offset 0. Once it ran over the end it is not ok()
/// and gives zeros.
class CdrReader
{
public:
    CdrReader(QByteArrayView bytes, bool littleEndian, qsizetype offset = 0)
        : m_bytes(bytes)
        , m_littleEndian(littleEndian)
        , m_offset(offset)
    {
    }

    /// A CDR encapsulation: its first byte tells the byte order.
    static CdrReader encapsulation(const QByteArray &bytes)
    {
        return CdrReader(bytes, !bytes.isEmpty() && bytes.front() == 1, 1);
    }

    bool ok() const { return m_ok; }
    qsizetype offset() const { return m_offset; }

    quint8 octet() { return number<quint8>(); }
    quint16 unsignedShort() { return number<quint16>(); }
    quint32 unsignedLong() { return number<quint32>(); }

    QByteArray octets()
    {
        const auto size = qsizetype(unsignedLong());
        return take(size).toByteArray();
    }

    QByteArray string()
    {
        QByteArray text = octets();
        text.chop(1);
        return text;
    }

    void skip(qsizetype size) { take(size); }

    void align(qsizetype size) { skip((size - m_offset % size) % size); }

    QVector<ServiceContext> contexts()
    {
        QVector<ServiceContext> result;
        for (quint32 left = unsignedLong(); left > 0 && m_ok; --left) {
            const quint32 id = unsignedLong();
            result.append({id, octets()});
        }
        return result;
    }

private:
    template<typename Number>
    Number number()
    {
        align(sizeof(Number));
        const QByteArrayView bytes = take(sizeof(Number));
        if (!m_ok) {
            return 0;
        }
        return m_littleEndian ? qFromLittleEndian<Number>(bytes.data())
                              : qFromBigEndian<Number>(bytes.data());
    }

    QByteArrayView take(qsizetype size)
    {
        if (!m_ok || size < 0 || size > m_bytes.size() - m_offset) {
            m_ok = false;
            return {};
        }
        const QByteArrayView result = m_bytes.sliced(m_offset, size);
        m_offset += size;
        return result;
    }

    QByteArrayView m_bytes;
    bool m_littleEndian;
    qsizetype m_offset;
    bool m_ok = true;
};

QByteArray readTarget(CdrReader &reader)
{
    constexpr quint16 keyAddress = 0;
    // Object keys are all that clients of corbaloc addresses use.
    return reader.unsignedShort() == keyAddress ? reader.octets() : QByteArray();
}

void readRequest12(CdrReader &reader, Request &request)
{
    request.id = reader.unsignedLong();
    request.responseExpected = (reader.octet() & 0x01) != 0;
    reader.skip(3);
    request.objectKey = readTarget(reader);
    request.operation = reader.string();
    request.contexts = reader.contexts();
}

void readRequest10(CdrReader &reader, Request &request, bool withReserved)
{
    request.contexts = reader.contexts();
    request.id = reader.unsignedLong();
    request.responseExpected = reader.octet() != 0;
    if (withReserved) {
        reader.skip(3);
    }
    request.objectKey = reader.octets();
    request.operation = reader.string();
    reader.octets(); // the principal
}

void readLocateRequest(CdrReader &reader, Request &request, bool version12)
{
    request.id = reader.unsignedLong();
    request.responseExpected = true;
    request.objectKey = version12 ? readTarget(reader) : reader.octets();
    request.operation = "_locate";
}

void readComponents(CdrReader &reader, Reference &reference)
{
    for (quint32 left = reader.unsignedLong(); left > 0 && reader.ok(); --left) {
        const quint32 tag = reader.unsignedLong();
        const QByteArray data = reader.octets();
        if (tag == AlternateAddressComponent) {
            CdrReader component = CdrReader::encapsulation(data);
            QByteArray host = component.string();
            reference.addresses.append({host, component.unsignedShort()});
        }
    }
}

void readIiopProfile(const QByteArray &data, Reference &reference)
{
    CdrReader reader = CdrReader::encapsulation(data);
    reader.octet();
    const quint8 minorVersion = reader.octet();
    QByteArray host = reader.string();
    reference.addresses.append({host, reader.unsignedShort()});
    reference.objectKey = reader.octets();
    if (minorVersion > 0) {
        readComponents(reader, reference);
    }
}

} // namespace

std::optional<Header> parseHeader(QByteArrayView bytes)
{
    if (bytes.size() < HeaderSize || !bytes.startsWith("GIOP")) {
        return {};
    }
    Header header;
    header.minorVersion = quint8(bytes[5]);
    header.littleEndian = (quint8(bytes[6]) & 0x01) != 0;
    header.moreFragments = (quint8(bytes[6]) & 0x02) != 0;
    header.type = MessageType(quint8(bytes[7]));
    header.bodySize = header.littleEndian ? qFromLittleEndian<quint32>(bytes.data() + 8)
                                          : qFromBigEndian<quint32>(bytes.data() + 8);
    return header;
}

std::optional<Request> parseRequest(QByteArrayView message)
{
    const std::optional<Header> header = parseHeader(message);
    if (!header) {
        return {};
    }
    Request request;
    CdrReader reader(message, header->littleEndian, HeaderSize);
    if (header->type == MessageType::LocateRequest) {
        readLocateRequest(reader, request, header->minorVersion >= 2);
    } else if (header->type != MessageType::Request) {
        return {};
    } else if (header->minorVersion >= 2) {
        readRequest12(reader, request);
    } else {
        readRequest10(reader, request, header->minorVersion == 1);
    }
    if (!reader.ok()) {
        return {};
    }
    const qsizetype bodyAlignment = header->minorVersion >= 2 ? 8 : 1;
    const qsizetype end = reader.offset();
    request.bodyOffset =
        std::min(end + (bodyAlignment - end % bodyAlignment) % bodyAlignment, message.size());
    request.message = message.toByteArray();
    return request;
}

std::optional<Reply> parseReply(QByteArrayView message)
{
    const std::optional<Header> header = parseHeader(message);
    if (!header
        || (header->type != MessageType::Reply && header->type != MessageType::LocateReply)) {
        return {};
    }
    CdrReader reader(message, header->littleEndian, HeaderSize);
    if (header->minorVersion < 2 && header->type == MessageType::Reply) {
        reader.contexts();
    }
    Reply reply;
    reply.id = reader.unsignedLong();
    reply.status = reader.unsignedLong();
    return reader.ok() ? std::optional(reply) : std::nullopt;
}

QVector<Address> listenPoints(const Request &request)
{
    QVector<Address> result;
    for (const ServiceContext &context : request.contexts) {
        if (context.id != BiDirIiopContext) {
            continue;
        }
        CdrReader reader = CdrReader::encapsulation(context.data);
        for (quint32 left = reader.unsignedLong(); left > 0 && reader.ok(); --left) {
            QByteArray host = reader.string();
            result.append({host, reader.unsignedShort()});
        }
    }
    return result;
}

std::optional<Reference> callbackReference(const Request &registerApp)
{
    const std::optional<Header> header = parseHeader(registerApp.message);
    if (!header) {
        return {};
    }
    CdrReader reader(registerApp.message, header->littleEndian, registerApp.bodyOffset);
    Reference reference;
    reference.typeId = reader.string();
    for (quint32 left = reader.unsignedLong(); left > 0 && reader.ok(); --left) {
        const quint32 tag = reader.unsignedLong();
        const QByteArray profile = reader.octets();
        if (tag == IiopProfile) {
            readIiopProfile(profile, reference);
        }
    }
    return reader.ok() ? std::optional(reference) : std::nullopt;
}

QByteArray makeRequest(quint32 id, const QByteArray &objectKey, const QByteArray &operation,
                       const QByteArray &arguments, bool responseExpected)
{
    QByteArray message("GIOP\x01\x02\x01\x00\x00\x00\x00\x00", HeaderSize);
    const auto align = [&message](qsizetype size) {
        message.append((size - message.size() % size) % size, '\0');
    };
    const auto appendLong = [&](quint32 value) {
        align(4);
        const quint32 bytes = qToLittleEndian(value);
        message.append(reinterpret_cast<const char *>(&bytes), sizeof bytes);
    };
    appendLong(id);
    message.append(responseExpected ? '\x03' : '\0');
    message.append(3, '\0');
    message.append(2, '\0'); // the target is an object key
    appendLong(quint32(objectKey.size()));
    message.append(objectKey);
    appendLong(quint32(operation.size() + 1));
    message.append(operation).append('\0');
    appendLong(0); // no service context
    if (!arguments.isEmpty()) {
        align(8);
        message.append(arguments);
    }
    qToLittleEndian(quint32(message.size() - HeaderSize), message.data() + 8);
    return message;
}

} // namespace Giop

#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QVector>

#include <optional>

/**
 * @file
 * Reads what travels on the wire, as far as tests look at it: GIOP 1.0 to 1.2 over IIOP, whose
 * layout the CORBA standard gives in its chapter "General Inter-ORB Protocol".
 */
namespace Giop {

constexpr qsizetype HeaderSize = 12;

enum class MessageType : quint8 {
    Request,
    Reply,
    CancelRequest,
    LocateRequest,
    LocateReply,
    CloseConnection,
    MessageError,
    Fragment,
};

struct Header
{
    quint8 minorVersion = 0;
    bool littleEndian = false;
    bool moreFragments = false;
    MessageType type = MessageType::Request;
    quint32 bodySize = 0;

    qsizetype messageSize() const { return HeaderSize + qsizetype(bodySize); }
};

/** Nothing when there are fewer than HeaderSize bytes or they don't begin with "GIOP". */
std::optional<Header> parseHeader(QByteArrayView bytes);

struct ServiceContext
{
    quint32 id = 0;
    QByteArray data;
};

/** A request (or locate request, whose operation is then "_locate"). */
struct Request
{
    quint32 id = 0;
    bool responseExpected = false;
    QByteArray objectKey;
    QByteArray operation;
    QVector<ServiceContext> contexts;
    QByteArray message;
    qsizetype bodyOffset = 0; ///< where the arguments begin
};

/** @p message begins with its header; of a fragmented request the first fragment is enough. */
std::optional<Request> parseRequest(QByteArrayView message);

struct Reply
{
    quint32 id = 0;
    quint32 status = 0; ///< 0 result, 1 user exception, 2 system exception, 3 location forward
};

std::optional<Reply> parseReply(QByteArrayView message);

struct Address
{
    QByteArray host;
    quint16 port = 0;

    bool operator==(const Address &) const = default;
};

/** The addresses in a request's bi-directional service context; empty without one. */
QVector<Address> listenPoints(const Request &request);

/** An object reference: where the object can be reached. */
struct Reference
{
    QByteArray typeId;
    QVector<Address> addresses; ///< of the IIOP profiles, alternate addresses included
    QByteArray objectKey;
};

/** The callback object's reference in a registerApp request. */
std::optional<Reference> callbackReference(const Request &registerApp);

/** A GIOP 1.2 request, little-endian, whose arguments are the bytes @p arguments. */
QByteArray makeRequest(quint32 id, const QByteArray &objectKey, const QByteArray &operation,
                       const QByteArray &arguments, bool responseExpected);

} // namespace Giop

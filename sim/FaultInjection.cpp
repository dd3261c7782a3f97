#include "FaultInjection.h"

#include <sys/socket.h>

#include <cstdint>
#include <cstring>
#include <map>
#include <tuple>

#include <omniORB4/CORBA.h>
#include <omniORB4/callHandle.h>

#include <omniORB4/internal/giopStream.h>

#include <omniORB4/internal/giopStrand.h>

#include <omniORB4/internal/GIOP_S.h>

#include "CallContext.h"
#include "Faults.h"

namespace {

using Thrower = void (*)();

template<typename Exception>
[[noreturn]] void raise()
{
    throw Exception(0, CORBA::COMPLETED_NO);
}

const std::map<std::string, Thrower> &systemExceptions()
{
    static const std::map<std::string, Thrower> exceptions = {
#define NAMED_THROWER(name) {#name, raise<CORBA::name>},
        OMNIORB_FOR_EACH_SYS_EXCEPTION(NAMED_THROWER)
#undef NAMED_THROWER
    };
    return exceptions;
}

/// The way to a stream's request number, which the ORB keeps to its own classes.
class StreamAccess : public omni::giopStream
{
public:
    static CORBA::ULong requestOf(const omni::giopStream &stream)
    {
        const auto requestId =
            static_cast<CORBA::ULong (omni::giopStream::*)() const>(&StreamAccess::requestId);
        return (stream.*requestId)();
    }
};

omni::GIOP_S &serverStream(omniCallHandle &call)
{
    return *omni::GIOP_S::downcast(&call.iop_s()->getStream());
}

void closeConnection(const CallContext &context)
{
    ::shutdown(context.connection->socket, SHUT_RDWR);
}

/// Disconnecting a connected socket makes the kernel send a reset, without closing the descriptor.
/// When the client was faster and the socket is not connected any more, there is nothing to reset.
void resetConnection(const CallContext &context)
{
    sockaddr nowhere = {};
    nowhere.sa_family = AF_UNSPEC;
    std::ignore = ::connect(context.connection->socket, &nowhere, sizeof nowhere);
    closeConnection(context);
}

/// Sends bytes in the place of a reply; not inside another thread's message.
void sendRaw(omni::GIOP_S &stream, const std::string &bytes)
{
    {
        const omni_tracedmutex_lock lock(*omni::omniTransportLock);
        stream.wrLock();
    }
    std::string copy = bytes;
    stream.strand().connection->Send(copy.data(), copy.size(), omni_time_t());
    const omni_tracedmutex_lock lock(*omni::omniTransportLock);
    stream.wrUnLock();
}

/// The beginning of a GIOP 1.2 reply to the current request: header, request, "no exception".
std::string replyHead(const omni::GIOP_S &stream, std::uint32_t announced)
{
    struct
    {
        char magic[4] = {'G', 'I', 'O', 'P'};
        std::uint8_t version[2] = {1, 2};
        std::uint8_t flags = omni::myByteOrder;
        std::uint8_t type = GIOP::Reply;
        std::uint32_t size = 0;
        std::uint32_t request = 0;
        std::uint32_t status = GIOP::NO_EXCEPTION;
        std::uint32_t contexts = 0;
    } head;
    head.size = announced;
    head.request = StreamAccess::requestOf(stream);
    return std::string(reinterpret_cast<const char *>(&head), sizeof head);
}

/// Carries a call out without an answer.
bool executeMutely(omni::GIOP_S &stream, const std::function<bool()> &execute)
{
    stream.response_expected(false);
    return execute();
}

/// Ends a call that was not carried out, without an answer.
[[noreturn]] void abandon(omniCallHandle &call)
{
    call.SkipRequestBody();
    throw omni::GIOP_S::terminateProcessing();
}

} // namespace

bool isSystemException(const std::string &name)
{
    return systemExceptions().contains(name);
}

bool injectFault(const Fault &fault, omniCallHandle &call, CallContext &context,
                 const std::function<bool()> &execute)
{
    omni::GIOP_S &stream = serverStream(call);
    bool known = true;
    switch (fault.action) {
    case Fault::Action::Delay:
        context.delay += fault.delay;
        return execute();
    case Fault::Action::Fail:
        context.mustFail = true;
        return execute();
    case Fault::Action::Exception:
        call.SkipRequestBody();
        context.beforeAnswer();
        systemExceptions().at(fault.exception)();
        break;
    case Fault::Action::Hang:
        abandon(call);
    case Fault::Action::Close:
        closeConnection(context);
        abandon(call);
    case Fault::Action::Reset:
        resetConnection(context);
        abandon(call);
    case Fault::Action::Mute:
        return executeMutely(stream, execute);
    case Fault::Action::CloseAfter:
        known = executeMutely(stream, execute);
        closeConnection(context);
        break;
    case Fault::Action::ResetAfter:
        known = executeMutely(stream, execute);
        resetConnection(context);
        break;
    case Fault::Action::Garbage:
        known = executeMutely(stream, execute);
        sendRaw(stream, std::string(48, '\x5A'));
        break;
    case Fault::Action::HugeLength:
        known = executeMutely(stream, execute);
        sendRaw(stream, replyHead(stream, 0x7FFFFFFF));
        break;
    case Fault::Action::Truncated:
        known = executeMutely(stream, execute);
        sendRaw(stream, replyHead(stream, 4096));
        closeConnection(context);
        break;
    }
    return known;
}

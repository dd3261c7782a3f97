#include "ControllerServer.h"

#include <netdb.h>
#include <sys/socket.h>

#include <cerrno>
#include <cstring>
#include <map>
#include <mutex>

#include <omniORB4/BiDirPolicy.h>
#include <omniORB4/callHandle.h>
#include <omniORB4/internal/giopStream.h>
#include <omniORB4/omniURI.h>

#include <FcpInterfaces.hh>

#include "UniqueFd.h"

namespace {

constexpr CORBA::ULong MessageBufferSize = 256 * 1024;

constexpr char ObjectKey[] = "bidir/FcpApp";
constexpr char RepositoryId[] = "IDL:FcpAppInterfaceCORBA:1.0";

std::string inBrackets(const std::string &host)
{
    return host.find(':') == host.npos || host.front() == '[' ? host : '[' + host + ']';
}

struct Listening
{
    unsigned short port = 0; ///< 0: it can't be done
    std::string error;
};

/**
 * Tries to listen, on a free port when @p port is 0. The ORB can do that itself, but does not say
 * why it failed, and keeps a port that it was not told for itself: after a sudden end the port
 * could not be taken again as long as the system remembers its connections.
 */
Listening tryListening(const std::string &host, unsigned short port)
{
    addrinfo hints = {};
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = AI_PASSIVE;
    addrinfo *found = nullptr;
    const int code = ::getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found);
    if (code != 0) {
        return {0, ::gai_strerror(code)};
    }
    const std::unique_ptr<addrinfo, void (*)(addrinfo *)> address(found, ::freeaddrinfo);
    const UniqueFd fd(::socket(address->ai_family, SOCK_STREAM | SOCK_CLOEXEC, 0));
    const int yes = 1;
    ::setsockopt(fd.get(), SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    if (::bind(fd.get(), address->ai_addr, address->ai_addrlen) != 0
        || ::listen(fd.get(), 1) != 0) {
        return {0, std::strerror(errno)};
    }
    sockaddr_storage bound = {};
    socklen_t size = sizeof bound;
    ::getsockname(fd.get(), reinterpret_cast<sockaddr *>(&bound), &size);
    // The port is at the same place in both families' addresses.
    return {ntohs(reinterpret_cast<const sockaddr_in *>(&bound)->sin_port), {}};
}

IIOP::ProfileBody profileOf(CORBA::Object_ptr object)
{
    const omniIOR_var ior = object->_PR_getobj()->_getIOR();
    IIOP::ProfileBody body;
    IIOP::unmarshalProfile(ior->iopProfiles()[0], body);
    return body;
}

} // namespace

/// Answers under the well-known key, whatever is called, by telling where the object really is.
class ControllerServer::Forwarder : public virtual PortableServer::ServantBase
{
public:
    /// @p publish: "HOST:PORT" for all clients; empty: each is sent to the address it has used.
    Forwarder(CORBA::Object_ptr object, const std::string &publish)
        : m_profile(profileOf(object))
        , m_publish(publish.empty() ? publish : "giop:tcp:" + publish)
    {
    }

    unsigned short port() const { return m_profile.address.port; }

    CORBA::Boolean _dispatch(omniCallHandle &call) override
    {
        const char *address = m_publish.empty() ? call.myaddress() : m_publish.c_str();
        throw omniORB::LOCATION_FORWARD(objectAt(address ? address : ""), false);
    }
    const char *_mostDerivedRepoId() override { return RepositoryId; }

private:
    /// A reference to the object by the address ("giop:tcp:HOST:PORT") that a client has used.
    CORBA::Object_ptr objectAt(const std::string &address)
    {
        const std::lock_guard lock(m_mutex);
        CORBA::Object_var &object = m_objects[address];
        if (CORBA::is_nil(object)) {
            IIOP::Address used = m_profile.address;
            CORBA::UShort port = 0;
            const CORBA::String_var host(
                omni::omniURI::extractHostPort(address.c_str() + std::strlen("giop:tcp:"), port));
            if (host.in()) {
                used.host = host;
                used.port = port;
            }
            auto *ior = new omniIOR(RepositoryId, m_profile.object_key, &used, 1, m_profile.version,
                                    omniIOR::NoInterceptor, &m_profile.components);
            omniObjRef *reference = omni::createObjRef(CORBA::Object::_PD_repoId, ior, false);
            object =
                static_cast<CORBA::Object_ptr>(reference->_ptrToObjRef(CORBA::Object::_PD_repoId));
        }
        return CORBA::Object::_duplicate(object);
    }

    const IIOP::ProfileBody m_profile;
    const std::string m_publish;
    std::mutex m_mutex;
    std::map<std::string, CORBA::Object_var> m_objects;
};

ControllerServer::ControllerServer() = default;

ControllerServer::~ControllerServer() = default;

bool ControllerServer::initialize(int &argc, char **argv, const std::string &host,
                                  unsigned short port)
{
    m_host = host;
    m_port = port == 0 ? tryListening(host, 0).port : port;
    const std::string endPoint = "giop:tcp:" + inBrackets(host) + ':' + std::to_string(m_port);
    const char *options[][2] = {
        {"endPoint", endPoint.c_str()},
        {"acceptBiDirectionalGIOP", "1"},
        {"serverTransportRule", "* tcp,bidir"},
        // A client that can not be called over its own connection is not called at all.
        {"clientTransportRule", "* none"},
        {"giopMaxMsgSize", "536870912"},
        // Time-outs cost each call system calls of their own. What they are for is left to TCP, see
        // Connections: a client that stops reading holds a thread no longer than ten seconds.
        {"clientCallTimeOutPeriod", "0"},
        {"serverCallTimeOutPeriod", "0"},
        // Likewise; a call that takes long has its connection watched itself, see CallContext.
        {"connectionWatchImmediate", "0"},
        // The first event would wait for the client to answer whether it is there.
        {"verifyObjectExistsAndType", "0"},
        {"maxServerThreadPerConnection", "1000"},
        {"maxServerThreadPoolSize", "10000"},
        {"traceLevel", "0"},
        {nullptr, nullptr},
    };
    // A chunk of a file and its header are read and sent in one piece each.
    omni::giopStream::bufferSize = MessageBufferSize;
    omni::giopStream::directSendCutOff = MessageBufferSize;
    omniORB::traceLevel = 0; // its complaints about the options come before it reads them
    std::string words;
    for (int i = 1; i < argc; ++i) {
        words.append(" ").append(argv[i]);
    }
    try {
        m_orb = CORBA::ORB_init(argc, argv, "omniORB4", options);
        return true;
    } catch (const CORBA::Exception &) {
        m_error = "the ORB does not accept its options:" + words;
        return false;
    }
}

bool ControllerServer::serve(PortableServer::Servant servant, const std::string &publish)
{
    try {
        CORBA::Object_var object = m_orb->resolve_initial_references("RootPOA");
        const PortableServer::POA_var root = PortableServer::POA::_narrow(object);
        const PortableServer::POAManager_var manager = root->the_POAManager();

        CORBA::PolicyList policies(3);
        policies.length(3);
        CORBA::Any both;
        both <<= BiDirPolicy::BOTH;
        policies[0] = m_orb->create_policy(BiDirPolicy::BIDIRECTIONAL_POLICY_TYPE, both);
        // The object's key stays the same from one run to the next, as a real controller's does.
        policies[1] = root->create_lifespan_policy(PortableServer::PERSISTENT);
        policies[2] = root->create_id_assignment_policy(PortableServer::USER_ID);
        const PortableServer::POA_var poa = root->create_POA("bidir", manager, policies);
        const PortableServer::ObjectId_var id = PortableServer::string_to_ObjectId("FcpApp");
        poa->activate_object_with_id(id, servant);
        const CORBA::Object_var reference = poa->id_to_reference(id);
        m_forwarder = std::make_unique<Forwarder>(reference, publish);
        m_port = m_forwarder->port();

        object = m_orb->resolve_initial_references("omniINSPOA");
        const PortableServer::POA_var insPoa = PortableServer::POA::_narrow(object);
        const PortableServer::ObjectId_var key = PortableServer::string_to_ObjectId(ObjectKey);
        insPoa->activate_object_with_id(key, m_forwarder.get());
        PortableServer::POAManager_var(insPoa->the_POAManager())->activate();
        manager->activate();
        return true;
    } catch (const CORBA::INITIALIZE &) {
        const std::string reason = tryListening(m_host, m_port).error;
        m_error = "can not listen on " + inBrackets(m_host) + ':' + std::to_string(m_port) + ": "
            + (reason.empty() ? "the ORB can not" : reason);
    } catch (const CORBA::Exception &exception) {
        m_error = std::string("the ORB does not start (") + exception._name() + ')';
    }
    return false;
}

void ControllerServer::destroy()
{
    try {
        m_orb->destroy();
    } catch (const CORBA::Exception &) {
        // It is gone already.
    }
}

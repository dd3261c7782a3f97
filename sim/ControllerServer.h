#pragma once

#include <memory>
#include <string>

#include <omniORB4/CORBA.h>

/**
 * The ORB, and the controller's object in it.
 *
 * Clients know the object as "corbaloc:iiop:HOST:PORT/bidir/FcpApp". A small servant answers under
 * that key and forwards to the real object in the POA "bidir", whose policy lets the controller
 * call its clients back over the connections they opened. It forwards to the very address that the
 * client has used, so that a client needs one connection, whichever of the host's addresses it is
 * to.
 */
class ControllerServer
{
public:
    ControllerServer();
    ~ControllerServer();

    /** Makes the ORB; words of @p argv that are the ORB's own are taken out of it. */
    bool initialize(int &argc, char **argv, const std::string &host, unsigned short port);
    /** Serves @p servant, which must outlive this object. */
    bool serve(PortableServer::Servant servant, const std::string &publish);
    /** Why one of the above failed, in one line. */
    const std::string &error() const { return m_error; }

    unsigned short port() const { return m_port; }

    /** Ends all calls and threads of the ORB; may take long when clients are frozen. */
    void destroy();

private:
    std::string m_host;
    unsigned short m_port = 0;
    std::string m_error;
    CORBA::ORB_var m_orb;
    class Forwarder;
    std::unique_ptr<Forwarder> m_forwarder;
};

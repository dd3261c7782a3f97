/**
 * A controller whose every answer is set by a test, for what the simulator would never do.
 *
 *   fakefcp --log FILE --port N [--publish HOST:PORT]
 *
 * Commands on standard input, each answered by a line: `answer JSON`, `event NAME [count]`,
 * `shutdown 0|1`, `pushed`. Every call is logged to FILE as a line of JSON when it comes in.
 */
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonDocument>

#include <iostream>
#include <string>

#include "FakeServant.h"
#include "support/Sockets.h"

using namespace Qt::StringLiterals;

namespace {

/// Sends whoever calls the object at "/bidir/FcpApp" on to the real one, as controllers do.
class Signpost : public PortableServer::ServantBase
{
public:
    explicit Signpost(CORBA::Object_ptr target)
        : m_target(CORBA::Object::_duplicate(target))
    {
    }

    omniObjRef *_do_get_interface() override { return nullptr; }

    CORBA::Boolean _dispatch(omniCallHandle &) override
    {
        throw omniORB::LOCATION_FORWARD(CORBA::Object::_duplicate(m_target), false);
    }

private:
    CORBA::Object_var m_target;
};

CORBA::ORB_var makeOrb(int port, const QString &publish)
{
    const std::string endPoint = "giop:tcp:127.0.0.1:" + std::to_string(port);
    const std::string published =
        publish.isEmpty() ? endPoint : "giop:tcp:" + publish.toStdString();
    const char *options[][2] = {
        {"endPoint", endPoint.c_str()},
        {"endPointPublish", published.c_str()},
        {"acceptBiDirectionalGIOP", "1"},
        {"serverTransportRule", "* unix,tcp,bidir"},
        {"giopMaxMsgSize", "1073741824"},
        {"connectionWatchImmediate", "1"},
        {"outConScanPeriod", "0"},
        {"inConScanPeriod", "0"},
        {nullptr, nullptr},
    };
    int argc = 0;
    return CORBA::ORB_init(argc, nullptr, "omniORB4", options);
}

PortableServer::POA_var rootPoa(CORBA::ORB_ptr orb)
{
    CORBA::Object_var object = orb->resolve_initial_references("RootPOA");
    return PortableServer::POA::_narrow(object);
}

void publishServant(CORBA::ORB_ptr orb, FakeServant *servant)
{
    PortableServer::POA_var root = rootPoa(orb);
    CORBA::PolicyList policies(1);
    policies.length(1);
    CORBA::Any both;
    both <<= BiDirPolicy::BOTH;
    policies[0] = orb->create_policy(BiDirPolicy::BIDIRECTIONAL_POLICY_TYPE, both);
    PortableServer::POAManager_var manager = root->the_POAManager();
    PortableServer::POA_var bidir = root->create_POA("bidir", manager, policies);
    PortableServer::ObjectId_var id = bidir->activate_object(servant);

    CORBA::Object_var object = orb->resolve_initial_references("omniINSPOA");
    PortableServer::POA_var addresses = PortableServer::POA::_narrow(object);
    PortableServer::ObjectId_var address = PortableServer::string_to_ObjectId("bidir/FcpApp");
    CORBA::Object_var reference = bidir->id_to_reference(id);
    addresses->activate_object_with_id(address, new Signpost(reference));
    PortableServer::POAManager_var addressManager = addresses->the_POAManager();
    addressManager->activate();
    manager->activate();
}

std::string sendEvents(FakeServant &servant, const QByteArrayList &words)
{
    static const QByteArrayList names = {"TEST_STATUS", "MODULE_STATUS", "RESOURCE_STATUS",
                                         "CLIENT_STATUS"};
    const qsizetype event = names.indexOf(words.value(1));
    if (event < 0) {
        return "error: unknown event";
    }
    const int count = words.size() > 2 ? words.at(2).toInt() : 1;
    const int failures = servant.sendEvents(AppFcpEvent(event), count);
    return "ok, " + std::to_string(failures) + " failed";
}

std::string obey(Script &script, FakeServant &servant, const QByteArray &line)
{
    const QByteArrayList words = line.split(' ');
    if (words.first() == "answer") {
        script.setAnswers(QJsonDocument::fromJson(line.mid(7)).object());
        return "ok";
    }
    if (words.first() == "event") {
        return sendEvents(servant, words);
    }
    if (words.first() == "shutdown") {
        const int failures = servant.sendShutDown(words.value(1) == "1");
        return "ok, " + std::to_string(failures) + " failed";
    }
    if (words.first() == "pushed") {
        return "ok, " + std::to_string(servant.contents().pushedBytes()) + " bytes";
    }
    return "error: unknown command";
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOptions({{u"log"_s, u"Where calls are logged"_s, u"file"_s},
                       {u"port"_s, u"Where to listen; 0: any"_s, u"number"_s, u"0"_s},
                       {u"publish"_s, u"The address in references"_s, u"host:port"_s}});
    parser.process(application);
    const quint16 wanted = parser.value(u"port"_s).toUShort();
    const quint16 port = wanted != 0 ? wanted : localPort(listenOn(0));

    Script script(parser.value(u"log"_s));
    auto *servant = new FakeServant(script);
    CORBA::ORB_var orb = makeOrb(port, parser.value(u"publish"_s));
    publishServant(orb, servant);
    std::cout << "fakefcp: listening on port " << port << std::endl;

    std::string line;
    while (std::getline(std::cin, line)) {
        std::cout << obey(script, *servant, QByteArray::fromStdString(line)) << std::endl;
    }
    orb->destroy();
    return 0;
}

// A client of the controller with nothing but the generated stub and skeleton. Started as
//   bench-bare-stub HOST PORT -ORB...
// it obeys lines on its input and answers each with a line: what it counted, and the seconds.

#include <chrono>
#include <condition_variable>
#include <iostream>
#include <mutex>
#include <sstream>
#include <string>

#include <omniORB4/CORBA.h>

#include <omniORB4/BiDirPolicy.h>

#include <FcpInterfaces.hh>

namespace {

class CountingCallback : public POA_AppFcpInterfaceCORBA
{
public:
    void Event(AppFcpEvent) override
    {
        const std::lock_guard lock(m_mutex);
        if (++m_count >= m_awaited) {
            m_condition.notify_one();
        }
    }
    void ShutDown(CORBA::Boolean) override { }

    void await(long count)
    {
        const std::lock_guard lock(m_mutex);
        m_count = 0;
        m_awaited = count;
    }
    long waitForAll()
    {
        std::unique_lock lock(m_mutex);
        m_condition.wait_for(lock, std::chrono::seconds(60),
                             [this] { return m_count >= m_awaited; });
        return m_count;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_condition;
    long m_count = 0;
    long m_awaited = 0;
};

class Client
{
public:
    Client(CORBA::ORB_ptr orb, const std::string &host, const std::string &port)
    {
        m_poa = makePoa(orb);
        const std::string address = "corbaloc:iiop:1.2@" + host + ':' + port + "/bidir/FcpApp";
        const CORBA::Object_var object = orb->string_to_object(address.c_str());
        m_controller = FcpAppInterfaceCORBA::_narrow(object);
        const PortableServer::ObjectId_var id = m_poa->activate_object(&m_callback);
        const CORBA::Object_var reference = m_poa->id_to_reference(id);
        m_reference = AppFcpInterfaceCORBA::_narrow(reference);
    }

    /**
     * Answers "list DIRECTORY FLAGS", "ping COUNT", "await COUNT" and "awaited". It is registered
     * with the controller, and gets its events, between the last two.
     */
    std::string obey(const std::string &line)
    {
        std::istringstream words(line);
        std::string command;
        words >> command;
        if (command == "list") {
            std::string directory;
            CORBA::Long flags = 0;
            words >> directory >> flags;
            return timed([&] { return list(directory, flags); });
        }
        long count = 0;
        words >> count;
        if (command == "ping") {
            return timed([&] { return ping(count); });
        }
        if (command == "await") {
            m_callback.await(count);
            m_clientId = m_controller->registerApp(m_reference);
            return "ready";
        }
        const long arrived = m_callback.waitForAll();
        m_controller->unregisterApp(m_clientId);
        return std::to_string(arrived);
    }

private:
    static PortableServer::POA_ptr makePoa(CORBA::ORB_ptr orb)
    {
        const CORBA::Object_var object = orb->resolve_initial_references("RootPOA");
        const PortableServer::POA_var root = PortableServer::POA::_narrow(object);
        CORBA::Any both;
        both <<= BiDirPolicy::BOTH;
        CORBA::PolicyList policies(1);
        policies.length(1);
        policies[0] = orb->create_policy(BiDirPolicy::BIDIRECTIONAL_POLICY_TYPE, both);
        const PortableServer::POAManager_var manager = root->the_POAManager();
        manager->activate();
        return root->create_POA("bidir", manager, policies);
    }

    template<typename Call>
    static std::string timed(Call &&call)
    {
        const auto begin = std::chrono::steady_clock::now();
        const auto result = call();
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - begin;
        return std::to_string(result.count()) + ' ' + std::to_string(elapsed.count());
    }

    struct Listing
    {
        FileSystemItemCORBASeq_var items;
        unsigned long count() const { return items->length(); }
    };

    Listing list(const std::string &directory, CORBA::Long flags)
    {
        Listing listing;
        m_controller->getFileSystemItems(directory.c_str(), flags, FileSystemFilterCORBASeq(),
                                         listing.items.out());
        return listing;
    }

    struct Count
    {
        long value;
        long count() const { return value; }
    };

    Count ping(long count)
    {
        for (long i = 0; i < count; ++i) {
            m_controller->isMaximumClientCountOK();
        }
        return {count};
    }

    PortableServer::POA_var m_poa;
    FcpAppInterfaceCORBA_var m_controller;
    CountingCallback m_callback;
    AppFcpInterfaceCORBA_var m_reference;
    CORBA::Long m_clientId = 0;
};

} // namespace

int main(int argc, char **argv)
{
    try {
        const CORBA::ORB_var orb = CORBA::ORB_init(argc, argv);
        if (argc != 3) {
            std::cerr << "usage: bench-bare-stub HOST PORT -ORB...\n";
            return 2;
        }
        Client client(orb, argv[1], argv[2]);
        std::cout << "connected" << std::endl;
        for (std::string line; std::getline(std::cin, line);) {
            std::cout << client.obey(line) << std::endl;
        }
        std::cout.flush();
        // The servant lives on this stack: nothing of the ORB may outlive it.
        orb->destroy();
        return 0;
    } catch (const CORBA::Exception &exception) {
        std::cerr << "bench-bare-stub: " << exception._name() << '\n';
        return 1;
    }
}

#include <QLoggingCategory>
#include <QTest>

#include <corba/AppFcpCORBAImpl.h>

#include <vector>

#include <omniORB4/internal/orbOptions.h>
#include <poll.h>
#include <sys/socket.h>

#include "FakeController.h"
#include "Giop.h"
#include "GuardedTest.h"
#include "Link.h"
#include "PrivateNetwork.h"
#include "ProcessProbe.h"
#include "Sockets.h"
#include "TcpProxy.h"

using namespace Qt::StringLiterals;

namespace {

constexpr quint16 FirstPort = 5700;
constexpr quint16 LastPort = 5749;

/// Ends the ORB when a test function ends, however it does.
class OrbGuard
{
public:
    OrbGuard() = default;
    OrbGuard(const OrbGuard &) = delete;
    OrbGuard &operator=(const OrbGuard &) = delete;
    ~OrbGuard() { BiDirectionalCORBA::deleteInstance(); }
};

/// Enables the link's debug texts.
class DebugTexts
{
public:
    DebugTexts() { QLoggingCategory::setFilterRules(u"vex.corba.debug=true"_s); }
    DebugTexts(const DebugTexts &) = delete;
    DebugTexts &operator=(const DebugTexts &) = delete;
    ~DebugTexts() { QLoggingCategory::setFilterRules({}); }
};

bool isTaken(quint16 port)
{
    return connectTo(port).isValid();
}

/// Listens on those ports of a range on which nobody else does.
std::vector<FileDescriptor> holdPorts(quint16 first, quint16 last)
{
    std::vector<FileDescriptor> held;
    for (quint16 port = first; port <= last; ++port) {
        if (!isTaken(port)) {
            held.push_back(listenOn(port));
        }
    }
    return held;
}

/// What the running ORB says about its settings.
QHash<QString, QString> orbSettings()
{
    CORBA::StringSeq_var lines = omni::orbOptions::singleton().dumpCurrentSet();
    QHash<QString, QString> settings;
    for (CORBA::ULong i = 0; i < lines->length(); ++i) {
        const QStringList words =
            QString::fromLatin1(static_cast<const char *>(lines[i])).split(u" = "_s);
        settings.insert(words.first(), words.value(1));
    }
    return settings;
}

/// What comes back on a connection until the peer closes it or a reply is there.
QByteArray readAnswer(const FileDescriptor &socket)
{
    QByteArray answer;
    constexpr int patienceMs = 5000;
    pollfd waiting = {socket.get(), POLLIN, 0};
    while (::poll(&waiting, 1, patienceMs) > 0) {
        char buffer[1024];
        const ssize_t got = ::recv(socket.get(), buffer, sizeof buffer, 0);
        if (got <= 0) {
            return answer;
        }
        answer.append(buffer, got);
        const auto header = Giop::parseHeader(answer);
        if (header && answer.size() >= header->messageSize()) {
            return answer;
        }
    }
    QTest::qFail("The stranger was neither answered nor cut", __FILE__, __LINE__);
    return answer;
}

} // namespace

/** How the ORB is started, what it is told, and what is left of it. */
class TestOrb : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_threads = runningThreads(); }

    void acceptsArguments_data();
    void acceptsArguments();
    void refusesArguments_data();
    void refusesArguments();
    void logsEachArgument();
    void hasTheLinksSettings();
    void takesTheFirstFreePort();
    void saysThatAllPortsAreTaken();
    void takesTheGivenPortOrNone();
    void refusesASecondInstance();
    void replacesTheOrbWithMoreArguments();
    void startsAgainAndLeavesNothingBehind();
    void failedStartLeavesNothingBehind();
    void strangerGetsNothing();
    void announcesOneAddressWithSeveralInterfaces();

private:
    int m_threads = 0; ///< without an ORB
};

void TestOrb::acceptsArguments_data()
{
    QTest::addColumn<QVector<QString>>("arguments");
    QTest::newRow("none") << QVector<QString>();
    QTest::newRow("the words of an old command line")
        << QVector<QString> {u"-ORBSvcConfDirective"_s,
                             u"dynamic TAO_Transport_Current_Loader Service_Object * "
                             "TAO_TC:_make_TAO_Transport_Current_Loader() \"\""_s,
                             u"-ORBSvcConfDirective"_s,
                             u"static Resource_Factory \"-ORBMuxedConnectionMax 1\""_s,
                             u"-ORBDottedDecimalAddresses"_s,
                             u"1"_s,
                             u"-ORBUseParallelConnects"_s,
                             u"1"_s};
    QTest::newRow("loopback endpoint")
        << QVector<QString> {u"-ORBListenEndpoints"_s, u"iiop://127.0.0.1:5731/portspan=5"_s};
    QTest::newRow("versioned endpoint")
        << QVector<QString> {u"-ORBListenEndpoints"_s, u"iiop://1.2@127.0.0.1:5731/portspan=5"_s};
    QTest::newRow("any port") << QVector<QString> {u"-ORBListenEndpoints"_s, u"iiop://:0"_s};
    QTest::newRow("the ORB's own endpoint word")
        << QVector<QString> {u"-ORBendPoint"_s, u"giop:tcp:127.0.0.1:"_s};
    QTest::newRow("the ORB's own words") << QVector<QString> {
        u"-ORBclientCallTimeOutPeriod"_s, u"300"_s, u"-ORBgiopMaxMsgSize"_s, u"4194304"_s};
    QTest::newRow("the application's own words")
        << QVector<QString> {u"--appId=7"_s, u"-x"_s, u"file.xml"_s, QString()};
}

void TestOrb::acceptsArguments()
{
    QFETCH(QVector<QString>, arguments);
    const OrbGuard guard;
    QVERIFY2(BiDirectionalCORBA::initializeInstance(arguments),
             qPrintable(BiDirectionalCORBA::lastError()));
    const BiDirectionalCORBA *orb = BiDirectionalCORBA::instance();
    QCOMPARE(BiDirectionalCORBA::lastError(), QString());
    QVERIFY(!CORBA::is_nil(orb->getORB()));
    PortableServer::POA_var poa = orb->getPOA();
    const CORBA::String_var name = poa->the_name();
    QCOMPARE(name.in(), "bidir");
    QVERIFY(orb->isRunning());
    QVERIFY(isTaken(orb->listenPort()));
}

void TestOrb::refusesArguments_data()
{
    QTest::addColumn<QVector<QString>>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("unknown word") << QVector<QString> {u"-ORBnoSuchThing"_s, u"1"_s}
                                  << u"-ORBnoSuchThing"_s;
    QTest::newRow("unknown last word")
        << QVector<QString> {u"-ORBnoSuchThing"_s} << u"-ORBnoSuchThing"_s;
    QTest::newRow("unknown word after silencing the ORB")
        << QVector<QString> {u"-ORBtraceLevel"_s, u"0"_s, u"-ORBnoSuchThing"_s, u"1"_s}
        << u"-ORBnoSuchThing"_s;
    QTest::newRow("value missing")
        << QVector<QString> {u"-ORBclientCallTimeOutPeriod"_s} << u"clientCallTimeOutPeriod"_s;
    QTest::newRow("value of TAO's word missing")
        << QVector<QString> {u"-ORBSvcConfDirective"_s} << u"-ORBSvcConfDirective"_s;
    QTest::newRow("endpoint is none")
        << QVector<QString> {u"-ORBListenEndpoints"_s, u"http://x"_s} << u"http://x"_s;
    QTest::newRow("endpoint missing")
        << QVector<QString> {u"-ORBListenEndpoints"_s} << u"-ORBListenEndpoints"_s;
    QTest::newRow("ports beyond the last one")
        << QVector<QString> {u"-ORBListenEndpoints"_s, u"iiop://:65530/portspan=7"_s} << u"65530"_s;
    QTest::newRow("somebody else's address")
        << QVector<QString> {u"-ORBListenEndpoints"_s, u"iiop://192.0.2.1:5731"_s}
        << u"192.0.2.1"_s;
}

void TestOrb::refusesArguments()
{
    QFETCH(QVector<QString>, arguments);
    QFETCH(QString, named);
    messages().allow(QRegularExpression::escape(named));
    const OrbGuard guard;
    QCOMPARE(BiDirectionalCORBA::initializeInstance(arguments), false);
    QCOMPARE(BiDirectionalCORBA::instance(), nullptr);
    QVERIFY2(BiDirectionalCORBA::lastError().contains(named),
             qPrintable(BiDirectionalCORBA::lastError()));
    QVERIFY(BiDirectionalCORBA::initializeInstance());
}

void TestOrb::logsEachArgument()
{
    const DebugTexts enabled;
    const OrbGuard guard;
    QVERIFY(BiDirectionalCORBA::initializeInstance(
        {u"-ORBclientCallTimeOutPeriod"_s, u"1234"_s, u"-ORBDottedDecimalAddresses"_s, u"1"_s,
         u"-ORBListenEndpoints"_s, u"iiop://127.0.0.1:5731/portspan=9"_s}));
    const QString label = u"CORBA argument = "_s;
    QStringList logged;
    for (const QString &text : messages().debugTexts("vex.corba")) {
        if (text.startsWith(label)) {
            logged.append(text.sliced(label.size()));
        }
    }
    QVERIFY(logged.contains(u"-ORBclientCallTimeOutPeriod"_s));
    QVERIFY(logged.contains(u"1234"_s));
    QVERIFY(logged.contains(
        u"giop:tcp:127.0.0.1:%1"_s.arg(BiDirectionalCORBA::instance()->listenPort())));
    QVERIFY(!logged.contains(u"-ORBDottedDecimalAddresses"_s));
}

void TestOrb::hasTheLinksSettings()
{
    const OrbGuard guard;
    QVERIFY(BiDirectionalCORBA::initializeInstance());
    const QHash<QString, QString> settings = orbSettings();
    QCOMPARE(settings.value(u"clientCallTimeOutPeriod"_s), u"180000"_s);
    QCOMPARE(settings.value(u"offerBiDirectionalGIOP"_s), u"1"_s);
    QCOMPARE(settings.value(u"maxGIOPConnectionPerServer"_s), u"1"_s);
    QCOMPARE(settings.value(u"oneCallPerConnection"_s), u"0"_s);
    QCOMPARE(settings.value(u"maxServerThreadPerConnection"_s), u"1"_s);
    QCOMPARE_GE(settings.value(u"giopMaxMsgSize"_s).toLongLong(), 64 * 1024 * 1024);
}

void TestOrb::takesTheFirstFreePort()
{
    const std::vector<FileDescriptor> held = holdPorts(FirstPort, FirstPort + 2);
    quint16 expected = FirstPort + 3;
    while (isTaken(expected)) {
        ++expected;
    }
    const OrbGuard guard;
    QVERIFY(BiDirectionalCORBA::initializeInstance());
    QCOMPARE(BiDirectionalCORBA::instance()->listenPort(), expected);
    QVERIFY(isTaken(expected));
}

void TestOrb::saysThatAllPortsAreTaken()
{
    messages().allow(u"cannot listen"_s);
    const OrbGuard guard;
    {
        const std::vector<FileDescriptor> held = holdPorts(FirstPort, LastPort);
        QCOMPARE(BiDirectionalCORBA::initializeInstance(), false);
        QCOMPARE(BiDirectionalCORBA::instance(), nullptr);
        const QString error = BiDirectionalCORBA::lastError();
        QVERIFY2(error.contains(QString::number(FirstPort))
                     && error.contains(QString::number(LastPort)),
                 qPrintable(error));
    }
    QVERIFY(BiDirectionalCORBA::initializeInstance());
}

void TestOrb::takesTheGivenPortOrNone()
{
    messages().allow(u"cannot listen"_s);
    const OrbGuard guard;
    FileDescriptor held = listenOn(0);
    const quint16 port = localPort(held);
    QCOMPARE(BiDirectionalCORBA::initializeInstance(port), false);
    QCOMPARE(BiDirectionalCORBA::instance(), nullptr);
    QVERIFY(BiDirectionalCORBA::lastError().contains(QString::number(port)));

    held.reset();
    QVERIFY(BiDirectionalCORBA::initializeInstance(port));
    QCOMPARE(BiDirectionalCORBA::instance()->listenPort(), port);
}

void TestOrb::refusesASecondInstance()
{
    messages().allow(u"one process has one ORB"_s);
    const OrbGuard guard;
    QVERIFY(BiDirectionalCORBA::initializeInstance());
    const BiDirectionalCORBA *first = BiDirectionalCORBA::instance();
    QCOMPARE(BiDirectionalCORBA::initializeInstance(), false);
    QVERIFY(!BiDirectionalCORBA::lastError().isEmpty());
    QCOMPARE(BiDirectionalCORBA::instance(), first);
    QVERIFY(isTaken(first->listenPort()));
}

void TestOrb::replacesTheOrbWithMoreArguments()
{
    const OrbGuard guard;
    QVERIFY(BiDirectionalCORBA::initializeInstance());
    BiDirectionalCORBA *orb = BiDirectionalCORBA::instance();
    QVERIFY(orb->initializeORB({u"-ORBclientCallTimeOutPeriod"_s, u"4321"_s}));
    QCOMPARE(orbSettings().value(u"clientCallTimeOutPeriod"_s), u"4321"_s);
    QVERIFY(orb->isRunning());
    QVERIFY(isTaken(orb->listenPort()));
    QCOMPARE_GE(orb->listenPort(), FirstPort);
    QCOMPARE_LE(orb->listenPort(), LastPort);

    messages().allow(u"-ORBnoSuchThing"_s);
    QCOMPARE(orb->initializeORB({u"-ORBnoSuchThing"_s, u"1"_s}), false);
    QVERIFY(CORBA::is_nil(orb->getORB()));
    QVERIFY(BiDirectionalCORBA::lastError().contains(u"-ORBnoSuchThing"_s));
}

void TestOrb::startsAgainAndLeavesNothingBehind()
{
    constexpr int cycles = 6;
    FakeController controller;
    controller.start();
    int descriptors = 0;
    for (int cycle = 0; cycle < cycles; ++cycle) {
        {
            Link link;
            QVERIFY(link.connectTo(controller.port()));
            controller.sendEvents("TEST_STATUS");
            QTRY_COMPARE(link.events().size(), 1);
        }
        QTRY_COMPARE(runningThreads(), m_threads);
        if (cycle == 0) {
            // What Qt and the ORB open once and for all is there now.
            descriptors = openDescriptors();
        }
        QTRY_COMPARE(openDescriptors(), descriptors);
    }
    QCOMPARE(controller.calls(u"registerApp"_s).size(), cycles);
    QCOMPARE(controller.calls(u"unregisterApp"_s).size(), cycles);
}

void TestOrb::failedStartLeavesNothingBehind()
{
    messages().allow(u"-ORBnoSuchThing"_s);
    {
        const OrbGuard guard;
        QVERIFY(BiDirectionalCORBA::initializeInstance());
    }
    QTRY_COMPARE(runningThreads(), m_threads);
    const int descriptors = openDescriptors();
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(BiDirectionalCORBA::initializeInstance({u"-ORBnoSuchThing"_s, u"1"_s}), false);
    }
    QTRY_COMPARE(runningThreads(), m_threads);
    QTRY_COMPARE(openDescriptors(), descriptors);
}

void TestOrb::strangerGetsNothing()
{
    TcpProxy proxy;
    FakeController controller(proxy.port());
    controller.start();
    proxy.setController(controller.port());
    Link link;
    int shutDowns = 0;
    connect(link->getCallback(), &AppFcpCORBAImpl::fcpShutDownReceived, this, [&] { ++shutDowns; });
    QVERIFY(link.connectTo(proxy.port()));
    std::optional<Giop::Reference> callback;
    for (const TcpProxy::Message &message : proxy.recorded()) {
        if (message.operation == "registerApp" && !callback) {
            callback = Giop::callbackReference(*Giop::parseRequest(message.bytes));
        }
    }
    QVERIFY(callback);

    const FileDescriptor stranger = connectTo(link->getCorba()->listenPort());
    QVERIFY(stranger.isValid());
    const QByteArray requests =
        Giop::makeRequest(2, callback->objectKey, "Event", QByteArray(4, '\0'), false)
        + Giop::makeRequest(4, callback->objectKey, "ShutDown", QByteArray(1, '\0'), false)
        + Giop::makeRequest(6, callback->objectKey, "ShutDown", QByteArray(1, '\0'), true);
    // The other side may have closed before.
    ::send(stranger.get(), requests.constData(), size_t(requests.size()), MSG_NOSIGNAL);
    const auto reply = Giop::parseReply(readAnswer(stranger));
    constexpr quint32 systemException = 2;
    QVERIFY(!reply || reply->status == systemException);

    controller.sendEvents("CLIENT_STATUS");
    QTRY_VERIFY(link.events().contains(CLIENT_STATUS));
    QCOMPARE(link.events(), QVector<int>({CLIENT_STATUS}));
    QCOMPARE(shutDowns, 0);
    QCOMPARE(link.losses(), 0);
}

void TestOrb::announcesOneAddressWithSeveralInterfaces()
{
    const FileDescriptor first = addInterface("10.71.1.2");
    const FileDescriptor second = addInterface("10.72.1.2");
    if (!first.isValid() || !second.isValid()) {
        QSKIP("This system does not let a test add network interfaces");
    }
    TcpProxy proxy;
    FakeController controller(proxy.port());
    controller.start();
    proxy.setController(controller.port());
    Link link;
    QVector<QString> addresses = {u"before"_s};
    link->getCorba()->getIpList(&addresses);
    QCOMPARE(addresses, QVector<QString>({u"before"_s, u"10.71.1.2"_s, u"10.72.1.2"_s}));

    QVERIFY(link.connectTo(proxy.port()));
    QVector<Giop::Address> announced;
    QVector<Giop::Address> called;
    for (const TcpProxy::Message &message : proxy.recorded()) {
        const auto request = Giop::parseRequest(message.bytes);
        announced += request ? Giop::listenPoints(*request) : QVector<Giop::Address>();
        if (request && request->operation == "registerApp") {
            called += Giop::callbackReference(*request)->addresses;
        }
    }
    QCOMPARE(called.size(), 1);
    QCOMPARE(announced, called);
}

int main(int argc, char **argv)
{
    // Its ports are then its own; without that it must run alone.
    enterPrivateNetwork();
    const QCoreApplication application(argc, argv);
    TestOrb test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_orb.moc"

#include "ControllerLink.h"

#include "Logging.h"
#include "Wording.h"

#include <QVariant>

#include <corba/AppFcpCORBAImpl.h>
#include <corba/BiDirectionalCORBA.h>
#include <corba/FcpAppCORBA.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Longer than the controller needs for anything that this application asks for, and short enough
// that closing never waits for minutes.
const auto callTimeOut = u"10000"_s;
constexpr auto quietInterval = 2s;

TestPhase phaseOf(TestStatus status)
{
    switch (status) {
    case TEST_LAUNCHED:
        return TestPhase::Starting;
    case TEST_REGISTERED:
        return TestPhase::Running;
    case TEST_CLOSING:
        return TestPhase::Closing;
    default:
        return TestPhase::Gone;
    }
}

} // namespace

ControllerLink::ControllerLink(QObject *parent)
    : QObject(parent)
{
    m_thread.setObjectName(u"LevelMeterLink"_s);
    m_worker.moveToThread(&m_thread);
    if (!BiDirectionalCORBA::initializeInstance({u"-ORBclientCallTimeOutPeriod"_s, callTimeOut})) {
        m_reason = BiDirectionalCORBA::lastError();
        return;
    }
    FcpAppCORBA::initializeInstance(BiDirectionalCORBA::instance());
    m_controller = FcpAppCORBA::instance();
    m_supervisor = std::make_unique<VexLinkSupervisor>(m_controller);
    m_supervisor->setInterval(quietInterval);
    connectController();
    m_thread.start();
}

ControllerLink::~ControllerLink()
{
    // The order matters: nobody may reconnect or call once the link is being taken down.
    if (m_supervisor) {
        m_supervisor->stop();
        m_supervisor.reset();
    }
    m_thread.quit();
    m_thread.wait();
    if (m_controller) {
        delete m_controller;
        BiDirectionalCORBA::deleteInstance();
    }
}

void ControllerLink::connectController()
{
    connect(m_supervisor.get(), &VexLinkSupervisor::stateChanged, this,
            [this](State state, const QString &reason) { followState(state, reason); });
    connect(m_controller, &FcpAppCORBA::fcpEventReceived, this, [this](int event) {
        if (event == TEST_STATUS) {
            Q_EMIT testsChanged();
        }
    });
    // Emitted on the ORB's thread; with this object as the context it arrives on ours.
    connect(m_controller->getCallback(), &AppFcpCORBAImpl::fcpShutDownReceived, this,
            &ControllerLink::shutdownRequested);
}

void ControllerLink::start(const QString &host, int port)
{
    m_address = u"%1:%2"_s.arg(host).arg(port);
    if (m_supervisor) {
        m_supervisor->start(host, port);
    }
}

void ControllerLink::retryNow()
{
    if (m_supervisor) {
        m_supervisor->retryNow();
    }
}

qint32 ControllerLink::clientId() const
{
    return m_controller ? m_controller->clientId() : 0;
}

void ControllerLink::followState(State state, const QString &reason)
{
    const bool wasUp = isUp();
    m_state = state;
    m_reason = Wording::linkReason(reason);
    qCInfo(lcMeter).noquote().nospace()
        << "link " << QVariant::fromValue(state).toString() << ": " << reason;
    Q_EMIT stateChanged(state, m_reason);
    if (wasUp && !isUp()) {
        Q_EMIT lost(m_reason);
    } else if (!wasUp && isUp()) {
        askController();
        listTests();
        Q_EMIT up();
    }
}

/// Has @p call made on the thread of calls, and its result handed to @p then on this one.
template<typename Call, typename Then>
void ControllerLink::ask(Call call, Then then)
{
    if (!m_controller) {
        return;
    }
    QMetaObject::invokeMethod(&m_worker, [this, call, then] {
        const quint64 serial = m_controller->linkSerial();
        auto result = call(*m_controller);
        // The zero result of a lost link is no answer.
        if (m_controller->isConnected() && m_controller->linkSerial() == serial) {
            QMetaObject::invokeMethod(this, [result, then] { then(result); });
        }
    });
}

void ControllerLink::listTests()
{
    const auto call = [](FcpAppCORBA &controller) {
        QVector<AvailableTestInformation> tests;
        controller.getAvailableTests(tests);
        return tests;
    };
    ask(call, [this](const QVector<AvailableTestInformation> &tests) {
        QStringList names;
        for (const AvailableTestInformation &test : tests) {
            if (test.runnableState == 1) {
                names += test.testName;
            }
        }
        Q_EMIT testsListed(names);
    });
}

void ControllerLink::launch(const QString &testName)
{
    const auto call = [testName](FcpAppCORBA &controller) {
        return static_cast<qint32>(controller.launchTest(testName, {}));
    };
    ask(call, [this](qint32 id) { Q_EMIT launched(id); });
}

void ControllerLink::terminate(qint32 testId)
{
    const auto call = [testId](FcpAppCORBA &controller) {
        return controller.terminateTest(testId, false);
    };
    // Whether it is gone is what its phase will tell, sooner or later.
    ask(call, [this, testId](bool) { askPhase(testId); });
}

void ControllerLink::askPhase(qint32 testId)
{
    const auto call = [testId](FcpAppCORBA &controller) {
        return phaseOf(controller.getTestStatus(testId));
    };
    ask(call, [this, testId](TestPhase phase) { Q_EMIT phaseKnown(testId, phase); });
}

void ControllerLink::askController()
{
    const auto call = [](FcpAppCORBA &controller) {
        ControllerInformation information;
        controller.getController(information);
        return information;
    };
    ask(call, [this](const ControllerInformation &information) {
        Q_EMIT controllerKnown(information.controllerModel, information.controllerSerial);
    });
}

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <linux/input.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>
#include <optional>

#include <input/EvdevHidDriver.h>
#include <input/ScriptedHidDriver.h>
#include <input/TmkHidDriver.h>
#include <input/VexHID.h>

#include "FileDescriptor.h"
#include "GuardedTest.h"
#include "ProcessProbe.h"

using namespace Qt::StringLiterals;

using Report = VexHidDriver::Report;

namespace {

bool isAnything(int)
{
    return true;
}

/// A FIFO that stands for an input device, and the end into which the test writes its events.
class FakeDevice
{
public:
    explicit FakeDevice(const QString &path)
        : m_path(QFile::encodeName(path))
    {
        ::mkfifo(m_path.constData(), 0600);
        m_writer = FileDescriptor(::open(m_path.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC));
    }
    void send(quint16 type, quint16 code, qint32 value)
    {
        input_event event = {};
        event.type = type;
        event.code = code;
        event.value = value;
        QCOMPARE(::write(m_writer.get(), &event, sizeof event), ssize_t(sizeof event));
    }
    void unplug()
    {
        ::unlink(m_path.constData());
        m_writer = FileDescriptor();
    }

private:
    QByteArray m_path;
    FileDescriptor m_writer;
};

} // namespace

/** The keypad's signals, and the drivers from which they come. */
class TestHid : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void reportsBecomeSignals();
    void aFailureEndsTheLoop();
    void withoutAKeypadNothingHappens();
    void destroyedBeforeItHasBegun();
    void idleKeypadNeedsNoProcessor();
    void inputDevicesComeAndGo();
    void lostEventsAreNotCounted();
    void closedDriverIsUsedWhenItIsThere();

private:
    QStringList m_signals;
    ScriptedHidDriver *m_driver = nullptr;
    void listen();
};

void TestHid::init()
{
    GuardedTest::init();
    m_signals.clear();
    auto driver = std::make_unique<ScriptedHidDriver>();
    m_driver = driver.get();
    VexHID::setDriver(std::move(driver));
}

void TestHid::cleanup()
{
    VexHID::Destroy();
    VexHID::setDriver(nullptr);
    GuardedTest::cleanup();
}

void TestHid::listen()
{
    VexHID *keypad = VexHID::Instance();
    connect(keypad, &VexHID::KeyPressed, this,
            [this](ulong key) { m_signals << u"pressed %1"_s.arg(key, 0, 16); });
    connect(keypad, &VexHID::KeyReleased, this,
            [this](ulong key) { m_signals << u"released %1"_s.arg(key, 0, 16); });
    connect(keypad, &VexHID::AdvanceWheel, this, [this](int steps, int mode) {
        m_signals << u"turned %1, mode %2"_s.arg(steps).arg(mode);
    });
}

void TestHid::reportsBecomeSignals()
{
    listen();
    m_driver->send({VexHidDriver::Button, 3});
    m_driver->press();
    m_driver->send({VexHidDriver::Button, 0}); // another bit only
    m_driver->send({VexHidDriver::Button, 5});
    m_driver->release();
    m_driver->send({7, 1}); // of a kind that nobody knows
    m_driver->turn(-3);
    m_driver->turn(40'000);
    QTRY_COMPARE(m_signals.size(), 5);
    QCOMPARE(m_signals,
             QStringList({u"pressed 7a"_s, u"released 7a"_s, u"turned -3, mode 0"_s,
                          u"turned 32767, mode 0"_s, u"turned 7233, mode 0"_s}));
    QCOMPARE(VexHID::Instance()->isListening(), true);
    QCOMPARE(m_driver->isActive(), true);
}

void TestHid::aFailureEndsTheLoop()
{
    listen();
    m_driver->fail(VexHidDriver::NothingYet);
    m_driver->turn(1);
    m_driver->fail(9);
    m_driver->turn(2);
    QTRY_COMPARE(m_signals.size(), 1);
    QTRY_COMPARE(VexHID::Instance()->isListening(), false);
    QCOMPARE(m_driver->isActive(), false);
}

void TestHid::withoutAKeypadNothingHappens()
{
    m_driver->setPresent(false);
    m_driver->turn(1);
    const int threads = runningThreads();
    listen();
    QTRY_COMPARE(VexHID::Instance()->isListening(), false);
    VexHID::Destroy();
    QTRY_VERIFY(runningThreads() <= threads);
    QCOMPARE(m_signals, QStringList());
}

void TestHid::destroyedBeforeItHasBegun()
{
    for (int i = 0; i < 200; ++i) {
        VexHID::setDriver(std::make_unique<ScriptedHidDriver>());
        VexHID::Instance();
        VexHID::Destroy();
    }
    VexHID::Destroy();
}

void TestHid::idleKeypadNeedsNoProcessor()
{
    const QTemporaryDir folder;
    VexHID::setDriver(std::make_unique<EvdevHidDriver>(folder.path(), isAnything));
    listen();
    QTRY_COMPARE(VexHID::Instance()->isListening(), true);
    const std::clock_t before = std::clock();
    QTest::qWait(500);
    QCOMPARE_LT(double(std::clock() - before) / CLOCKS_PER_SEC, 0.05);
}

void TestHid::inputDevicesComeAndGo()
{
    const QTemporaryDir folder;
    VexHID::setDriver(std::make_unique<EvdevHidDriver>(folder.path(), isAnything));
    FakeDevice first(folder.filePath(u"event0"_s));
    FakeDevice stranger(folder.filePath(u"mouse0"_s));
    listen();
    QTRY_COMPARE(VexHID::Instance()->isListening(), true);
    first.send(EV_REL, REL_DIAL, -1);
    first.send(EV_REL, REL_DIAL, -1);
    first.send(EV_REL, REL_WHEEL_HI_RES, -240); // the same once more, finer
    first.send(EV_SYN, SYN_REPORT, 0);
    stranger.send(EV_REL, REL_DIAL, 5);
    QTRY_COMPARE(m_signals, QStringList({u"turned -2, mode 0"_s}));

    FakeDevice second(folder.filePath(u"event1"_s));
    second.send(EV_KEY, BTN_0, 1);
    second.send(EV_KEY, BTN_0, 2);
    QTRY_COMPARE(m_signals.value(1), u"pressed 7a"_s);
    second.unplug();
    QTRY_COMPARE(m_signals.value(2), u"released 7a"_s);
    first.unplug();

    FakeDevice again(folder.filePath(u"event0"_s));
    again.send(EV_REL, REL_DIAL, 4);
    again.send(EV_SYN, SYN_REPORT, 0);
    QTRY_COMPARE(m_signals.value(3), u"turned 4, mode 0"_s);
    QCOMPARE(m_signals.size(), 4);
}

void TestHid::lostEventsAreNotCounted()
{
    const QTemporaryDir folder;
    FakeDevice device(folder.filePath(u"event0"_s));
    EvdevHidDriver driver(folder.path(), isAnything);
    QCOMPARE(driver.open(), int(VexHidDriver::Success));
    driver.setActive(true);
    device.send(EV_REL, REL_DIAL, 9);
    device.send(EV_SYN, SYN_DROPPED, 0);
    device.send(EV_REL, REL_DIAL, 9);
    device.send(EV_SYN, SYN_REPORT, 0);
    device.send(EV_REL, REL_DIAL, 1);
    device.send(EV_SYN, SYN_REPORT, 0);
    Report report;
    QCOMPARE(driver.listen(report), int(VexHidDriver::Success));
    QCOMPARE(report.value, 1);
    QCOMPARE(driver.listen(report), int(VexHidDriver::NothingYet));
    QCOMPARE(EvdevHidDriver(u"/nowhere"_s, isAnything).open() == VexHidDriver::Success, false);
}

void TestHid::closedDriverIsUsedWhenItIsThere()
{
    QVERIFY(!TmkHidDriver(u"no_such_driver"_s).isInstalled());
    auto closed = std::make_unique<TmkHidDriver>(QStringLiteral(VEX_TEST_TMK_HID));
    QVERIFY(closed->isInstalled());
    VexHID::setDriver(std::move(closed));
    listen();
    // It turns by one, is unplugged with its button down, and comes back with a turn by two.
    QTRY_COMPARE(m_signals,
                 QStringList({u"turned 1, mode 0"_s, u"pressed 7a"_s, u"released 7a"_s,
                              u"turned 2, mode 0"_s}));
    VexHID::Destroy();
}

QTEST_GUILESS_MAIN(TestHid)
#include "tst_hid.moc"

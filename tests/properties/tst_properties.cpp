#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <functional>
#include <future>
#include <latch>
#include <thread>

#include "GuardedTest.h"
#include "properties/PropertiesListener.h"
#include "properties/PropertiesManager.h"

using namespace Qt::StringLiterals;

namespace {

/// A store of its own for a test: properties 1 and 2 of group 7, with the value "default".
struct Store : PropertiesManager
{
    Store()
    {
        registerSetupProperty(1, u"First"_s, u"default"_s, 7);
        registerStatusProperty(2, u"Second"_s, u"default"_s, 7);
    }
};

struct Listener : PropertiesListener
{
    using Reaction = std::function<void()>;

    Listener(QStringList &calls, const QString &name, Reaction reaction = {})
        : m_calls(calls)
        , m_name(name)
        , m_reaction(std::move(reaction))
    {
    }

    void PropertyChanged(long id) override { hear(u"property"_s, id); }
    void PropertyGroupChanged(long group) override { hear(u"group"_s, group); }

private:
    void hear(const QString &what, long key)
    {
        m_calls.append(u"%1 %2 %3"_s.arg(m_name, what).arg(key));
        if (m_reaction) {
            std::exchange(m_reaction, {})();
        }
    }

    QStringList &m_calls;
    const QString m_name;
    Reaction m_reaction;
};

/// Says when it is being called, and returns when it may.
struct SlowListener : PropertiesListener
{
    void PropertyChanged(long) override
    {
        called.count_down();
        mayReturn.wait();
        hasReturned = true;
    }

    std::latch called {1};
    std::latch mayReturn {1};
    bool hasReturned = false;
};

struct CountingListener : PropertiesListener
{
    void PropertyChanged(long) override { ++calls; }
    void PropertyGroupChanged(long) override { ++calls; }

    std::atomic<int> calls = 0;
};

/// Two listeners of property 1, of which the first one acts when it is called.
struct Scene
{
    Store store;
    Listener *first;
    Listener *later;
};
using Action = std::function<void(Scene &scene)>;

} // namespace

class TestProperties : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void aPropertyIsRegisteredOnce();
    void valuesAreReadAsNumbers();
    void listenersHearOfChanges();
    void callbacksMayDoAnything_data();
    void callbacksMayDoAnything();
    void unregisteringWaitsForOtherThreads();
    void listenersThatUnregisterEachOtherDoNotHang();
    void manyThreadsAtOnce();
};

void TestProperties::aPropertyIsRegisteredOnce()
{
    Store store;
    QVERIFY(!store.registerStatusProperty(1, u"Other"_s, u"other"_s, 8));
    QVERIFY(!store.registerSetupProperty(2, u"Other"_s, u"other"_s, 8));
    store.setProperty(2, u"set"_s, false);
    QCOMPARE(store.getProperties({2, 3, 1}), (QVector<QString> {u"set"_s, {}, u"default"_s}));
    QCOMPARE(store.getDefault(2), u"default"_s);
    QVERIFY(store.getProperty(3).isNull() && store.getDefault(3).isNull());
}

void TestProperties::valuesAreReadAsNumbers()
{
    Store store;
    const auto read = [&](const QString &value) {
        store.setProperty(1, value, false);
        return store.getPropertyInt(1, 99);
    };
    QCOMPARE(read(u"-17"_s), -17);
    QCOMPARE(read(u"010"_s), 10);
    for (const QString &value : {u""_s, u"0x10"_s, u"12 dB"_s, u"1.5"_s, u"2147483648"_s}) {
        QVERIFY2(read(value) == 99, qPrintable(value));
    }
    QCOMPARE(store.getPropertyInt(3, 98), 98);
}

void TestProperties::listenersHearOfChanges()
{
    Store store;
    QStringList calls;
    Listener listener(calls, u"a"_s);
    QVERIFY(store.registerGroupListener(7, &listener));
    QVERIFY(store.registerListener(1, &listener));
    QVERIFY(!store.registerListener(1, &listener) && !store.registerListener(1, nullptr));

    store.setProperty(1, u"default"_s, false);
    store.setProperty(3, u"unknown"_s, true);
    QCOMPARE(calls, QStringList());
    store.setProperty(1, u"default"_s, true);
    QCOMPARE(calls, (QStringList {u"a property 1"_s, u"a group 7"_s}));

    calls.clear();
    store.setProperties({3, 2, 1, 1}, {u"x"_s, u"y"_s, u"default"_s});
    QCOMPARE(calls, QStringList {u"a group 7"_s});
    QCOMPARE(store.getProperties({2, 1}), (QVector<QString> {u"y"_s, u"default"_s}));
}

void TestProperties::callbacksMayDoAnything_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<QStringList>("calls");
    const QString first = u"first property 1"_s;
    const QString later = u"later property 1"_s;
    const QString group = u"later group 7"_s;
    QTest::newRow("unregister itself")
        << Action([](Scene &scene) { scene.store.unregisterListener(scene.first); })
        << QStringList {first, later, group, later, group};
    QTest::newRow("unregister one that is still to be called")
        << Action([](Scene &scene) { scene.store.unregisterListener(scene.later); })
        << QStringList {first, first};
    QTest::newRow("unregister it at one place")
        << Action([](Scene &scene) { scene.store.unregisterListener(1, scene.later); })
        << QStringList {first, group, first, group};
    QTest::newRow("register itself anew") << Action([](Scene &scene) {
        scene.store.unregisterListener(1, scene.first);
        scene.store.registerListener(1, scene.first);
    }) << QStringList {first, later, group, later, first, group};
    QTest::newRow("set the property")
        << Action([](Scene &scene) { scene.store.setProperty(1, u"b"_s, false); })
        << QStringList {first, first, later, group, later, group, first, later, group};
}

void TestProperties::callbacksMayDoAnything()
{
    QFETCH(const Action, action);
    QStringList calls;
    Scene scene;
    Listener first(calls, u"first"_s, [&] { action(scene); });
    Listener later(calls, u"later"_s);
    scene.first = &first;
    scene.later = &later;
    scene.store.registerListener(1, &first);
    scene.store.registerListener(1, &later);
    scene.store.registerGroupListener(7, &later);
    scene.store.setProperty(1, u"a"_s, false);
    scene.store.setProperty(1, u"c"_s, false);
    QTEST(calls, "calls");
}

void TestProperties::unregisteringWaitsForOtherThreads()
{
    Store store;
    auto listener = std::make_unique<SlowListener>();
    store.registerListener(1, listener.get());
    auto setting = std::async(std::launch::async, [&] { store.setProperty(1, u"a"_s, false); });
    listener->called.wait();
    const auto unregister = [&] {
        store.unregisterListener(listener.get());
        return listener->hasReturned;
    };
    auto one = std::async(std::launch::async, unregister);
    auto other = std::async(std::launch::async, unregister); // finds nothing to unregister
    QCOMPARE(other.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
    listener->mayReturn.count_down();
    QVERIFY(one.get() && other.get());
    listener.reset();
    setting.get();
}

void TestProperties::listenersThatUnregisterEachOtherDoNotHang()
{
    Store store;
    QStringList calls[2];
    std::latch bothAreCalled(2);
    Listener *listeners[2];
    const auto unregister = [&](int which) {
        bothAreCalled.arrive_and_wait();
        store.unregisterListener(listeners[which]);
    };
    Listener first(calls[0], u"first"_s, [&] { unregister(1); });
    Listener second(calls[1], u"second"_s, [&] { unregister(0); });
    listeners[0] = &first;
    listeners[1] = &second;
    store.registerListener(1, &first);
    store.registerListener(2, &second);
    auto setting = std::async(std::launch::async, [&] { store.setProperty(1, u"a"_s, false); });
    store.setProperty(2, u"a"_s, false);
    setting.get();
    store.setProperties({1, 2}, {u"b"_s, u"b"_s});
    QCOMPARE(calls[0].size() + calls[1].size(), 2);
}

void TestProperties::manyThreadsAtOnce()
{
    constexpr int Rounds = 2000;
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"f"_s);
    std::atomic<bool> isFine = true;
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([thread, &path, &isFine] {
            PropertiesManager &store = *PropertiesManager::instance();
            store.registerStatusProperty(1, u"Shared"_s, {}, 7);
            store.registerSetupProperty(2, u"Kept"_s, u"0"_s, 7);
            for (int i = 0; i < Rounds; ++i) {
                CountingListener listener;
                store.registerListener(1, &listener);
                store.registerGroupListener(7, &listener);
                store.setProperty(1, QString::number(4 * i + thread), false);
                store.getProperties({1, 2});
                if (i % 100 == thread) {
                    isFine = isFine && store.saveProperties(path) && store.loadProperties(path);
                }
                isFine = isFine && listener.calls >= 2 && store.getPropertyInt(1, -1) >= 0;
                store.unregisterListener(&listener);
            }
        });
    }
    threads.clear();
    QVERIFY(isFine);
    QVERIFY(PropertiesManager::instance()->getPropertyInt(1, -1) >= 4 * (Rounds - 1));
}

QTEST_GUILESS_MAIN(TestProperties)
#include "tst_properties.moc"

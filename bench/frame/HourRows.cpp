#include "HourRows.h"

#include <QFile>

#include <corba/FcpAppCORBA.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <stdexcept>

#include "ObjectCount.h"
#include "files/Waiting.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int EventsPerSecond = 100;
constexpr int EventsOfHour = 3600 * EventsPerSecond;
constexpr int EventsBefore = 20000; // queues and caches have their size then
constexpr int Burst = 10 * EventsPerSecond; // so that no queue holds more than ten seconds

/// The memory that belongs to this process alone, but for what it has from files.
double anonymousMebibytes()
{
    QFile file(u"/proc/self/smaps_rollup"_s);
    if (file.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : file.readAll().split('\n')) {
            if (line.startsWith("Anonymous:")) {
                return line.simplified().split(' ').value(1).toDouble() / 1024;
            }
        }
    }
    throw std::runtime_error("the size of this process is not known");
}

void sendEvents(const DemoWindow &demo, Simulator &simulator, int count)
{
    int arrived = 0;
    const QObject context;
    QObject::connect(demo.link().controller(), &FcpAppCORBA::fcpEventReceived, &context,
                     [&arrived](int) { ++arrived; });
    for (int sent = 0; sent < count; sent += Burst) {
        const int wanted = std::min(sent + Burst, count);
        simulator.sendEvents(wanted - sent);
        await([&] { return arrived == wanted; });
    }
}

struct Growth
{
    double mebibytes;
    int objects;
};

Growth growthOfHour(const DemoWindow &demo, Simulator &simulator, double scale)
{
    sendEvents(demo, simulator, EventsBefore);
    const double before = anonymousMebibytes();
    ObjectCount::start();
    sendEvents(demo, simulator, qRound(EventsOfHour * scale));
    return {anonymousMebibytes() - before, ObjectCount::current()};
}

} // namespace

void addHourRows(Suite &suite, DemoWindow &demo, Simulator &simulator, double scale)
{
    // Measured once for both rows, whichever of them is asked for.
    const auto known = std::make_shared<std::optional<Growth>>();
    const auto growth = [&demo, &simulator, scale, known] {
        if (!*known) {
            *known = growthOfHour(demo, simulator, scale);
        }
        return known->value();
    };
    suite.add({u"growth of memory over an hour of %1 events a second"_s.arg(EventsPerSecond),
               u"MiB"_s, 2, [growth] { return growth().mebibytes; }, 1});
    suite.add({u"objects left over by it"_s, {}, 0, [growth] { return growth().objects; }, 1});
}

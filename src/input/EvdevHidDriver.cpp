#include "EvdevHidDriver.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>
#include <bitset>
#include <cerrno>
#include <climits>
#include <limits>

#include <fcntl.h>
#include <linux/input.h>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

enum { Failed = 1 };

constexpr int WaitingTimeMs = 200;
constexpr quint16 ButtonUp = 3;
constexpr quint16 ButtonDown = 1;

template<int Count>
struct Bits
{
    std::array<unsigned long, Count / (sizeof(unsigned long) * CHAR_BIT) + 1> words = {};

    bool has(int bit) const
    {
        constexpr int width = sizeof(unsigned long) * CHAR_BIT;
        return (words[size_t(bit / width)] >> (bit % width) & 1UL) != 0;
    }
    int count() const
    {
        int sum = 0;
        for (const unsigned long word : words) {
            sum += int(std::bitset<sizeof word * CHAR_BIT>(word).count());
        }
        return sum;
    }
};

/// Keyboards and mice have axes, too.
constexpr int MostKeysBesideAWheel = 1;

bool isPartOfAKeypad(int fd)
{
    Bits<REL_CNT> axes;
    Bits<KEY_CNT> keys;
    const bool hasAxes = ::ioctl(fd, EVIOCGBIT(EV_REL, sizeof axes.words), axes.words.data()) >= 0;
    const bool hasKeys = ::ioctl(fd, EVIOCGBIT(EV_KEY, sizeof keys.words), keys.words.data()) >= 0;
    if (hasAxes && axes.count() > 0) {
        const bool isPointer = axes.has(REL_X) && axes.has(REL_Y);
        return !isPointer && (!hasKeys || keys.count() <= MostKeysBesideAWheel);
    }
    return hasKeys && keys.count() == 1 && (keys.has(BTN_0) || keys.has(KEY_SELECT));
}

/// Whether an axis counts detents. The kernel reports the turns of many wheels twice, the second
/// time in 120ths of a detent.
bool isWheel(int axis)
{
    return axis != REL_WHEEL_HI_RES && axis != REL_HWHEEL_HI_RES;
}

} // namespace

struct EvdevHidDriver::Device
{
    Device(const QString &deviceName, int descriptor)
        : name(deviceName)
        , fd(descriptor)
    {
    }
    ~Device() { ::close(fd); }
    Device(const Device &) = delete;
    Device &operator=(const Device &) = delete;

    const QString name;
    const int fd;
    bool isGone = false;
    bool isPressed = false;
    bool hasLost = false; ///< events; those up to the next report are incomplete
    int detents = 0;
};

EvdevHidDriver::EvdevHidDriver()
    : EvdevHidDriver(QStringLiteral("/dev/input"), isPartOfAKeypad)
{
}

EvdevHidDriver::EvdevHidDriver(const QString &folder, Recognizer isKeypad)
    : m_folder(folder)
    , m_isKeypad(isKeypad)
{
}

EvdevHidDriver::~EvdevHidDriver()
{
    EvdevHidDriver::close();
}

int EvdevHidDriver::prepare()
{
    return Success;
}

int EvdevHidDriver::open()
{
    m_watch = ::inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
    // A device becomes readable a moment after it was made, which changes its attributes.
    constexpr quint32 changes = IN_CREATE | IN_ATTRIB | IN_MOVED_TO;
    if (m_watch < 0
        || ::inotify_add_watch(m_watch, QFile::encodeName(m_folder).constData(), changes) < 0) {
        close();
        return Failed;
    }
    return Success;
}

int EvdevHidDriver::setActive(bool on)
{
    m_devices.clear();
    m_reports.clear();
    if (on) {
        addDevices();
    }
    return Success;
}

int EvdevHidDriver::close()
{
    m_devices.clear();
    if (m_watch >= 0) {
        ::close(m_watch);
        m_watch = -1;
    }
    return Success;
}

int EvdevHidDriver::listen(Report &report)
{
    if (m_reports.empty()) {
        wait();
    }
    if (m_reports.empty()) {
        return NothingYet;
    }
    report = m_reports.front();
    m_reports.pop_front();
    return Success;
}

void EvdevHidDriver::wait()
{
    std::vector<pollfd> waiting = {{m_watch, POLLIN, 0}};
    for (const auto &device : m_devices) {
        waiting.push_back({device->fd, POLLIN, 0});
    }
    if (::poll(waiting.data(), waiting.size(), WaitingTimeMs) <= 0) {
        return;
    }
    for (size_t i = 0; i < m_devices.size(); ++i) {
        if (waiting[i + 1].revents != 0) {
            readDevice(*m_devices[i]);
        }
    }
    std::erase_if(m_devices, [](const auto &device) { return device->isGone; });
    if (waiting.front().revents != 0) {
        readChanges();
    }
}

void EvdevHidDriver::addDevices()
{
    for (const QString &name : QDir(m_folder).entryList(QDir::System | QDir::Files)) {
        addDevice(name);
    }
}

void EvdevHidDriver::addDevice(const QString &name)
{
    const bool isKnown = std::any_of(m_devices.cbegin(), m_devices.cend(),
                                     [&](const auto &device) { return device->name == name; });
    if (isKnown || !name.startsWith(QLatin1String("event"))) {
        return;
    }
    const QByteArray path = QFile::encodeName(m_folder + u'/' + name);
    const int fd = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        return;
    }
    auto device = std::make_unique<Device>(name, fd);
    if (m_isKeypad(fd)) {
        m_devices.push_back(std::move(device));
    }
}

/// What has changed in the folder matters less than what is there now.
void EvdevHidDriver::readChanges()
{
    char changes[4096];
    while (::read(m_watch, changes, sizeof changes) > 0) { }
    addDevices();
}

void EvdevHidDriver::readDevice(Device &device)
{
    std::array<input_event, 64> events;
    ssize_t got = 0;
    while ((got = ::read(device.fd, events.data(), sizeof events)) > 0) {
        for (size_t i = 0; i < size_t(got) / sizeof(input_event); ++i) {
            take(device, events[i]);
        }
    }
    if (got < 0 && (errno == EAGAIN || errno == EINTR)) {
        return;
    }
    device.isGone = true;
    if (device.isPressed) {
        m_reports.push_back({Button, ButtonUp});
    }
}

void EvdevHidDriver::take(Device &device, const input_event &event)
{
    if (event.type == EV_SYN && event.code == SYN_DROPPED) {
        device.hasLost = true;
    } else if (event.type == EV_SYN && event.code == SYN_REPORT) {
        if (!device.hasLost) {
            reportWheel(device.detents);
        }
        device.detents = 0;
        device.hasLost = false;
    } else if (event.type == EV_REL && isWheel(event.code)) {
        device.detents += event.value;
    } else if (event.type == EV_KEY && device.isPressed != (event.value != 0)) {
        device.isPressed = event.value != 0;
        m_reports.push_back({Button, device.isPressed ? ButtonDown : ButtonUp});
    }
}

void EvdevHidDriver::reportWheel(int detents)
{
    if (detents != 0) {
        constexpr int most = std::numeric_limits<qint16>::max();
        m_reports.push_back({Wheel, static_cast<quint16>(std::clamp(detents, -most, most))});
    }
}

#pragma once

#include <QString>

#include <deque>
#include <memory>
#include <vector>

#include "VexHidDriver.h"

struct input_event;

/**
 * A keypad among the kernel's input devices (/dev/input/event*): a rotary encoder, which sends
 * relative events, and its push button, which sends a key.
 *
 * A device with a relative axis is the wheel unless it has both REL_X and REL_Y, as a mouse has;
 * its keys are the push button. The push button may also be a device of its own, with BTN_0 or
 * KEY_SELECT as its only key. Devices that come and go are followed; one that goes while its button
 * is held down reports it let go. open() fails when the folder can't be watched.
 */
class VEX_EXPORT EvdevHidDriver : public VexHidDriver
{
public:
    /** Says of an open device whether it is (a part of) the keypad. */
    using Recognizer = bool (*)(int fd);

    EvdevHidDriver();
    EvdevHidDriver(const QString &folder, Recognizer isKeypad);
    ~EvdevHidDriver() override;

    int prepare() override;
    int open() override;
    int setActive(bool on) override;
    int listen(Report &report) override;
    int close() override;

private:
    struct Device;

    void addDevices();
    void addDevice(const QString &name);
    void readChanges();
    void readDevice(Device &device);
    void take(Device &device, const input_event &event);
    void reportWheel(int detents);
    void wait();

    const QString m_folder;
    const Recognizer m_isKeypad;
    int m_watch = -1;
    std::vector<std::unique_ptr<Device>> m_devices;
    std::deque<Report> m_reports;
};

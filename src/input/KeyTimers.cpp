#include "KeyTimers.h"

#include <QTimer>

namespace {

constexpr int FirstRepeatMs = 900;
constexpr int RepeatMs = 100;
constexpr int ReleasePollMs = 10;

} // namespace

void KeyTimers::Later::operator()(QTimer *timer) const
{
    timer->stop();
    timer->disconnect();
    timer->deleteLater();
}

KeyTimers::KeyTimers(QObject *parent)
    : QObject(parent)
{
}

KeyTimers::~KeyTimers() = default;

void KeyTimers::start(Timer &timer, const char *name, int interval, void (KeyTimers::*timeout)())
{
    if (!timer) {
        timer.reset(new QTimer(this));
        timer->setObjectName(QLatin1StringView(name));
        timer->setSingleShot(true);
        connect(timer.get(), &QTimer::timeout, this, timeout);
    }
    timer->start(interval);
}

void KeyTimers::start(Key key, int interval)
{
    if (key == Up) {
        start(m_up, "upTimer", interval, &KeyTimers::upRepeats);
    } else {
        start(m_down, "downTimer", interval, &KeyTimers::downRepeats);
    }
}

void KeyTimers::press(Key key)
{
    start(key, FirstRepeatMs);
}

void KeyTimers::repeat(Key key)
{
    start(key, RepeatMs);
}

void KeyTimers::release(Key key)
{
    (key == Up ? m_up : m_down).reset();
}

void KeyTimers::pollRelease()
{
    start(m_release, "releaseTimer", ReleasePollMs, &KeyTimers::releasePolled);
}

void KeyTimers::releaseAll()
{
    m_up.reset();
    m_down.reset();
    m_release.reset();
}

#pragma once

#include <QObject>

#include <memory>

class QTimer;

/**
 * The timers behind the held keys up and down: they repeat, at first after a while and then fast,
 * and somebody has to look whether they are still held, since a finger that has slid off a key does
 * not release it. A timer exists only as long as it is needed.
 */
class KeyTimers : public QObject
{
    Q_OBJECT

public:
    enum Key { Up, Down };

    explicit KeyTimers(QObject *parent);
    ~KeyTimers() override;

    /** The key was pressed: it repeats after 900 ms. */
    void press(Key key);
    /** It goes on: it repeats after 100 ms. */
    void repeat(Key key);
    void release(Key key);
    /** Looks after 10 ms whether keys are still held. */
    void pollRelease();
    void releaseAll();

Q_SIGNALS:
    void upRepeats();
    void downRepeats();
    void releasePolled();

private:
    /// A timer may end within its own timeout.
    struct Later
    {
        void operator()(QTimer *timer) const;
    };
    using Timer = std::unique_ptr<QTimer, Later>;

    void start(Timer &timer, const char *name, int interval, void (KeyTimers::*timeout)());
    void start(Key key, int interval);

    Timer m_up;
    Timer m_down;
    Timer m_release;
};

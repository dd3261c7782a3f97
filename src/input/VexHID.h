#pragma once

#include <QObject>
#include <QThread>

#include <atomic>
#include <memory>

#include <VexExport.h>

class VexHidDriver;

/**
 * The hardware keypad: a wheel and a push button, as signals.
 *
 * A thread of its own listens to the driver; the signals are emitted there, so receivers on the GUI
 * thread get them queued. Without a keypad's driver it does nothing, and says nothing.
 */
class VEX_EXPORT VexHID : public QObject
{
    Q_OBJECT

public:
    /** Made, and listening, from the first call on. GUI thread, as all of the static methods. */
    static VexHID *Instance();
    /**
     * Stops listening and deletes the instance. It blocks until the driver's listening call
     * returns, a fraction of a second; without an instance it does nothing. At the application's
     * end it happens by itself.
     */
    static void Destroy();

    /**
     * The driver of the next instance, instead of VexHidDriver::forThisSystem(); for tests and
     * demonstrations.
     */
    static void setDriver(std::unique_ptr<VexHidDriver> driver);

    /** Whether it listens: false before it has begun, without a driver, and after it has failed. */
    bool isListening() const { return m_loopState == Running; }

Q_SIGNALS:
    /** The push button, whose key is 0x7A. */
    void KeyPressed(ulong key);
    void KeyReleased(ulong key);
    /**
     * The wheel was turned by @p numSteps detents, negative ones backward. @p modeOverride is 0: a
     * turn of this wheel changes a value, whatever the field's own wheel would do.
     */
    void AdvanceWheel(int numSteps, int modeOverride);

private Q_SLOTS:
    void _Loop();

private:
    enum LoopState { Idle, Running, StopRequested };

    explicit VexHID(std::unique_ptr<VexHidDriver> driver);
    ~VexHID() override;

    void listenUntilStopped();
    void buttonChanged(quint16 word);

    static VexHID *m_Instance;
    static std::unique_ptr<VexHidDriver> s_nextDriver;

    const std::unique_ptr<VexHidDriver> m_driver;
    QThread m_thread;
    std::atomic<int> m_loopState = Idle;
    quint16 m_buttonWord;
};

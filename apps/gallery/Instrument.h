#pragma once

#include <QProcess>
#include <QTemporaryDir>

class FcpAppCORBA;

/**
 * What the pages with files show: a simulated controller in a process of its own, which is started
 * when the first of them wants it, and a local folder. Both go when the application does.
 */
class Instrument
{
public:
    /// Null when there is no simulator beside this program, or no ORB can be made. The link is made
    /// anew if it was lost.
    static FcpAppCORBA *controller();
    /// A folder of this computer with something in it.
    static QString localFolder();
    /// The local path of what is on the instrument.
    static QString storage(const QString &path);
    /// Ends the simulator, as if its power had failed, until controller() is asked for again.
    static void pullPlug();

    Instrument();
    ~Instrument();

private:
    static Instrument &instance();
    void makeFiles() const;
    bool startSimulator();
    bool connectLink();

    QTemporaryDir m_directory;
    QProcess m_simulator;
    quint16 m_port = 0;
};

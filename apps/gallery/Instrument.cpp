#include "Instrument.h"

#include <corba/BiDirectionalCORBA.h>
#include <corba/FcpAppCORBA.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <csignal>
#include <memory>
#include <sys/prctl.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int patienceMs = 5000;
constexpr qint64 KiB = 1024;

std::unique_ptr<Instrument> theInstrument;

// Without blocks of its own on the disk.
void makeFile(const QString &path, qint64 size)
{
    QDir().mkpath(path.first(path.lastIndexOf(u'/')));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.resize(size);
    }
}

} // namespace

Instrument &Instrument::instance()
{
    if (!theInstrument) {
        theInstrument = std::make_unique<Instrument>();
        theInstrument->makeFiles();
        qAddPostRoutine([] { theInstrument.reset(); });
    }
    return *theInstrument;
}

Instrument::Instrument()
{
    // Whatever becomes of the gallery, the simulator goes with it.
    m_simulator.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    m_simulator.setProcessChannelMode(QProcess::SeparateChannels);
}

Instrument::~Instrument()
{
    delete FcpAppCORBA::instance();
    BiDirectionalCORBA::deleteInstance();
    m_simulator.kill();
    m_simulator.waitForFinished(patienceMs);
}

void Instrument::makeFiles() const
{
    const QString traces = storage(u"/Internal/Traces"_s);
    const QString home = m_directory.filePath(u"technician"_s);
    for (int i = 1; i <= 12; ++i) {
        makeFile(traces + u"/ring-nord-%1.trc"_s.arg(i), (60 + 37 * i) * KiB);
    }
    for (int i = 9; i <= 17; ++i) {
        makeFile(home + u"/ring-nord-%1.trc"_s.arg(i), (80 + 41 * i) * KiB);
    }
    makeFile(home + u"/ring-nord-survey.trc"_s, 96 * KiB * KiB);
    makeFile(home + u"/acceptance of the line between Nord station and the exchange.pdf"_s,
             812 * KiB);
    makeFile(home + u"/Calibration"_s, 3 * KiB);
    makeFile(home + u"/Reports/2026-03.pdf"_s, 700 * KiB);
    makeFile(home + u"/Setups/otn-100g.set"_s, 4 * KiB);
    makeFile(traces + u"/Calibration/laser.cal"_s, 2 * KiB);
    makeFile(storage(u"/Internal/Setups/default.set"_s), 4 * KiB);
    makeFile(storage(u"/Remote/Reports/2026-02.pdf"_s), 690 * KiB);
}

QString Instrument::storage(const QString &path)
{
    return instance().m_directory.filePath(u"instrument"_s) + path;
}

QString Instrument::localFolder()
{
    return instance().m_directory.filePath(u"technician"_s);
}

FcpAppCORBA *Instrument::controller()
{
    Instrument &self = instance();
    const bool isThere = self.startSimulator() && self.connectLink();
    return isThere ? FcpAppCORBA::instance() : nullptr;
}

bool Instrument::startSimulator()
{
    if (m_simulator.state() == QProcess::Running) {
        return true;
    }
    m_simulator.start(
        QCoreApplication::applicationDirPath() + u"/fcp-sim"_s,
        {u"--port"_s, QString::number(m_port), u"--root"_s, storage({}), u"--latency"_s, u"4"_s});
    const QByteArray announcement = "listening on port ";
    QByteArray said;
    while (!said.contains(announcement) || !said.endsWith('\n')) {
        if (!m_simulator.waitForReadyRead(patienceMs)) {
            return false;
        }
        said += m_simulator.readAllStandardOutput();
    }
    const auto at = said.indexOf(announcement) + announcement.size();
    m_port = said.mid(at, said.indexOf('\n', at) - at).toUShort();
    return true;
}

bool Instrument::connectLink()
{
    if (!BiDirectionalCORBA::instance()) {
        if (!BiDirectionalCORBA::initializeInstance()) {
            return false;
        }
        FcpAppCORBA::initializeInstance(BiDirectionalCORBA::instance());
    }
    FcpAppCORBA *proxy = FcpAppCORBA::instance();
    return proxy->isConnected() || proxy->connectToFCP(u"127.0.0.1"_s, m_port);
}

void Instrument::pullPlug()
{
    instance().m_simulator.kill();
    instance().m_simulator.waitForFinished(patienceMs);
}

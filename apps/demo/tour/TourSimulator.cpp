#include "TourSimulator.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <sys/prctl.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 90000; // milliseconds

const auto instrument = R"({
    "controller": { "model": "Field Tester 200", "serial": "FT2-00417" },
    "modules": [ { "id": 1, "type": "10G", "name": "10G Multiservice Module",
                   "serial": "MSM-10-0231", "ports": [ { "id": 1 } ] } ],
    "tests": [ { "name": "BERT", "runMs": 0 }, { "name": "Level only", "runMs": 0 } ]
})"_ba;

} // namespace

TourSimulator::~TourSimulator()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.terminate();
        if (!m_process.waitForFinished(patience)) {
            kill();
        }
    }
}

QString TourSimulator::start()
{
    const QString program = QCoreApplication::applicationDirPath() + u"/fcp-sim"_s;
    if (!QFileInfo(program).isExecutable()) {
        return u"there is no %1"_s.arg(program);
    }
    // A tour that is killed takes its simulator with it.
    m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_process.start(program,
                    {u"--root"_s, m_folder.filePath(u"root"_s), u"--port"_s,
                     QString::number(m_port), u"--instrument"_s, writeInstrument()});
    QByteArray output;
    const auto words = "listening on port "_ba;
    while (!output.contains(words) || !output.endsWith('\n')) {
        if (!m_process.waitForReadyRead(patience)) {
            return u"%1 does not come up: %2"_s.arg(
                program, QString::fromUtf8(m_process.readAllStandardError()));
        }
        output += m_process.readAllStandardOutput();
    }
    m_port = output.sliced(output.indexOf(words) + words.size()).trimmed().toInt();
    return {};
}

QString TourSimulator::writeInstrument() const
{
    const QString path = m_folder.filePath(u"instrument.json"_s);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(instrument);
    }
    return path;
}

QString TourSimulator::local(const QString &remotePath) const
{
    return m_folder.filePath(u"root"_s) + remotePath;
}

bool TourSimulator::command(const QByteArray &line)
{
    m_process.readAllStandardOutput();
    m_process.write(line + '\n');
    QByteArray answer;
    while (!answer.contains('\n') && m_process.waitForReadyRead(patience)) {
        answer += m_process.readAllStandardOutput();
    }
    return answer.startsWith("ok");
}

void TourSimulator::kill()
{
    m_process.kill();
    m_process.waitForFinished(patience);
}

#include "SimulatorProcess.h"

using namespace Qt::StringLiterals;

SimulatorProcess::SimulatorProcess(quint16 publishedPort, const QStringList &moreArguments)
    : ControllerProcess(QStringLiteral(VEX_TEST_SIMULATOR), {}, publishedPort)
{
    setArguments(QStringList {u"--root"_s, root()} + moreArguments);
}

QString SimulatorProcess::root() const
{
    return m_directory.path();
}

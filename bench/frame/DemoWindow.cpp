#include "DemoWindow.h"

#include <SimulatedSource.h>

#include "files/Waiting.h"

using namespace Qt::StringLiterals;

DemoWindow::DemoWindow(const QDir &directory, quint16 port)
    : m_settings(directory.filePath(u"settings"_s))
    , m_meter(std::make_unique<SimulatedSource>())
    , m_window(m_words, m_settings, m_meter, m_link, directory.filePath(u"results"_s))
{
    m_window.resize(Screen);
    m_window.show();
    m_link.start(u"127.0.0.1"_s, port);
    await([this] { return m_link.isUp(); });
}

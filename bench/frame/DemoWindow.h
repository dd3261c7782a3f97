#pragma once

#include <QDir>

#include <ControllerLink.h>
#include <Meter.h>
#include <MeterWindow.h>
#include <Settings.h>

/** The level meter in this process, shown at 1280 by 800 with its link up. */
class DemoWindow
{
public:
    static constexpr QSize Screen {1280, 800};

    /** @p port is that of a simulator; settings and results go into @p directory. */
    DemoWindow(const QDir &directory, quint16 port);

    MeterWindow &window() { return m_window; }
    Settings &settings() { return m_settings; }
    const ControllerLink &link() const { return m_link; }

private:
    Settings m_settings;
    ControllerLink m_link;
    Meter m_meter;
    QVector<QString> m_words;
    MeterWindow m_window;
};

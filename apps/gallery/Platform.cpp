#include "Platform.h"

#include "Options.h"

#include <QApplication>
#include <QFont>
#include <QStyleFactory>

using namespace Qt::Literals::StringLiterals;

namespace {

QtMessageHandler qtMessageHandler = nullptr;

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

// A platform that somebody chose is kept.
bool mayUseOffscreen()
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    return platform.isEmpty() || platform == "offscreen";
}

// The platform says of each window what it can't do with it.
void dropPlatformTalk(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.startsWith("This plugin does not support"_L1)) {
        qtMessageHandler(type, context, text);
    }
}

} // namespace

Platform::Platform(const Options &options)
{
    const bool grabs = !options.grabDirectory.isEmpty();
    if (grabs || !qFuzzyCompare(options.scale, 1.0)) {
        qputenv("QT_SCALE_FACTOR", QByteArray::number(options.scale));
    }
    if (grabs && mayUseOffscreen()) {
        useOffscreen(options.scale);
    } else if (!hasDisplay()) {
        m_error = u"there is no display; --grab DIR makes pictures without one"_s;
    }
}

// Without a description of its screen the platform has one of 800 by 800, where dialogs are pushed
// aside.
void Platform::useOffscreen(double scale)
{
    const QString screen = uR"({"screens": [{"name": "panel", "x": 0, "y": 0,
        "width": %1, "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})"_s;
    const QByteArray text = screen.arg(qRound(1280 * scale)).arg(qRound(800 * scale)).toUtf8();
    if (!m_screen.open() || m_screen.write(text) != text.size() || !m_screen.flush()) {
        m_error = u"can't write %1: %2"_s.arg(m_screen.fileName(), m_screen.errorString());
    }
    qtMessageHandler = qInstallMessageHandler(dropPlatformTalk);
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + m_screen.fileName().toUtf8());
}

void Platform::setLook()
{
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QFont font(u"DejaVu Sans"_s);
    font.setPointSizeF(11);
    QApplication::setFont(font);
}

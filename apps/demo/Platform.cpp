#include "Platform.h"

#include <QApplication>
#include <QFont>
#include <QStyleFactory>

using namespace Qt::StringLiterals;

namespace {

QtMessageHandler qtMessageHandler = nullptr;

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

/// The platform says of each window what it can't do with it.
void dropPlatformTalk(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.startsWith("This plugin does not support"_L1)) {
        qtMessageHandler(type, context, text);
    }
}

} // namespace

Platform::Platform(bool isTour, QSize size)
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (isTour && (platform.isEmpty() || platform == "offscreen")) {
        useOffscreen(size);
    } else if (!hasDisplay()) {
        m_error = u"there is no display; --tour DIR needs none"_s;
    }
}

/// Without a description of its screen the platform has one of 800 by 800.
void Platform::useOffscreen(QSize size)
{
    const QByteArray screen = uR"({"screens": [{"name": "panel", "x": 0, "y": 0, "width": %1,
        "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})"_s.arg(size.width())
                                  .arg(size.height())
                                  .toUtf8();
    if (!m_screen.open() || m_screen.write(screen) != screen.size() || !m_screen.flush()) {
        m_error = u"can't write %1: %2"_s.arg(m_screen.fileName(), m_screen.errorString());
    }
    qtMessageHandler = qInstallMessageHandler(dropPlatformTalk);
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + m_screen.fileName().toUtf8());
}

void Platform::setLook()
{
    // The one style that takes all its colours from the palette.
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QFont font(u"DejaVu Sans"_s);
    font.setPointSizeF(11);
    QApplication::setFont(font);
}

#pragma once

#include <QSize>
#include <QString>
#include <QTemporaryFile>

/// What has to be settled before there is an application object; exists as long as that one.
class Platform
{
public:
    /// @p isTour: no display is needed, and the screen is of that size.
    Platform(bool isTour, QSize size);

    /// Why nothing can be shown, in words; empty when it can.
    QString error() const { return m_error; }
    /// Style and font, the same on every machine.
    static void setLook();

private:
    void useOffscreen(QSize size);

    QTemporaryFile m_screen;
    QString m_error;
};

#pragma once

#include <QString>
#include <QTemporaryFile>

struct Options;

/// What has to be settled before there is an application object; exists as long as that one.
class Platform
{
public:
    explicit Platform(const Options &options);

    /// Why the gallery can't be shown, in words; empty when it can.
    QString error() const { return m_error; }

    /// The same look on every machine, so that pictures can be compared.
    static void setLook();

private:
    void useOffscreen(double scale);

    QTemporaryFile m_screen;
    QString m_error;
};

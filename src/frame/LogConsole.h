#pragma once

#include <QByteArray>

/** The standard error output, which may be a pipe that nobody reads: lines are left out then. */
class LogConsole
{
public:
    /** @p lines with their ends. */
    void write(const QByteArray &lines);

private:
    bool isReady();
    bool writeSome(QByteArrayView bytes);

    bool m_stuck = false;
};

#pragma once

#include <QObject>

#include <optional>

#include "MessageLog.h"

/**
 * A test class whose test functions fail on a warning that they did not announce.
 *
 * A test class that has an init() or cleanup() of its own calls this one's there.
 */
class GuardedTest : public QObject
{
    Q_OBJECT

protected:
    MessageLog &messages() { return *m_messages; }

protected Q_SLOTS:
    void init();
    void cleanup();

private:
    std::optional<MessageLog> m_messages;
};

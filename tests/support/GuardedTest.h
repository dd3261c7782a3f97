#pragma once

#include <QObject>

#include <optional>

#include "MessageLog.h"

/**
 * A test class whose test functions fail on a warning that they did not announce.
 *
 * A test class that derives from it must not have init() and cleanup() of its own.
 */
class GuardedTest : public QObject
{
    Q_OBJECT

protected:
    MessageLog &messages() { return *m_messages; }

private Q_SLOTS:
    void init();
    void cleanup();

private:
    std::optional<MessageLog> m_messages;
};

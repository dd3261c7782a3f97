#pragma once

#include <QMutex>
#include <QRegularExpression>
#include <QStringList>
#include <QVector>

/**
 * Hears every message that is logged while it exists, from any thread. A warning that the test did
 * not announce is a fault of the code under test.
 *
 * There is one at a time; QTest's own handler still gets everything that was not announced.
 */
class MessageLog
{
public:
    MessageLog();
    ~MessageLog();

    MessageLog(const MessageLog &) = delete;
    MessageLog &operator=(const MessageLog &) = delete;

    /** Announces warnings that match. */
    void allow(const QString &pattern);
    /** The warnings and worse that nobody announced. */
    QStringList unannounced() const;
    /** The debug texts of a logging category, which must be enabled. */
    QStringList debugTexts(const QByteArray &category) const;

private:
    struct Entry
    {
        QtMsgType type;
        QByteArray category;
        QString text;
    };

    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text);
    bool isAnnounced(const QString &text) const;

    mutable QMutex m_mutex;
    QVector<Entry> m_entries;
    QVector<QRegularExpression> m_announced;
    QtMessageHandler m_previous;
    static MessageLog *s_current;
};

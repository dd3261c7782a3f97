#include "MessageLog.h"

#include <QMutexLocker>

#include <algorithm>

MessageLog *MessageLog::s_current = nullptr;

MessageLog::MessageLog()
{
    Q_ASSERT(!s_current);
    s_current = this;
    m_previous = qInstallMessageHandler(&MessageLog::handle);
}

MessageLog::~MessageLog()
{
    qInstallMessageHandler(m_previous);
    s_current = nullptr;
}

void MessageLog::allow(const QString &pattern)
{
    const QMutexLocker lock(&m_mutex);
    m_announced.append(QRegularExpression(pattern));
}

QStringList MessageLog::unannounced() const
{
    const QMutexLocker lock(&m_mutex);
    QStringList result;
    for (const Entry &entry : m_entries) {
        if ((entry.type == QtWarningMsg || entry.type == QtCriticalMsg)
            && !isAnnounced(entry.text)) {
            result.append(QString::fromUtf8(entry.category) + QLatin1String(": ") + entry.text);
        }
    }
    return result;
}

QStringList MessageLog::debugTexts(const QByteArray &category) const
{
    const QMutexLocker lock(&m_mutex);
    QStringList result;
    for (const Entry &entry : m_entries) {
        if (entry.type == QtDebugMsg && entry.category == category) {
            result.append(entry.text);
        }
    }
    return result;
}

bool MessageLog::isAnnounced(const QString &text) const
{
    return std::any_of(
        m_announced.cbegin(), m_announced.cend(),
        [&](const QRegularExpression &pattern) { return pattern.match(text).hasMatch(); });
}

void MessageLog::handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    MessageLog &log = *s_current;
    const QMutexLocker lock(&log.m_mutex);
    log.m_entries.append({type, context.category, text});
    if (type == QtDebugMsg || log.isAnnounced(text)) {
        return;
    }
    log.m_previous(type, context, text);
}

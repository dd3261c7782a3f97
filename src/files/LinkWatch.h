#pragma once

#include <QObject>

#include <memory>

class FcpAppCORBA;
class QTimer;

/**
 * Knows whether the link to the instrument is there, and notices its return. Without a controller
 * it is never lost. It makes no call of its own but for retry().
 */
class LinkWatch : public QObject
{
    Q_OBJECT

public:
    /** @p controller is not owned, must outlive this and any retry(), and may be null. */
    LinkWatch(FcpAppCORBA *controller, QObject *parent);
    ~LinkWatch() override;

    bool isLost() const { return m_lost; }
    /** Whether a retry() is under way. */
    bool isRetrying() const;

public Q_SLOTS:
    /** Connects anew on another thread, unless somebody is at it already. */
    void retry();
    /** Looks at once whether the link is there again. */
    void look();

Q_SIGNALS:
    void lost();
    void restored();
    /** A retry() has ended without a link. */
    void retryFailed(const QString &reason);

private:
    void lose();
    void endRetry();

    FcpAppCORBA *m_controller;
    QTimer *m_timer;
    bool m_lost = false;
    bool m_retrying = false;
};

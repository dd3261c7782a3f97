#pragma once

#include <QElapsedTimer>
#include <QString>

/**
 * One line on standard error that tells how far a transfer is, redrawn in place: name, bar,
 * percent, bytes, rate, remaining time. Without a terminal there it does nothing.
 */
class ProgressBar
{
public:
    explicit ProgressBar(bool wanted);

    bool isEnabled() const { return m_enabled; }

    /// @p total is -1 when it is not known.
    void start(const QString &label, qint64 total);
    void update(qint64 done);
    /// Likewise, but draws only when the last time is a while ago.
    void updateNowAndThen(qint64 done);
    /// Draws the line for the last time, with the average rate and the time it took.
    void finish(qint64 done);
    /// Takes the line away.
    void clear();

private:
    /// An average that forgets what is some seconds old.
    class Rate
    {
    public:
        void update(qint64 done, qint64 nanoseconds);
        double bytesPerSecond() const;

    private:
        qint64 m_lastDone = 0;
        qint64 m_lastTime = 0;
        double m_bytes = 0; // and the time they took, both fading
        double m_seconds = 0;
    };

    QString line(int width, qint64 done, double bytesPerSecond, const QString &time) const;
    void draw(qint64 done, double bytesPerSecond, const QString &time);

    bool m_enabled;
    bool m_drawn = false;
    QString m_label;
    qint64 m_total = -1;
    QElapsedTimer m_clock;
    QElapsedTimer m_sinceDrawn;
    Rate m_rate;
};

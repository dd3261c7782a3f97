#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>

class QString;
class Simulator;

/**
 * Obeys commands on the standard input. Each answers with one line on the standard output that
 * begins with "ok", or with a complaint on the standard error. The end of the input changes
 * nothing.
 */
class Console : public QObject
{
    Q_OBJECT

public:
    explicit Console(Simulator &simulator);

private:
    void read();
    void obey(const QByteArray &line);
    /** @return the answer; empty: @p error says why not */
    QByteArray run(const QList<QByteArray> &words, QByteArray &error);
    QByteArray sendEvent(const QList<QByteArray> &words, QByteArray &error);
    QByteArray changeModule(const QList<QByteArray> &words, QByteArray &error);
    QByteArray clients() const;

    Simulator &m_simulator;
    QSocketNotifier m_notifier;
    QByteArray m_buffer;
};

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
    /** Each returns the answer; when it fails, @p error says why instead. */
    QByteArray run(const QList<QByteArray> &words, QByteArray &error);
    QByteArray sendEvent(const QList<QByteArray> &words, QByteArray &error);
    QByteArray sendShutDown(const QList<QByteArray> &words, QByteArray &error);
    QByteArray listClients(const QList<QByteArray> &words, QByteArray &error);
    QByteArray addFault(const QList<QByteArray> &words, QByteArray &error);
    QByteArray listFaults(const QList<QByteArray> &words, QByteArray &error);
    QByteArray setLatency(const QList<QByteArray> &words, QByteArray &error);
    QByteArray changeModule(const QList<QByteArray> &words, QByteArray &error);
    QByteArray help(const QList<QByteArray> &words, QByteArray &error);
    QByteArray quit(const QList<QByteArray> &words, QByteArray &error);

    Simulator &m_simulator;
    QSocketNotifier m_notifier;
    QByteArray m_buffer;
};

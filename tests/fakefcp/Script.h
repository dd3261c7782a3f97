#pragma once

#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QMutex>

#include <algorithm>
#include <functional>

#include <FcpInterfaces.hh>

/**
 * What one call is answered with. A text in JSON stands for the bytes of the same number, so that
 * any bytes can be sent; {"size": n, "seed": s} stands for pattern bytes. Missing values are zero.
 */
class Answer
{
public:
    explicit Answer(const QJsonObject &json)
        : m_json(json)
    {
    }

    CORBA::Long number(const char *name = "result") const;
    CORBA::LongLong longNumber(const char *name) const;
    bool flag(const char *name = "result") const;
    char *text(const char *name = "result") const;
    /** Fills a sequence of char or octet. */
    template<typename Sequence>
    void fill(const char *name, Sequence &sequence) const
    {
        const QByteArray content = bytes(name);
        sequence.length(CORBA::ULong(content.size()));
        std::copy(content.cbegin(), content.cend(), sequence.get_buffer());
    }
    FileSystemResult fileResult() const { return FileSystemResult(number()); }
    bool has(const char *name) const { return m_json.contains(QLatin1String(name)); }
    /** The entries of the array @p name, each an answer in itself. */
    QVector<Answer> list(const char *name) const;

private:
    QByteArray bytes(const char *name) const;

    QJsonObject m_json;
};

/** The answers that the test has asked for, and the log of the calls that came. */
class Script
{
public:
    explicit Script(const QString &logFile);

    /** The connection that this thread's calls come on from now on. */
    static void noteConnection(const QString &connection);

    /** {"operation": name, "answers": [...]}: given one after another, the last one for good. */
    void setAnswers(const QJsonObject &command);

    /**
     * Logs the call, unless the answer is "quiet", and gives its answer, after the answer's "delay"
     * in milliseconds. Raises the system exception that the answer's "raise" names.
     */
    Answer play(const char *operation, const QJsonArray &arguments);
    /** Likewise, for arguments that are costly to describe. */
    Answer playLazily(const char *operation, const std::function<QJsonArray()> &arguments);

private:
    QJsonObject nextAnswer(const QString &operation);

    QMutex m_mutex;
    QFile m_log;
    QHash<QString, QJsonArray> m_answers;
};

#include "Script.h"

#include <QJsonDocument>
#include <QMutexLocker>
#include <QThread>

#include "support/Pattern.h"

using namespace Qt::StringLiterals;

namespace {

thread_local QString t_connection;

void raise(const QString &name)
{
    if (name == u"COMM_FAILURE"_s) {
        throw CORBA::COMM_FAILURE();
    }
    if (name == u"TRANSIENT"_s) {
        throw CORBA::TRANSIENT();
    }
    if (name == u"OBJECT_NOT_EXIST"_s) {
        throw CORBA::OBJECT_NOT_EXIST();
    }
    if (name == u"NO_PERMISSION"_s) {
        throw CORBA::NO_PERMISSION();
    }
    throw CORBA::UNKNOWN();
}

} // namespace

CORBA::Long Answer::number(const char *name) const
{
    return CORBA::Long(longNumber(name));
}

CORBA::LongLong Answer::longNumber(const char *name) const
{
    return CORBA::LongLong(m_json.value(QLatin1String(name)).toInteger());
}

bool Answer::flag(const char *name) const
{
    return m_json.value(QLatin1String(name)).toBool();
}

QByteArray Answer::bytes(const char *name) const
{
    const QJsonValue value = m_json.value(QLatin1String(name));
    if (value.isObject()) {
        const QJsonObject pattern = value.toObject();
        return patternBytes(pattern.value("size"_L1).toInteger(),
                            quint32(pattern.value("seed"_L1).toInteger()));
    }
    return value.toString().toLatin1();
}

char *Answer::text(const char *name) const
{
    return CORBA::string_dup(bytes(name).constData());
}

QVector<Answer> Answer::list(const char *name) const
{
    QVector<Answer> result;
    for (const QJsonValue &entry : m_json.value(QLatin1String(name)).toArray()) {
        result.append(Answer(entry.toObject()));
    }
    return result;
}

Script::Script(const QString &logFile)
    : m_log(logFile)
{
    if (!m_log.open(QIODevice::Append)) {
        qFatal("Can not write %s", qPrintable(logFile));
    }
}

void Script::noteConnection(const QString &connection)
{
    t_connection = connection;
}

void Script::setAnswers(const QJsonObject &command)
{
    const QMutexLocker lock(&m_mutex);
    m_answers.insert(command.value("operation"_L1).toString(),
                     command.value("answers"_L1).toArray());
}

QJsonObject Script::nextAnswer(const QString &operation)
{
    QJsonArray &answers = m_answers[operation];
    const QJsonObject answer = answers.at(0).toObject();
    if (answers.size() > 1) {
        answers.removeFirst();
    }
    return answer;
}

Answer Script::play(const char *operation, const QJsonArray &arguments)
{
    return playLazily(operation, [&] { return arguments; });
}

Answer Script::playLazily(const char *operation, const std::function<QJsonArray()> &arguments)
{
    QJsonObject answer;
    {
        const QMutexLocker lock(&m_mutex);
        answer = nextAnswer(QLatin1String(operation));
        if (!answer.value("quiet"_L1).toBool()) {
            const QJsonObject call {{u"call"_s, QLatin1String(operation)},
                                    {u"args"_s, arguments()},
                                    {u"connection"_s, t_connection}};
            m_log.write(QJsonDocument(call).toJson(QJsonDocument::Compact) + '\n');
            m_log.flush();
        }
    }
    QThread::msleep(ulong(answer.value("delay"_L1).toInteger()));
    if (answer.contains("raise"_L1)) {
        raise(answer.value("raise"_L1).toString());
    }
    return Answer(answer);
}

#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QVector>

#include "ControllerProcess.h"

/** A text whose UTF-8 bytes go into an answer of the fake controller, see its Answer class. */
QString wireText(const QString &text);

/**
 * A controller that answers what the test tells it, and tells what it was asked.
 *
 * Before it was told, it answers zeros; registerApp gives each client an id of its own.
 */
class FakeController : public ControllerProcess
{
public:
    struct Call
    {
        QString operation;
        QJsonArray arguments;
        QString connection; ///< the peer's address; differs between connections
    };

    explicit FakeController(quint16 publishedPort = 0);

    /** Answers an operation so from now on. */
    void answer(const QString &operation, const QJsonObject &answer);
    /** Answers it with one after another, and with the last one from then on. */
    void answerInTurn(const QString &operation, const QVector<QJsonObject> &answers);

    QVector<Call> calls() const;
    QVector<Call> calls(const QString &operation) const;

private:
    QString logFile() const { return m_directory.filePath(QStringLiteral("calls.log")); }

    QTemporaryDir m_directory;
};

#include "FakeController.h"

#include <QFile>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

QString wireText(const QString &text)
{
    return QString::fromLatin1(text.toUtf8());
}

FakeController::FakeController(quint16 publishedPort)
    : ControllerProcess(QStringLiteral(VEX_TEST_FAKEFCP))
{
    QStringList arguments = {u"--log"_s, logFile()};
    if (publishedPort != 0) {
        arguments << u"--publish"_s << u"127.0.0.1:%1"_s.arg(publishedPort);
    }
    setArguments(arguments);
}

void FakeController::answer(const QString &operation, const QJsonObject &answer)
{
    answerInTurn(operation, {answer});
}

void FakeController::answerInTurn(const QString &operation, const QVector<QJsonObject> &answers)
{
    QJsonArray list;
    for (const QJsonObject &answer : answers) {
        list.append(answer);
    }
    const QJsonObject command {{u"operation"_s, operation}, {u"answers"_s, list}};
    order("answer " + QJsonDocument(command).toJson(QJsonDocument::Compact));
}

QVector<FakeController::Call> FakeController::calls() const
{
    QFile file(logFile());
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QVector<Call> result;
    while (!file.atEnd()) {
        const QJsonObject call = QJsonDocument::fromJson(file.readLine()).object();
        result.append({call.value("call"_L1).toString(), call.value("args"_L1).toArray(),
                       call.value("connection"_L1).toString()});
    }
    return result;
}

QVector<FakeController::Call> FakeController::calls(const QString &operation) const
{
    QVector<Call> result = calls();
    result.removeIf([&](const Call &call) { return call.operation != operation; });
    return result;
}

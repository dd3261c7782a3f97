#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QVariantList>
#include <QVector>

#include <functional>

class FcpAppCORBA;

/** One of the proxy's methods that call the controller, with what goes in and comes out of it. */
struct Wrapper
{
    QString operation; ///< the controller's
    /** What the fake controller is to answer. */
    QJsonObject answer;
    /** The arguments that must reach the controller. */
    QJsonArray arguments;
    /** Calls the method; gives its result, if it has one, and then its out-arguments. */
    std::function<QVariantList(FcpAppCORBA &)> call;
    /** What call() must give when all is well. */
    QVariantList value;
    /** What it must give when not: out-arguments keep what was in them. */
    QVariantList zero;
};

/** Every guarded wrapper of the proxy, once. */
const QVector<Wrapper> &wrappers();
const Wrapper &wrapper(const QString &operation);

/** A call's outcome for a person to read. */
QString describe(const QVariantList &outcome);

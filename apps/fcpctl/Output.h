#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>

/// What the program says: results on standard output, everything else on standard error.
namespace Output {

/**
 * Makes sure that the descriptors 0 to 2 are taken, before anything else is opened: a connection
 * that got number 1 would be sent our results.
 */
void reserveStandardStreams();

/// Whether results go to a terminal, where names must be escaped.
bool isTerminal();
/// @p name as it is written to standard output: escaped on a terminal, its own bytes elsewhere.
QString name(const QString &name);

/**
 * Writes to standard output. A reader that has gone (`| head`) ends the program silently by
 * SIGPIPE, as it does other tools.
 * @return 0, or why it failed as an errno value.
 */
[[nodiscard]] int tryWrite(const QByteArray &bytes);
/// Likewise, but throws Failure.
void write(const QString &text);
void line(const QString &text);
void json(const QJsonObject &object);
void json(const QJsonArray &array);

/// "fcpctl: message" on standard error; @p message must be printable().
void error(const QString &message);

} // namespace Output

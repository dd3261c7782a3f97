#pragma once

#include <QByteArray>
#include <QString>

/**
 * @file
 * Texts on their way between the shell and the library.
 *
 * File names are bytes, here and on the instrument. Those that are no UTF-8 are carried in a
 * QString as FcpAppCORBA::getFileSystemItems() delivers them: each such byte as the lone surrogate
 * U+DC00 + byte.
 */

/** A word of the command line, or a local file name. */
QString fromShell(const QByteArray &bytes);
/** The bytes that fromShell() took. */
QByteArray toShell(const QString &text);
/** Whether every local file API can name it: Qt knows only names in UTF-8. */
bool isUtf8Name(const QString &name);

/**
 * @p text as it can be shown on a terminal: control and formatting characters, undecodable bytes
 * and the backslash are escaped, so that a file's name can't move the cursor or fake a line.
 */
QString printable(const QString &text);

/** How many cells of a terminal @p text takes. */
int displayWidth(const QString &text);

/** @p count in bytes, for people: "512 B", "1.5 MiB". */
QString humanSize(qint64 count);

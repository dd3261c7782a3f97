#pragma once

#include <QByteArray>
#include <QString>

/** The contents of a file, or "cannot be read". */
QByteArray contentsOf(const QString &path);

/** Writes a file, its folder included; ends the test program with qFatal when that fails. */
void writeFile(const QString &path, const QByteArray &contents);

/** Removes the files of a folder, but no folders below it. */
void removeFiles(const QString &folder);

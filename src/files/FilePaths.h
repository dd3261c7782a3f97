#pragma once

#include <QStringList>

/// Absolute paths with "/" between their names, of either place.
namespace FilePaths {

/// With one slash between.
QString join(const QString &folder, const QString &name);
/// "/" for what has none.
QString parentOf(const QString &path);
QString nameOf(const QString &path);
/// The name as a line of text can show it, see FileNames::shown().
QString shownNameOf(const QString &path);
/// @p text for a button, whose ampersands would mark keys.
QString buttonText(QString text);
/// Itself and all above, beginning with "/".
QStringList ancestors(const QString &path);
/// Why @p name can't be the name of a file, for a person; empty when it can.
QString nameFault(const QString &name);
/// With @p suffix added if it has none.
QString withSuffix(const QString &name, const QString &suffix);
/// The patterns of "Traces (*.trc *.xml)", or the text itself as the only one.
QStringList patternsOf(const QString &nameFilter);

} // namespace FilePaths

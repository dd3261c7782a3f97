#pragma once

#include <QString>

/** Rules that names of files follow on both sides. */
namespace FileNames {

/** What most file systems bear, in bytes of UTF-8. */
constexpr qsizetype LongestName = 255;

/**
 * Why no file can be called @p name, in words; empty when one can. A faulty controller may tell
 * names with slashes; bytes that are no UTF-8 come as lone surrogates, for which the local disk has
 * no spelling.
 */
QString complaintAbout(const QString &name);

/** The beginning of @p name that takes no more than @p bytes of UTF-8. */
QString shortened(const QString &name, qsizetype bytes);

/** "name (2).suffix" for @p number 2; not longer than a name may be. */
QString numbered(const QString &name, int number);

/**
 * @p name, or a path, with visible signs for what a line of text can't show: what would break the
 * line, turn its direction around, or is no text.
 */
QString shown(const QString &name);

} // namespace FileNames
